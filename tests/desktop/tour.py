#!/usr/bin/python3
"""The bundled tour made again from an empty demo, by mouse and keyboard alone, and compared."""

import plistlib
from pathlib import Path

from fixture import EditorTest, main

TOUR = Path(__file__).parents[2] / "examples" / "tour.velvane"
ADD = {
    "move": "Add Move to", "click": "Add Click", "rightClick": "Add Right-click",
    "hold": "Add Hold (mouse down)", "release": "Add Release (mouse up)", "type": "Add Type",
    "shortcut": "Add Keyboard shortcut", "wait": "Add Wait", "switchApp": "Add Switch app",
    "section": "Add Section",
}
KEYS = {(1, 0x100000): "super+s"}


def number(value):
    return f"{value:g}"


class Tour(EditorTest):
    def provide(self, app):
        """An application of that name for the menu to list."""
        folder = self.folder / "data" / "applications"
        folder.mkdir(parents=True)
        (folder / "app.desktop").write_text(
            f"[Desktop Entry]\nType=Application\nName={app}\nExec=true\n")

    def put(self, editor, field, value):
        """Fills a field unless it holds the value already."""
        if editor.field(field).text != value:
            editor.fill(editor.field(field), value)

    def add(self, editor, step):
        kind = step["kind"]
        editor.click(editor.find("push button", ADD[kind]))
        if kind == "move":
            self.put(editor, "Target X", number(step["point"][0]))
            self.put(editor, "Target Y", number(step["point"][1]))
        if kind == "type":
            self.put(editor, "Text", step["text"])
        if kind == "section":
            self.put(editor, "Title", step["text"])
        if kind == "shortcut":
            editor.click(editor.find("push button", "Shortcut"))
            editor.key(KEYS[step["keyCode"], step["modifiers"]])
        if kind == "switchApp":
            editor.click(editor.find("push button", "Safari"))
            editor.choose(step["text"])
            if step["centerWindow"]:
                editor.click(editor.find("check box", "Center window"))
        if kind in ("move", "type"):
            self.put(editor, "Duration", number(step["duration"]))
        if kind != "section":
            self.put(editor, "Pause", number(step["pauseAfter"]))

    def test_it_is_made_again_from_an_empty_demo(self):
        tour = plistlib.loads(TOUR.read_bytes())
        picture = self.folder / "backdrop.png"
        picture.write_bytes(tour["background"])
        app = next(s["text"] for s in tour["steps"] if s["kind"] == "switchApp")
        self.provide(app)

        editor = self.open_empty(XDG_DATA_HOME=str(self.folder / "data"))
        editor.key("ctrl+a", "Delete")
        editor.wait_rows()
        self.put(editor, "Start X", number(tour["startPoint"][0]))
        self.put(editor, "Start Y", number(tour["startPoint"][1]))
        editor.click(editor.find("push button", "Choose…"))
        editor.choose_file(picture)
        for step in tour["steps"]:
            self.add(editor, step)
        editor.key("ctrl+s")
        editor.choose_file(self.demo)
        editor.wait(self.demo.exists, "the saved demo")

        made = plistlib.loads(self.demo.read_bytes())
        for step in [*made["steps"], *tour["steps"]]:
            del step["id"]
        self.assertEqual(made["steps"], tour["steps"])
        for key in ("canvasSize", "startPoint", "fps"):
            self.assertEqual(made[key], tour[key], key)
        self.assertEqual(made["background"][:8], tour["background"][:8], "a picture of the same form")


if __name__ == "__main__":
    main()
