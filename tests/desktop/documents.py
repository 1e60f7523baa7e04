#!/usr/bin/python3
"""The life of a demo's file: made, saved, opened again, closed; nothing is lost on the way."""

import os
import resource
import subprocess
import tempfile
from pathlib import Path

from accessible import wait_for
from driver import Editor, xdotool
from fixture import PROGRAM, EditorTest, inspect, kinds, main, move, step, write_demo


def add_wait(editor):
    editor.click(editor.find("push button", "Add Wait"))
    editor.wait(lambda: editor.window.name.endswith("*"), "the mark of a changed demo")


class Saving(EditorTest):
    def test_a_demo_is_made_saved_and_opened_again(self):
        editor = self.open_empty()
        editor.wait_titles("Untitled")
        for label in ("Move to", "Type", "Section"):
            editor.click(editor.find("push button", f"Add {label}"))
        editor.wait_rows("1", "2, Move", "3, Type", "Section")
        editor.wait_titles("Untitled*")
        editor.choose_item("File", "Save")
        editor.choose_file(self.folder / "first")
        editor.wait_titles("first")
        first = self.folder / "first.velvane"
        editor.wait_status("Saved first.velvane.")
        self.assertEqual(kinds(first), ["switchApp", "move", "type", "section"])

        editor.choose_item("File", "Save As…")
        editor.choose_file(self.folder / "second.velvane")
        editor.wait_titles("second")
        second = self.folder / "second.velvane"
        self.assertEqual(inspect(second), inspect(first))
        rows = editor.rows
        editor.key("ctrl+q")
        editor.wait_end()

        before = second.read_bytes()
        self.demo = second
        editor = self.run_editor()
        self.assertEqual(editor.rows, rows)
        editor.saved()
        self.assertEqual(second.read_bytes(), before, "what was read is written again")

    def test_open_shows_the_chosen_demo_in_a_window_of_its_own(self):
        other = self.folder / "other.velvane"
        write_demo(other, step("hold"), move(3, 4))
        editor = self.open(step("click"))
        editor.key("ctrl+o")
        editor.choose_file(other)
        editor.wait_titles("demo", "other")
        # A second time the window is raised that has it.
        editor.activate(editor.window_of("demo"))
        editor.key("ctrl+o")
        editor.choose_file(other)
        editor.wait(lambda: editor.window_of("other").has("active"), "the other window")
        editor.wait_titles("demo", "other")
        self.assertEqual([i.name for i in editor.open_menu("Window", window=editor.window_of(
            "other"))], ["Minimize", "demo", "other"])
        editor.close_menu()

    def test_recent_demos_are_opened_from_their_menu(self):
        editor = self.open(step("click"))
        editor.key("ctrl+n")
        editor.wait_titles("demo", "Untitled")
        editor.activate(editor.window_of("demo"))
        editor.key("ctrl+w")
        editor.wait_titles("Untitled")
        recent = editor.open_menu("File", "Open Recent", window=editor.window_of("Untitled"))
        self.assertEqual([i.name for i in recent], [f"demo — {self.folder}", "Clear Menu"])
        editor.click(recent[0])
        editor.wait_titles("demo", "Untitled")


class Closing(EditorTest):
    QUESTION = "Do you want to save the changes to “demo”?"

    def open_changed(self, **environment):
        editor = self.open(step("click"), **environment)
        add_wait(editor)
        return editor

    def test_cancel_keeps_the_window_and_its_changes(self):
        editor = self.open_changed()
        editor.choose_item("File", "Close")
        editor.wait_question(self.QUESTION)
        editor.answer("Cancel")
        editor.wait_titles("demo*")
        self.assertEqual(kinds(self.demo), ["click"])
        xdotool("key", "alt+F4")
        editor.wait_question(self.QUESTION)
        editor.key("Escape")
        editor.wait(lambda: not editor.root.all("push button", "Cancel"), "the question to go")
        editor.wait_titles("demo*")

    def test_dont_save_closes_and_leaves_the_file(self):
        editor = self.open_changed()
        editor.key("ctrl+w")
        editor.answer("Don't Save")
        editor.find("push button", "Open…")
        self.assertEqual(kinds(self.demo), ["click"])

    def test_save_closes_and_writes_the_file(self):
        editor = self.open_changed()
        editor.key("ctrl+w")
        editor.answer("Save")
        editor.find("push button", "Open…")
        self.assertEqual(kinds(self.demo), ["click", "wait"])

    def test_quit_asks_about_every_changed_demo_and_cancel_keeps_them_all(self):
        other = self.folder / "other.velvane"
        write_demo(other, step("hold"))
        editor = self.open_changed()
        editor.key("ctrl+o")
        editor.choose_file(other)
        window = editor.window_of("other")
        editor.choose_item("Step", "Add Step", "Wait", window=window)
        editor.wait_titles("demo*", "other*")

        editor.key("ctrl+q")
        editor.wait_question(self.QUESTION)
        editor.answer("Don't Save")
        editor.wait_question("Do you want to save the changes to “other”?")
        editor.answer("Cancel")
        editor.wait_titles("demo*", "other*")

        editor.key("ctrl+q")
        editor.wait_question(self.QUESTION)
        editor.answer("Save")
        editor.wait_question("Do you want to save the changes to “other”?")
        editor.answer("Don't Save")
        editor.wait_end()
        self.assertEqual(kinds(self.demo), ["click", "wait"])
        self.assertEqual(kinds(other), ["hold"])


