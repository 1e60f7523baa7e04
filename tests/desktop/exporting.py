#!/usr/bin/python3
"""Exporting from the window: the movie is the command line's; cancelling and leaving end it well."""

import re
import resource
import subprocess

from fixture import PROGRAM, EditorTest, main, move, step

LONG = 3600.0  # seconds of demo that take far longer to export than any test waits


class Exporting(EditorTest):
    def export(self, editor, movie, window=None):
        editor.choose_item("File", "Export to Video…", window=window)
        editor.choose_file(movie)

    def progress(self, editor):
        """Percent, as the status line shows it, or None."""
        for node in editor.root.walk(shown_only=True):
            found = re.match(r"Exporting, (\d+)%", node.name)
            if found:
                return int(found[1])
        return None

    def wait_exporting(self, editor):
        editor.wait(lambda: self.progress(editor) is not None, "the export to begin")

    def assert_playable(self, movie):
        command = ["ffprobe", "-v", "error", "-count_frames", "-select_streams", "v",
                   "-show_entries", "stream=nb_read_frames", "-of", "csv=p=0", str(movie)]
        told = subprocess.run(command, check=True, capture_output=True, text=True)
        self.assertEqual(told.stderr, "")
        self.assertGreater(int(told.stdout), 0)

    def test_the_movie_is_the_same_as_the_command_lines(self):
        editor = self.open(move(100, 700, duration=0.5), step("click"), step("type", text="Hello"))
        self.export(editor, self.folder / "window")
        editor.wait_status("Exported to window.mp4.")
        self.assertIsNone(self.progress(editor))
        other = self.folder / "line.mp4"
        subprocess.run([PROGRAM, "export", str(self.demo), str(other)], check=True,
                       capture_output=True)
        self.assertEqual((self.folder / "window.mp4").read_bytes(), other.read_bytes())

    def test_cancelling_the_panel_exports_nothing(self):
        editor = self.open(step("click"))
        editor.key("ctrl+e")
        name = editor.wait(editor.dialog_field, "the panel's name field")
        self.assertEqual(name.text, "Velvane.mp4")
        editor.key("Escape")
        editor.wait(lambda: not editor.dialog_field(), "the panel to close")
        self.assertIsNone(self.progress(editor))

    def test_progress_shows_and_cancel_keeps_what_is_done(self):
        editor = self.open(step("wait", pauseAfter=LONG))
        movie = self.folder / "long.mp4"
        self.export(editor, movie)
        self.wait_exporting(editor)
        self.assertFalse(editor.item("File", "Export to Video…").has("enabled"))
        # The window serves its user meanwhile.
        editor.click(editor.find("push button", "Add Click"))
        editor.wait_rows("1, Wait", "2, Click")
        editor.click(editor.find("push button", "Cancel the export"))
        editor.wait_status("Export cancelled.")
        self.assertTrue(editor.item("File", "Export to Video…").has("enabled"))
        self.assert_playable(movie)

    def test_a_full_disk_is_told_in_the_status_line(self):
        editor = self.open(step("click"))
        unlimited = resource.RLIM_INFINITY
        resource.prlimit(editor.process.pid, resource.RLIMIT_FSIZE, (1000, unlimited))
        self.export(editor, self.folder / "full.mp4")
        editor.wait(lambda: any(s.startswith("Export failed: ") for s in editor.status),
                    "the failure")
        self.assertTrue(editor.item("File", "Export to Video…").has("enabled"))

    def test_closing_the_window_ends_its_export_first(self):
        editor = self.open(step("wait", pauseAfter=LONG))
        movie = self.folder / "long.mp4"
        self.export(editor, movie)
        self.wait_exporting(editor)
        editor.key("ctrl+w")
        editor.wait_question("“demo” is still being exported.")
        editor.answer("Stop Export")
        editor.find("push button", "Open…")
        self.assert_playable(movie)

    def test_quitting_ends_the_exports_of_all_windows_first(self):
        editor = self.open(step("wait", pauseAfter=LONG))
        editor.key("ctrl+n")
        editor.wait_titles("demo", "Untitled")
        demo = editor.window_of("demo")
        editor.activate(demo)
        movie = self.folder / "long.mp4"
        self.export(editor, movie, window=demo)
        self.wait_exporting(editor)
        editor.key("ctrl+q")
        editor.wait_question("“demo” is still being exported.")
        editor.answer("Stop Export")
        editor.wait_end()
        self.assert_playable(movie)


if __name__ == "__main__":
    main()
