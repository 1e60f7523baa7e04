#!/usr/bin/python3
"""The window as a whole: its menus, its smallest size, dark and light, saving and closing."""

import plistlib
import subprocess

from driver import xdotool
from fixture import PROGRAM, EditorTest, main, step
from portal import DARK, LIGHT, Portal

DARK_PANE, LIGHT_PANE = "#232428", "#F3F4F6"


class Applications(EditorTest):
    def entry(self, folder, file, name, *lines):
        path = self.folder / folder / "applications" / file
        path.parent.mkdir(parents=True, exist_ok=True)
        head = ["[Desktop Entry]", "Type=Application", f"Name={name}", "Exec=true"]
        path.write_text("\n".join([*head, *lines, ""]), encoding="utf-8")

    def open_with_applications(self, *steps):
        self.entry("own", "notes.desktop", "Notes & More", "Name[de]=Notizen")
        self.entry("system", "notes.desktop", "Old Notes")  # covered by the user's own
        self.entry("system", "zeta.desktop", "zeta")
        self.entry("system", "atlas.desktop", "Atlas")
        self.entry("system", "daemon.desktop", "Daemon", "NoDisplay=true")
        self.entry("system", "gone.desktop", "Gone", "Hidden=true")
        return self.open(
            *steps,
            XDG_DATA_HOME=str(self.folder / "own"),
            XDG_DATA_DIRS=str(self.folder / "system"),
        )

    def test_an_application_is_chosen_from_the_menu(self):
        editor = self.open_with_applications(step("switchApp"))
        editor.click(editor.row("1, Switch to app"))
        editor.click(editor.find("push button", "Choose app…"))
        items = editor.menu_items()
        # What runs comes first; then the installed ones, sorted whatever their case.
        self.assertEqual(items[-3:], ["Atlas", "Notes & More", "zeta"])
        for hidden in ("Old Notes", "Daemon", "Gone"):
            self.assertNotIn(hidden, items)
        editor.choose("Notes & More")
        editor.wait_rows("1, Switch to Notes & More")
        editor.find("push button", "Notes & More")
        self.assert_steps(editor, "text", ["Notes & More"])
        editor.key("ctrl+z")
        editor.wait_rows("1, Switch to app")

    def test_centring_its_window_is_an_option(self):
        editor = self.open_with_applications(step("switchApp", text="Atlas"))
        editor.click(editor.row("1, Switch to Atlas"))
        box = editor.find("check box", "Center window")
        editor.click(box)
        editor.wait(lambda: box.has("checked"), "the check")
        self.assert_steps(editor, "centerWindow", [True])
        editor.key("ctrl+z")
        editor.wait(lambda: not box.has("checked"), "no check")


class Menus(EditorTest):
    def test_the_context_menu_duplicates_a_step(self):
        editor = self.open(step("click"), step("hold"))
        editor.click(editor.row("1"), button=3)
        self.assertIn("Duplicate", editor.menu_items())
        editor.choose("Duplicate")
        editor.wait_rows("1, Click", "2, Click", "3, Hold")

    def test_run_options_are_kept_for_the_next_window(self):
        editor = self.open(step("click"))
        editor.click(editor.find("push button", "Run options"))
        self.assertEqual(
            editor.menu_items(),
            ["Hide other apps during run", "Show mouse cursor", "Don't record", "Record screen",
             "Record active window"],
        )
        editor.choose("Record screen")
        config = editor.home / "config"

        def kept():
            return any("screen" in f.read_text() for f in config.rglob("*") if f.is_file())

        editor.wait(kept, "the kept choice")