class FullDisk(EditorTest):
    def assert_save_fails(self, editor, reason):
        before = self.demo.read_bytes()
        editor.key("ctrl+s")
        editor.wait_question("“demo.velvane” could not be saved.")
        editor.wait_question(f"It cannot be written: {reason}. The demo is still open here with "
                             "all your changes.")
        editor.answer("Cancel")
        self.assertEqual(self.demo.read_bytes(), before)
        self.assertEqual(os.listdir(self.demo.parent), [self.demo.name], "nothing is left behind")
        editor.wait_titles("demo*")

    def test_a_file_that_may_not_grow_leaves_the_old_one_and_says_so(self):
        editor = self.open(step("click"))
        add_wait(editor)
        pid, unlimited = editor.process.pid, resource.RLIM_INFINITY
        resource.prlimit(pid, resource.RLIMIT_FSIZE, (100, unlimited))
        self.assert_save_fails(editor, "File too large")
        resource.prlimit(pid, resource.RLIMIT_FSIZE, (unlimited, unlimited))
        editor.saved()
        self.assertEqual(kinds(self.demo), ["click", "wait"])

    def test_a_full_disk_leaves_the_old_file_and_says_so(self):
        disk = tempfile.TemporaryDirectory(prefix="velvane-disk.")
        self.addCleanup(disk.cleanup)
        mount = ["mount", "-t", "tmpfs", "-o", "size=64k", "none", disk.name]
        if subprocess.run(mount, capture_output=True).returncode != 0:
            self.skipTest("only root may mount a small disk; the limit on files is tested above")
        self.addCleanup(subprocess.run, ["umount", "-l", disk.name], check=True)
        self.demo = Path(disk.name) / "demo.velvane"
        # The old file takes most of the disk, so that a new one does not fit beside it.
        editor = self.open(step("type", text="x" * 40_000))
        add_wait(editor)
        self.assert_save_fails(editor, "No space left on device")


class OtherPrograms(EditorTest):
    CHANGED = "“demo” was changed by another program."

    def test_a_file_changed_outside_is_reloaded_on_request(self):
        editor = self.open(step("click"))
        write_demo(self.demo, step("hold"), step("release"))
        editor.wait_question(self.CHANGED)
        editor.answer("Reload")
        editor.wait_rows("1, Hold", "2, Release")
        editor.wait_titles("demo")
        editor.key("ctrl+z")
        editor.wait_rows("1, Click")

    def test_ones_own_version_is_kept_on_request_and_replaces_only_when_agreed(self):
        editor = self.open(step("click"))
        write_demo(self.demo, step("hold"))
        editor.wait_question(self.CHANGED)
        editor.answer("Keep My Version")
        editor.wait_titles("demo*")
        editor.key("ctrl+s")
        editor.wait_question("“demo” was changed by another program since it was opened")
        editor.answer("Cancel")
        self.assertEqual(kinds(self.demo), ["hold"])
        editor.key("ctrl+s")
        editor.answer("Replace")
        editor.wait_titles("demo")
        self.assertEqual(kinds(self.demo), ["click"])

    def test_a_file_that_has_gone_is_written_again(self):
        editor = self.open(step("click"))
        self.demo.unlink()
        editor.wait_titles("demo*")
        editor.wait_status("“demo” was moved or deleted; saving writes it again.")
        editor.saved()
        self.assertEqual(kinds(self.demo), ["click"])

    def test_two_processes_on_one_file_do_not_replace_each_others_work(self):
        first = self.open(step("click"))
        second = Editor(PROGRAM, self.demo)
        self.addCleanup(second.close)
        add_wait(second)  # the window in front
        second.key("ctrl+s")
        second.wait_titles("demo")
        self.assertEqual(kinds(self.demo), ["click", "wait"])

        first.wait_question(self.CHANGED)
        second.process.terminate()  # its window covers the other one
        second.process.wait()
        first.answer("Keep My Version")
        first.choose_item("Step", "Add Step", "Hold (mouse down)")
        first.key("ctrl+s")
        first.wait_question("“demo” was changed by another program since it was opened")
        first.answer("Cancel")
        self.assertEqual(kinds(self.demo), ["click", "wait"])


class Dropping(EditorTest):
    def drop(self, editor, file, target):
        """Drags a file from another program's window and lets it go over the node."""
        source = subprocess.Popen([os.environ["VELVANE_DRAG_SOURCE"], str(file)],
                                  stdout=subprocess.PIPE, text=True)
        self.addCleanup(source.stdout.close)
        self.addCleanup(source.wait)
        self.addCleanup(source.terminate)
        x, y = map(int, source.stdout.readline().split())
        # One move, so that what the far window tells of a release holds for where it ends.
        editor.drag((x, y), target.centre, steps=1, release=False)
        self.assertEqual(source.stdout.readline(), "over a target\n")
        editor.release()

    def test_a_dropped_demo_opens_in_a_window_of_its_own(self):
        other = self.folder / "other.velvane"
        write_demo(other, step("hold"))
        editor = self.open(step("click"))
        self.drop(editor, other, editor.canvas)
        editor.wait_titles("demo", "other")

    def test_a_dropped_file_that_is_no_demo_is_refused_in_one_sentence(self):
        bad = self.folder / "notes.velvane"
        bad.write_text("no demo")
        editor = self.open(step("click"))
        self.drop(editor, bad, editor.list)
        editor.wait_question("“notes.velvane” cannot be opened: not a property list.")
        editor.answer("OK")
        editor.wait_titles("demo")


if __name__ == "__main__":
    main()
