#!/usr/bin/python3
"""Recording real actions from the editor, which goes out of the way and comes back."""

import subprocess
import time

from accessible import wait_for
from driver import xdotool
from fixture import main, step
from recorder import LEFT, REST, SCREEN, RecordingTest, active, place, shown, without


class FromTheEditor(RecordingTest):
    def open_recorder(self, canvas=SCREEN):
        self.write(step("click"), canvas=canvas)
        return self.run_editor()

    def is_minimized(self, window):
        told = subprocess.run(["xprop", "-id", window, "_NET_WM_STATE"], capture_output=True,
                              text=True, check=True).stdout
        return "_NET_WM_STATE_HIDDEN" in told

    def test_a_task_in_two_programs_becomes_steps(self):
        other, terminal = self.mousepad(), self.xterm()
        editor = self.open_recorder()
        window = active()
        editor.click(editor.find("push button", "Record"))
        self.wait_capturing()
        self.assertTrue(self.is_minimized(window))
        xdotool("mousemove", 300, 300, "click", LEFT)
        wait_for(lambda: active() == terminal, "the terminal")
        xdotool("type", "--delay", 30, "ls")
        x, y, width, height = place(other)
        xdotool("mousemove", x + width - 40, y + height - 40, "click", LEFT)
        time.sleep(REST)
        xdotool("key", "Escape")
        wait_for(lambda: not self.is_minimized(window), "the editor")
        wait_for(lambda: active() == window, "the editor in front")
        editor.find("slider", "Recording time")  # the movie is behind them
        kinds = [s["kind"] for s in without(editor.saved_steps(), "switchApp")]
        self.assertEqual(kinds, ["click", "move", "click", "type", "move", "click"])
        count = len(self.steps) - 1
        editor.key("ctrl+z")
        editor.wait_rows("1, Click")
        self.assertGreater(count, 5)

    def test_a_larger_screen_is_offered_once(self):
        editor = self.open_recorder(canvas=(1280, 800))
        editor.key("ctrl+shift+r")
        editor.wait_question("The screen is larger than the canvas.")
        editor.key("Return")
        self.wait_capturing()
        xdotool("mousemove", 1900, 1000, "click", LEFT)
        time.sleep(REST)
        xdotool("key", "Escape")
        editor.wait_status("Recorded 2 steps with screen recording.")
        saved = editor.saved()
        self.assertEqual(saved["canvasSize"], list(SCREEN))
        self.assertEqual(saved["steps"][1]["point"], [1900, 1000])

    def test_escape_in_the_countdown_brings_the_editor_back(self):
        editor = self.open_recorder()
        window = active()
        editor.key("ctrl+shift+r")
        self.panel("Recording starts in")
        xdotool("key", "Escape")
        wait_for(lambda: not shown("Recording", "--name"), "the panel to go")
        wait_for(lambda: active() == window, "the editor in front")
        editor.wait_status("Recording stopped — no actions captured.")
        editor.wait_rows("1, Click")


if __name__ == "__main__":
    main()