class Size(EditorTest):
    def test_the_smallest_window_has_everything_within_reach(self):
        editor = self.open(step("click"))
        xdotool("windowsize", xdotool("getactivewindow").strip(), 300, 200)
        editor.wait(lambda: editor.window.box[2:] == (960, 600), "the smallest size")
        editor.find("push button", "Add a step")
        left, top, width, height = editor.window.box
        for node in editor.root.walk(shown_only=True):
            if not node.has("focusable") or node.role in ("list item", "list", "canvas", "filler"):
                continue  # what fills its room to the edge
            x, y, wide, high = node.box
            with self.subTest(node=repr(node)):
                self.assertGreaterEqual(x, left)
                self.assertLessEqual(x + wide, left + width - 6)
                self.assertGreaterEqual(y, top)
                self.assertLessEqual(y + high, top + height)
        editor.click(editor.find("push button", "Add a step"))
        self.assertEqual(len(editor.menu_items()), 10)
        editor.choose("Add Wait")
        editor.wait_rows("1, Click", "2, Wait")
        self.assert_steps(editor, "kind", ["click", "wait"])


class Appearance(EditorTest):
    def pane_is(self, editor, color):
        """The inspector's ground, left of its lower right corner."""
        x, y, width, height = editor.window.box
        return editor.color(x + width - 20, y + height - 60) == color

    def test_dark_and_light_are_chosen_by_the_environment(self):
        for scheme, color in (("dark", DARK_PANE), ("light", LIGHT_PANE)):
            editor = self.open(step("click"), scheme=scheme)
            editor.wait(lambda: self.pane_is(editor, color), scheme)
            editor.close()

    def test_the_desktops_portal_is_followed_while_the_window_is_open(self):
        portal = Portal(LIGHT)
        self.addCleanup(portal.close)
        editor = self.open(step("click"), scheme="")
        editor.wait(lambda: self.pane_is(editor, LIGHT_PANE), "a light window")
        portal.change(DARK)
        editor.wait(lambda: self.pane_is(editor, DARK_PANE), "a dark window")
        portal.change(LIGHT)
        editor.wait(lambda: self.pane_is(editor, LIGHT_PANE), "a light window again")


class Saving(EditorTest):
    def test_the_title_tells_what_is_not_saved(self):
        editor = self.open(step("click"))
        self.assertEqual(editor.window.name.count("*"), 0)
        editor.click(editor.find("push button", "Add Wait"))
        editor.wait(lambda: "*" in editor.window.name, "the mark of a changed demo")
        editor.saved()
        editor.wait_status("Saved demo.velvane.")
        editor.wait(lambda: "*" not in editor.window.name, "the mark to go")

    def test_the_saved_file_is_what_inspect_reads(self):
        editor = self.open(step("click"))
        editor.click(editor.find("push button", "Add Type"))
        saved = editor.saved()
        self.assertEqual(saved["version"], 1)
        self.assertEqual(sorted(saved), ["canvasSize", "fps", "startPoint", "steps", "version"])
        self.assertTrue(self.demo.read_bytes().startswith(b"bplist00"))
        told = subprocess.run([PROGRAM, "inspect", str(self.demo), "--json"], check=True,
                              capture_output=True, text=True).stdout
        self.assertIn('"Type here"', told)

    def test_closing_with_changes_asks_first(self):
        editor = self.open(step("click"))
        editor.click(editor.find("push button", "Add Wait"))
        editor.wait_rows("1, Click", "2, Wait")
        editor.key("ctrl+w")
        editor.click(editor.find("push button", "Cancel"))
        editor.wait(lambda: not editor.root.all("push button", "Cancel"), "the question to go")
        self.assertTrue(editor.is_running)
        editor.key("ctrl+w")
        editor.find("push button", "Don't Save")
        editor.click(editor.find("push button", "Save"))
        # The start window follows the last demo; closing it ends the program.
        editor.find("push button", "Open…")
        self.assertTrue(editor.is_running)
        editor.key("alt+F4")
        editor.wait(lambda: not editor.is_running, "the program to end")
        self.assertEqual(editor.process.returncode, 0)
        kinds = [s["kind"] for s in plistlib.loads(self.demo.read_bytes())["steps"]]
        self.assertEqual(kinds, ["click", "wait"])

    def test_a_file_that_is_no_demo_is_refused_in_one_line(self):
        self.demo.write_bytes(b"bplist00 but no more")
        result = subprocess.run([PROGRAM, str(self.demo)], capture_output=True, text=True)
        self.assertEqual(result.returncode, 1)
        self.assertEqual(len(result.stderr.splitlines()), 1, result.stderr)


if __name__ == "__main__":
    main()
