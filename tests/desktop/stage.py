#!/usr/bin/python3
"""The preview canvas, the transport and the demo's settings, driven by mouse and keyboard."""

import struct
import subprocess

from driver import MARGIN, xdotool
from fixture import CANVAS, EditorTest, main, move, step

MAGNIFY = "Magnify the canvas 4× (Z)"


class Canvas(EditorTest):
    def scale(self, editor):
        """Screen pixels of one point of the demo, not magnified."""
        _, _, width, height = editor.canvas.box
        return min((width - 2 * MARGIN) / CANVAS[0], (height - 2 * MARGIN) / CANVAS[1])

    def point_at(self, editor, x, y):
        """The whole demo point under a screen pixel."""
        left, top, width, height = editor.canvas.box
        scale = self.scale(editor)
        return [
            float(round((x - left - width / 2) / scale + CANVAS[0] / 2)),
            float(round((y - top - height / 2) / scale + CANVAS[1] / 2)),
        ]

    def test_a_click_drops_a_waypoint_at_the_end(self):
        editor = self.open(step("click"), step("hold"))
        place = editor.on_canvas(300, 200)
        expected = self.point_at(editor, *place)
        editor.click_at(*place)
        name = "({:.0f}, {:.0f})".format(*expected)
        editor.wait_status(f"Added waypoint at {name}.")
        editor.wait_rows("1, Click", "2, Hold", f"3, Move to {name}")
        saved = editor.saved_steps()[2]
        self.assertEqual(saved["point"], expected)
        self.assertEqual((saved["duration"], saved["pauseAfter"]), (1.0, 0.3))
        editor.key("ctrl+z")
        editor.wait_rows("1, Click", "2, Hold")

    def test_a_click_moves_the_selected_target(self):
        editor = self.open(move(10, 10), move(900, 600))
        editor.click(editor.row("1"))
        place = editor.on_canvas(640, 400)
        expected = self.point_at(editor, *place)
        editor.click_at(*place)
        editor.wait_rows("1, Move to ({:.0f}, {:.0f})".format(*expected), "2, Move to (900, 600)")
        self.assert_steps(editor, "point", [expected, [900.0, 600.0]])

    def test_a_click_beside_the_canvas_adds_nothing(self):
        editor = self.open(step("click"))
        left, top, width, height = editor.canvas.box
        editor.click_at(left + width // 2, top + 8)
        editor.wait(lambda: editor.canvas.has("focused"), "the canvas to take the focus")
        self.assert_steps(editor, "kind", ["click"])

    def test_a_marker_is_dragged_and_undo_takes_the_whole_drag_back(self):
        editor = self.open(move(400, 300), move(900, 600))
        x, y = editor.on_canvas(400, 300)
        editor.drag((x, y), (x + 131, y + 57), steps=12)
        scale = self.scale(editor)
        expected = [float(round(400 + 131 / scale)), float(round(300 + 57 / scale))]
        editor.wait_rows("1, Move to ({:.0f}, {:.0f})".format(*expected), "2, Move to (900, 600)")
        self.assert_steps(editor, "point", [expected, [900.0, 600.0]])
        editor.key("ctrl+z")
        editor.wait_rows("1, Move to (400, 300)", "2, Move to (900, 600)")

    def test_a_marker_stops_at_the_canvas_edge(self):
        editor = self.open(move(100, 700))
        x, y = editor.on_canvas(100, 700)
        editor.drag((x, y), (x - 200, y + 130))
        editor.wait_rows("1, Move to (0, 800)")
        self.assert_steps(editor, "point", [[0.0, 800.0]])

    def test_arrow_keys_nudge_and_one_undo_takes_the_run_back(self):
        editor = self.open(move(400, 300))
        editor.click(editor.row("1"))
        editor.canvas.act("SetFocus")
        editor.wait(lambda: editor.canvas.has("focused"), "the focus on the canvas")
        editor.key("Right", "Right", "Right", "shift+Down", "Up", "shift+Left")
        editor.wait_rows("1, Move to (393, 309)")
        editor.key("ctrl+z")
        editor.wait_rows("1, Move to (400, 300)")
        editor.key("ctrl+shift+z")
        self.assert_steps(editor, "point", [[393.0, 309.0]])

    def test_delete_on_the_canvas_deletes_the_selected_step(self):
        editor = self.open(move(400, 300), step("click"))
        editor.click(editor.row("1"))
        editor.canvas.act("SetFocus")
        editor.wait(lambda: editor.canvas.has("focused"), "the focus on the canvas")
        editor.key("Delete")
        editor.wait_rows("1, Click")
        self.assert_steps(editor, "kind", ["click"])

    def test_z_magnifies_and_a_click_hits_four_times_finer(self):
        editor = self.open(move(400, 300))
        editor.click(editor.row("1"))
        editor.canvas.act("SetFocus")
        editor.wait(lambda: editor.canvas.has("focused"), "the focus on the canvas")
        scale = self.scale(editor)
        editor.key("z")
        editor.wait(lambda: editor.find("check box", MAGNIFY).has("checked"), "the magnifier")
        left, top, width, height = editor.canvas.box
        # The selected target stands in the middle.
        editor.click_at(left + width // 2 + 80, top + height // 2 - 40)
        odd = (width % 2 / 2, height % 2 / 2)  # the middle may lie between two pixels
        expected = [
            float(round(400 + (80 - odd[0]) / (4 * scale))),
            float(round(300 + (-40 - odd[1]) / (4 * scale))),
        ]
        editor.wait_rows("1, Move to ({:.0f}, {:.0f})".format(*expected))
        self.assert_steps(editor, "point", [expected])
        editor.key("z")
        editor.wait(lambda: not editor.find("check box", MAGNIFY).has("checked"), "no magnifier")

    def test_the_wheel_pans_the_magnified_canvas(self):
        editor = self.open(move(400, 300))
        editor.click(editor.row("1"))
        editor.click(editor.find("check box", MAGNIFY))
        left, top, width, height = editor.canvas.box
        scale = self.scale(editor)
        xdotool("mousemove", left + width // 2, top + height // 2, "click", 4)
        # One notch up moves the picture down, so the middle shows what was 60 pixels higher.
        editor.click_at(left + width // 2, top + height // 2)
        expected = [400.0, float(round(300 + (-60 - height % 2 / 2) / (4 * scale)))]
        editor.wait_rows("1, Move to ({:.0f}, {:.0f})".format(*expected))
        self.assert_steps(editor, "point", [expected])


class Transport(EditorTest):
    def time(self, editor):
        return editor.find("slider", "Time").value

    def test_space_plays_and_pauses_and_home_goes_to_the_start(self):
        editor = self.open(step("wait", pauseAfter=60.0))
        editor.click(editor.row("1"))
        editor.key("space")
        editor.find("push button", "Pause")
        editor.wait(lambda: self.time(editor) > 0.3, "time to pass")
        editor.key("space")
        editor.find("push button", "Play")
        stopped = self.time(editor)
        self.assertLess(stopped, 60)
        self.assertAlmostEqual(stopped * 60, round(stopped * 60), 3, "a whole number of frames")
        self.assertEqual(self.time(editor), stopped)
        editor.key("Home")
        editor.wait(lambda: self.time(editor) == 0, "the start")

    def test_playing_ends_at_the_end_and_starts_again_from_there(self):
        editor = self.open(step("wait", pauseAfter=0.5))
        play = editor.find("push button", "Play")
        editor.click(play)
        editor.wait(lambda: self.time(editor) == 0.5, "the end")
        editor.find("push button", "Play")
        self.assertTrue(editor.root.all(name="0.5 / 0.5s"))
        editor.click(play)
        editor.wait(lambda: 0 < self.time(editor) < 0.5, "another time from the start")
        editor.wait(lambda: self.time(editor) == 0.5, "the end again")

    def test_a_click_on_the_track_scrubs(self):
        editor = self.open(step("wait", pauseAfter=10.0))
        slider = editor.find("slider", "Time")
        editor.click(slider)
        editor.wait(lambda: 4 < self.time(editor) < 6, "the middle")
        editor.click(editor.find("push button", "Go to Start"))
        editor.wait(lambda: self.time(editor) == 0, "the start")


class DemoSettings(EditorTest):
    def test_size_rate_and_start_are_edited_and_undone(self):
        editor = self.open(step("click"))
        editor.fill(editor.field("Canvas width"), "1000")
        editor.fill(editor.field("Canvas height"), "500")
        editor.fill(editor.field("Frame rate"), "25")
        editor.fill(editor.field("Start X"), "12")
        editor.fill(editor.field("Start Y"), "34")
        saved = editor.saved()
        self.assertEqual((saved["canvasSize"], saved["fps"]), ([1000.0, 500.0], 25))
        self.assertEqual(saved["startPoint"], [12.0, 34.0])
        editor.key("ctrl+z", "ctrl+z", "ctrl+z")
        saved = editor.saved()
        self.assertEqual((saved["canvasSize"], saved["fps"]), ([1000.0, 500.0], 60))
        self.assertEqual(saved["startPoint"], [640.0, 400.0])

    def test_match_screen_takes_the_displays_size(self):
        editor = self.open(step("click"))
        width, height = map(int, xdotool("getdisplaygeometry").split())
        editor.click(editor.find("push button", "Match Screen"))
        editor.wait(lambda: editor.field("Canvas width").text == str(width), "the display's width")
        self.assertEqual(editor.saved()["canvasSize"], [float(width), float(height)])

    def test_the_start_is_dragged_on_the_canvas(self):
        editor = self.open(step("click"))
        x, y = editor.on_canvas(640, 400)
        _, _, width, height = editor.canvas.box
        scale = min((width - 2 * MARGIN) / CANVAS[0], (height - 2 * MARGIN) / CANVAS[1])
        editor.drag((x, y), (x - 100, y + 60))
        expected = [float(round(640 - 100 / scale)), float(round(400 + 60 / scale))]
        editor.wait(lambda: editor.field("Start X").text == f"{expected[0]:.0f}", "the new start")
        self.assertEqual(editor.saved()["startPoint"], expected)

    def test_a_backdrop_is_chosen_as_a_file_and_removed(self):
        picture = self.folder / "backdrop.png"
        subprocess.run(["convert", "-size", "64x40", "xc:#336699", str(picture)], check=True)
        editor = self.open(step("click"))
        editor.click(editor.find("push button", "Choose…"))
        name = editor.wait(editor.dialog_field, "the dialog's name field")
        editor.wait(lambda: name.has("focused"), "the focus in the dialog")
        editor.type(str(picture))
        editor.key("Return")
        editor.wait(lambda: editor.find("push button", "Remove").has("enabled"), "the picture")
        data = editor.saved()["background"]
        self.assertEqual(data[:8], b"\x89PNG\r\n\x1a\n")
        self.assertEqual(struct.unpack(">II", data[16:24]), (64, 40))
        editor.click(editor.find("push button", "Remove"))
        editor.wait(lambda: not editor.find("push button", "Remove").has("enabled"), "no picture")
        self.assertNotIn("background", editor.saved())
        editor.key("ctrl+z")
        self.assertIn("background", editor.saved())


if __name__ == "__main__":
    main()
