#!/usr/bin/python3
"""A demo's recorded movie as its backdrop: shown, scrubbed, played, frozen, and missing."""

import plistlib
import subprocess

from fixture import CANVAS, EditorTest, main, step

COLORS = ["#B02020", "#20B020", "#2020B0", "#B0B020", "#B020B0"]
EACH = 2  # seconds of the movie for each colour
SIZE = (640, 400)  # of its pictures


def bookmark(path):
    """What finds a movie again: its device, number, size and path."""
    about = path.stat()
    lines = ["velvane recording", about.st_dev, about.st_ino, about.st_size, path]
    return "\n".join(map(str, lines)).encode()


def nearest(color):
    """The index of the colour that a pixel stands for."""

    def distance(other):
        return sum((int(color[i:i + 2], 16) - int(other[i:i + 2], 16)) ** 2 for i in (1, 3, 5))

    return min(range(len(COLORS)), key=lambda i: distance(COLORS[i]))


class RecordingBackdrop(EditorTest):
    def setUp(self):
        super().setUp()
        self.movie = self.folder / "run.mp4"

    def make_movie(self):
        width, height = SIZE
        inputs, count = [], len(COLORS)
        for color in COLORS:
            source = f"color=0x{color[1:]}:s={width}x{height}:r=30:d={EACH}"
            inputs += ["-f", "lavfi", "-i", source]
        joined = f"concat=n={count},scale=out_color_matrix=bt709:out_range=tv,format=yuv420p"
        subprocess.run(["ffmpeg", "-nostdin", "-v", "error", *inputs, "-filter_complex", joined,
                        "-colorspace", "bt709", "-color_range", "tv", "-c:v", "libx264",
                        "-preset", "ultrafast", "-g", "30", str(self.movie)], check=True)

    def open_recorded(self, *steps):
        if not self.movie.exists():
            self.make_movie()
        root = {
            "version": 1,
            "steps": list(steps),
            "startPoint": [640.0, 400.0],
            "canvasSize": [float(side) for side in CANVAS],
            "fps": 60,
            "recordingBookmark": bookmark(self.movie),
        }
        self.demo.write_bytes(plistlib.dumps(root, fmt=plistlib.FMT_BINARY))
        return self.run_editor()

    def shown(self, editor):
        """The index of the movie's colour that the canvas shows."""
        return nearest(editor.color(*editor.on_canvas(1200, 60)))

    def wait_shown(self, editor, index):
        editor.wait(lambda: self.shown(editor) == index, f"colour {index}")

    def click_slider(self, editor, slider, share):
        x, y, width, height = slider.box
        inset = 11  # room for the knob
        editor.click_at(round(x + inset + share * (width - 2 * inset)), y + height // 2)

    def show(self, editor):
        editor.key("ctrl+3")
        slider = editor.find("slider", "Recording time")
        editor.wait(lambda: editor.color(*editor.on_canvas(1200, 60)) != "#000000", "a picture")
        return slider

    def test_it_shows_scrubs_and_goes_off_again(self):
        editor = self.open_recorded(step("wait", recordedOffset=0.0))
        slider = self.show(editor)
        self.wait_shown(editor, 0)
        for index in (3, 1, 4, 0, 2):
            self.click_slider(editor, slider, (index + 0.5) / len(COLORS))
            self.wait_shown(editor, index)
        x, y, width, height = slider.box
        row = y + height // 2
        editor.drag((x + width // 2, row), (x + width - 20, row))
        self.wait_shown(editor, 4)
        editor.key("ctrl+3")
        editor.wait(lambda: not editor.root.all("slider", "Recording time"), "no scrub bar")

    def test_it_plays_in_step_with_the_timeline(self):
        # One second each; the steps were recorded two colours apart.
        editor = self.open_recorded(step("wait", pauseAfter=1.0, recordedOffset=0.5),
                                    step("wait", pauseAfter=1.0, recordedOffset=4.5),
                                    step("wait", pauseAfter=1.0, recordedOffset=8.5))
        self.show(editor)
        self.wait_shown(editor, 0)
        transport = editor.find("slider", "Time")
        for time, index in ((1.05, 2), (2.05, 4), (0.05, 0), (1.6, 3), (0.6, 1)):
            self.click_slider(editor, transport, time / 3)
            self.wait_shown(editor, index)
        editor.key("Home")
        self.wait_shown(editor, 0)
        editor.key("space")
        seen = [0]
        while seen[-1] < len(COLORS) - 1:
            now = self.shown(editor)
            self.assertGreaterEqual(now, seen[-1], f"after {seen}")
            if now != seen[-1]:
                seen.append(now)

    def test_a_frozen_picture_becomes_the_backdrop(self):
        editor = self.open_recorded(step("wait", recordedOffset=0.0))
        slider = self.show(editor)
        self.click_slider(editor, slider, 0.5)
        self.wait_shown(editor, 2)
        editor.key("ctrl+2")
        editor.wait(lambda: not slider.has("enabled"), "a scrub bar that cannot be moved")
        saved = editor.saved()
        self.assertEqual(saved["canvasSize"], [float(side) for side in SIZE])
        picture = next(value for value in saved.values()
                       if isinstance(value, bytes) and value.startswith(b"\x89PNG"))
        self.assertGreater(len(picture), 100)
        editor.key("ctrl+3")
        self.wait_shown(editor, 2)

    def test_a_missing_file_is_said(self):
        self.make_movie()
        editor = self.open_recorded(step("wait", recordedOffset=0.0))
        self.movie.unlink()
        editor.key("ctrl+3")
        editor.wait_status("Recording file is missing — backdrop unavailable.")
        self.assertFalse(editor.root.all("slider", "Recording time"))

    def test_a_renamed_file_is_found(self):
        editor = self.open_recorded(step("wait", recordedOffset=2.5))
        self.movie.rename(self.folder / "best take.mp4")
        self.show(editor)
        self.wait_shown(editor, 1)

    def test_a_file_that_is_no_movie_is_said(self):
        self.movie.write_text("no movie", encoding="utf-8")
        editor = self.open_recorded(step("wait", recordedOffset=0.0))
        editor.key("ctrl+3")
        editor.wait_status("Couldn't read the screen recording (run.mp4).")


if __name__ == "__main__":
    main()
