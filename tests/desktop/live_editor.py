#!/usr/bin/python3
"""Live runs from the editor on a real display: the demo is performed, Esc stops it, and the editor
is back in front."""

import subprocess

from accessible import wait_for
from driver import active_window, xdotool
from fixture import main, move, step
from heard import clicks
from live_fixture import START, LiveTest, is_minimized, shown


class FromTheEditor(LiveTest):
    def run_button(self, editor):
        return editor.find("push button", "Run Live")

    def overlay(self, editor):
        """What lies over the window."""
        names = [node.name for node in editor.root.walk(True)]
        return next((n for n in names if "Esc" in n and "\n" in n or "Live run in" in n), "")

    def wait_countdown(self, editor):
        # Each of the three numbers is there only for a moment.
        editor.wait(lambda: self.overlay(editor)[1:].startswith("\nDriving the real cursor"),
                    "the countdown")

    def test_the_toolbar_runs_the_demo_and_the_editor_comes_back(self):
        steps = [move(300, 200, duration=0.3), step("click")]
        editor = self.open(*steps)
        with_window = active_window()
        since = self.heard.forget()
        editor.click(self.run_button(editor))
        self.wait_countdown(editor)
        self.assertFalse(self.run_button(editor).has("sensitive"))
        editor.wait_status("Live run finished.")
        editor.wait(lambda: self.run_button(editor).has("sensitive"), "the button")
        self.assertEqual(self.overlay(editor), "")
        # The first two are the click on the button.
        self.assertEqual(self.heard.buttons(since)[2:], clicks(steps, START))
        self.assertEqual(active_window(), with_window)
        self.assertEqual(self.heard.held(), set())

    def test_escape_stops_a_drag_and_the_editor_comes_back(self):
        editor = self.open(step("hold"), move(900, 700, duration=60.0))
        window = active_window()
        editor.key("ctrl+r")
        wait_for(lambda: len(self.heard.motions()) > 10, "a drag under way")
        editor.wait(lambda: self.overlay(editor) == "Live run in progress — Esc to stop",
                    "the capsule")
        self.assertFalse(self.run_button(editor).has("sensitive"))
        xdotool("key", "Escape")
        editor.wait_status("Live run stopped.")
        self.assertEqual(self.heard.held(), set())
        editor.wait(lambda: active_window() == window, "the editor in front")

    def test_escape_in_the_countdown_posts_nothing(self):
        editor = self.open(step("click"))
        editor.key("ctrl+r")
        self.wait_countdown(editor)
        since = self.heard.forget()
        xdotool("key", "Escape")
        editor.wait_status("Live run stopped.")
        self.assertEqual(self.heard.buttons(since) + self.heard.motions(since), [])

    def test_a_run_from_a_step_starts_where_the_move_before_it_went(self):
        steps = [move(300, 200), step("click"), step("rightClick")]
        editor = self.open(*steps)
        editor.click(editor.row("3, Right-click"), button=3)
        editor.wait_menu()
        since = self.heard.forget()
        editor.choose("Run Live from Here")
        editor.wait_status("Live run finished.")
        self.assertEqual(self.heard.buttons(since), clicks(steps[2:], (300, 200)))

    def test_closing_the_window_stops_the_run_first(self):
        # Beside the editor, which would take a click of its own as an edit.
        width, height = map(int, xdotool("getdisplaygeometry").split())
        editor = self.open(move(width - 2, height - 2), step("hold"),
                           step("wait", pauseAfter=3600.0))
        window = active_window()
        editor.key("ctrl+r")
        wait_for(lambda: self.heard.held() == {("button", 1)}, "the hold")
        # As a taskbar does: a window manager takes no keys while its desktop is pressed on.
        subprocess.run(["wmctrl", "-i", "-c", window], check=True)
        editor.wait(lambda: self.heard.held() == set(), "the button to come up")
        editor.wait_titles("Velvane")
        self.assertEqual([event[:2] for event in self.heard.buttons()],
                         [("button-down", 1), ("button-up", 1)])

    def start_other(self):
        """Another application with a window on the screen; returns that."""
        process = subprocess.Popen(["xterm", "-class", "Bystander", "-e", "cat"])
        self.addCleanup(process.wait)
        self.addCleanup(process.terminate)
        return wait_for(lambda: shown("Bystander"), "the other application")[0]

    def test_others_are_hidden_and_we_come_back(self):
        other = self.start_other()
        editor = self.open(step("switchApp", text="Nobody", pauseAfter=3600.0))
        window = active_window()
        editor.click(editor.find("push button", "Run options"))
        editor.wait_menu()
        editor.choose("Hide other apps during run")
        editor.key("ctrl+r")
        wait_for(lambda: is_minimized(window), "the editor to hide")
        wait_for(lambda: is_minimized(other), "the other application to be hidden")
        xdotool("key", "Escape")
        wait_for(lambda: not is_minimized(window), "the editor")
        editor.wait_status("Live run stopped.")
        editor.wait(lambda: active_window() == window, "the editor in front")
        self.assertTrue(is_minimized(other), "what was hidden stays hidden")


if __name__ == "__main__":
    main()
