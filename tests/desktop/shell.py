#!/usr/bin/python3
"""The program as the desktop meets it: its windows' places, no full screen, the start window."""

import subprocess

from driver import xdotool
from fixture import EditorTest, main, step, write_demo


def resize(editor, width, height):
    xdotool("windowsize", xdotool("getactivewindow").strip(), width, height)
    editor.wait(lambda: editor.window.box[2:] == (width, height), f"{width} x {height}")


def ask_manager(change):
    """Sends the window manager a message about the active window's state, as taskbars do."""
    subprocess.run(["wmctrl", "-r", ":ACTIVE:", "-b", change], check=True)


def state():
    """The active window's state as the window manager keeps it."""
    number = xdotool("getactivewindow").strip()
    command = ["xprop", "-id", number, "_NET_WM_STATE"]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class FullScreen(EditorTest):
    def watch_state(self):
        """Counts what the window manager makes of the active window: its state, and each change."""
        told = self.folder / "states"
        number = xdotool("getactivewindow").strip()
        with told.open("w") as output:
            spy = subprocess.Popen(
                ["stdbuf", "-oL", "xprop", "-spy", "-id", number, "_NET_WM_STATE"], stdout=output)
        self.addCleanup(spy.wait)
        self.addCleanup(spy.kill)
        return lambda: len(told.read_text().splitlines())

    def test_a_window_that_is_made_full_screen_leaves_it_at_once(self):
        editor = self.open(step("click"))
        place = editor.window.box
        changes = self.watch_state()
        editor.wait(lambda: changes() == 1, "the state before")
        ask_manager("add,fullscreen")
        # Each change is a line; which state it reads may already be the one after.
        editor.wait(lambda: changes() >= 3, "full screen to come and go")
        editor.wait(lambda: "FULLSCREEN" not in state(), "full screen to be left")
        editor.wait(lambda: editor.window.box == place, "the window's place before")

    def test_no_key_makes_it_full_screen(self):
        editor = self.open(step("click"))
        for key in ("F11", "super+f", "ctrl+super+f", "alt+Return"):
            editor.key(key)
        editor.key("ctrl+8")  # when this has been served, so have the keys before
        editor.wait(lambda: editor.item("View", "Zoom 4×").has("checked"), "the magnifier")
        self.assertNotIn("FULLSCREEN", state())

    def test_maximizing_is_left_alone(self):
        editor = self.open(step("click"))
        ask_manager("add,maximized_vert,maximized_horz")
        editor.wait(lambda: editor.window.box[2] == 1920, "the window to fill the screen")
        ask_manager("remove,maximized_vert,maximized_horz")
        editor.wait(lambda: editor.window.box[2] < 1920, "the window's size before")


class Places(EditorTest):
    def again(self, home):
        return self.run_editor(HOME=home, XDG_CONFIG_HOME=home)

    def splitter(self, editor):
        """The middle of the bar between the step list and the stage."""
        x, y, width, height = editor.list.box
        return editor.canvas.box[0], y + height // 2

    def test_a_restarted_program_has_its_window_where_it_was(self):
        home = str(self.folder)
        write_demo(self.demo, step("click"))
        editor = self.again(home)
        resize(editor, 1200, 760)
        xdotool("windowmove", xdotool("getactivewindow").strip(), 300, 150)
        editor.wait(lambda: abs(editor.window.box[0] - 300) < 20, "the new place")
        width = editor.list.box[2]
        x, y = self.splitter(editor)
        editor.drag((x, y), (x + 60, y))
        editor.wait(lambda: editor.list.box[2] > width + 30, "a wider list")
        place, width = editor.window.box, editor.list.box[2]
        editor.key("ctrl+q")
        editor.wait_end()

        editor = self.again(home)
        self.assertEqual(editor.window.box, place)
        self.assertEqual(editor.list.box[2], width)

    def test_a_second_window_does_not_cover_the_first(self):
        editor = self.open(step("click"))
        editor.key("ctrl+n")
        editor.wait_titles("demo", "Untitled")
        first, second = (editor.window_of(name).box for name in ("demo", "Untitled"))
        self.assertNotEqual(first[:2], second[:2])


class Start(EditorTest):
    def test_it_follows_the_last_demo_lists_it_and_opens_it(self):
        editor = self.open(step("click"))
        editor.key("ctrl+w")
        start = editor.window_of("Velvane")
        demos = editor.find("list", "Recent demos")
        self.assertEqual([row.name for row in demos.children], [f"demo, in {self.folder}"])
        cache = editor.home / ".cache"
        editor.wait(lambda: list(cache.rglob("*.png")), "the demo's picture")
        editor.key("Return")
        editor.wait_titles("demo")
        self.assertFalse(start.showing)

    def test_new_makes_a_demo_and_closing_it_ends_the_program(self):
        editor = self.open(step("click"))
        editor.key("ctrl+w")
        editor.click(editor.find("push button", "New"))
        editor.wait_titles("Untitled")
        editor.key("ctrl+w")
        editor.wait_titles("Velvane")
        editor.key("ctrl+w")
        editor.wait_end()

    def test_open_asks_for_a_demo(self):
        editor = self.open(step("click"))
        editor.key("ctrl+w")
        editor.click(editor.find("push button", "Open…"))
        editor.choose_file(self.demo)
        editor.wait_titles("demo")


if __name__ == "__main__":
    main()
