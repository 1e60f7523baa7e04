#!/usr/bin/python3
"""Told to end by the system the program does so at once and well, whatever is going on."""

import plistlib
import signal
import subprocess

from accessible import wait_for
from driver import xdotool
from fixture import EditorTest, main, move, step
from heard import Heard


def shows(editor, text):
    editor.wait(lambda: any(text in node.name for node in editor.root.walk(True)), text)


def shown(title):
    """Is a window of this title on the screen?"""
    return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title],
                          stdout=subprocess.DEVNULL, check=False).returncode == 0


class Ending(EditorTest):
    def ends(self, begin, *steps, **environment):
        """Tells an editor to end in the midst of what `begin` has begun in it."""
        editor = self.open(*(steps or [move(300, 200), step("wait"), step("section")]),
                           **environment)
        begin(editor)
        editor.process.send_signal(signal.SIGTERM)
        wait_for(lambda: not editor.is_running, "the program to end")
        self.assertEqual(editor.process.returncode, 0)
        return editor

    def test_with_the_context_menu_open(self):
        def begin(editor):
            editor.click(editor.row("1"), button=3)
            editor.wait_menu()
        self.ends(begin)

    def test_with_a_menu_of_the_bar_open(self):
        self.ends(lambda editor: editor.open_menu("Step", "Add Step"))

    def test_with_a_popup_menu_open(self):
        def begin(editor):
            editor.click(editor.find("push button", "Run options"))
            editor.wait_menu()
        self.ends(begin)

    def test_with_a_row_in_the_hand(self):
        def begin(editor):
            x, y = editor.row("1").centre
            editor.drag((x, y), (x, y + 60), release=False)
        self.addCleanup(xdotool, "mouseup", 1)
        self.ends(begin)

    def test_with_a_marker_in_the_hand(self):
        def begin(editor):
            editor.click(editor.row("1"))
            x, y = editor.on_canvas(300, 200)
            editor.drag((x, y), (x + 60, y + 60), release=False)
        self.addCleanup(xdotool, "mouseup", 1)
        self.ends(begin)

    def test_with_a_field_half_filled(self):
        def begin(editor):
            editor.click(editor.row("1"))
            editor.key("Tab", "Tab")
            editor.type("12")
        self.ends(begin, step("type", text="abc"))

    def test_with_the_file_panel_open(self):
        def begin(editor):
            editor.key("ctrl+o")
            editor.wait(editor.dialog_field, "the panel")
        self.ends(begin)

    def test_with_a_question_open(self):
        def begin(editor):
            editor.click(editor.find("push button", "Add Wait"))
            editor.wait_titles("demo*")
            editor.key("ctrl+w")
            editor.find("push button", "Don't Save")
        self.ends(begin)

    def test_while_it_plays(self):
        def begin(editor):
            editor.click(editor.find("push button", "Play"))
            editor.wait(lambda: editor.find("slider", "Time").value > 0.1, "the play")
        self.ends(begin, move(300, 200, duration=60.0))

    def test_while_it_exports(self):
        def begin(editor):
            editor.key("ctrl+e")
            editor.choose_file(editor.home / "movie.mp4")
            shows(editor, "Exporting, ")
        self.ends(begin, move(300, 200, duration=3600.0))

    def test_in_the_countdown_of_a_run(self):
        def begin(editor):
            editor.key("ctrl+r")
            shows(editor, "Press Esc to abort")
        self.ends(begin)

    def test_while_it_runs_the_demo_with_nothing_left_pressed(self):
        heard = Heard()
        self.addCleanup(heard.close)

        def begin(editor):
            editor.key("ctrl+r")
            wait_for(lambda: heard.held() == {("button", 1)}, "the hold")
        self.ends(begin, step("hold"), step("wait", pauseAfter=3600.0))
        wait_for(lambda: heard.held() == set(), "the button to come up")

    def test_while_a_location_is_picked(self):
        def begin(editor):
            editor.click(editor.row("1"))
            editor.click(editor.find("push button", "Pick on screen"))
            editor.wait_status("Pick on screen — position the cursor over the target.")
        self.ends(begin)

    def test_while_actions_are_recorded(self):
        def begin(editor):
            editor.click(editor.find("push button", "Record"))
            editor.answer("Keep Canvas")
            wait_for(lambda: shown("● Recording — Esc to stop"), "the panel of the recording")
            xdotool("mousemove", 30, 30, "click", 1)
        editor = self.ends(begin)
        kept = next((editor.home / ".local/state/velvane").rglob("*.kept"))
        kinds = [s["kind"] for s in plistlib.loads(kept.read_bytes())["demo"]["steps"]]
        self.assertEqual(kinds[-2:], ["move", "click"])

    def test_while_a_shortcut_is_recorded(self):
        def begin(editor):
            editor.click(editor.row("1"))
            editor.click(editor.find("push button", "Shortcut"))
        self.ends(begin, step("shortcut"))

    def test_with_the_live_screen_on(self):
        def begin(editor):
            editor.key("ctrl+1")
            wait_for(lambda: editor.find("check box", "Live").has("checked"), "the live screen")
        self.ends(begin)


if __name__ == "__main__":
    main()
