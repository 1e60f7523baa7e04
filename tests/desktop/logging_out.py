#!/usr/bin/python3
"""A session manager logs the user out, and in again: the open demos are there, with all edits."""

import subprocess
from pathlib import Path

from accessible import application, wait_for
from driver import NO_SITE, Editor
from fixture import PROGRAM, EditorTest, kinds, main, step, write_demo
from session import Session


def windows():
    """(process, title) of each window that the window manager has."""
    told = subprocess.run(["wmctrl", "-lp"], check=True, capture_output=True, text=True).stdout
    return [(int(line.split()[2]), line.split(None, 4)[4]) for line in told.splitlines()]


class LoggingOut(EditorTest):
    def setUp(self):
        super().setUp()
        self.home = self.folder / "home"
        self.home.mkdir()
        self.kept = self.home / ".local/state/velvane/sessions"
        self.other = self.folder / "other.velvane"
        write_demo(self.demo, step("click"))
        write_demo(self.other, step("hold"))

    def log_in(self):
        self.session = Session(self.home, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LC_ALL="C.UTF-8",
                               VELVANE_SITE=NO_SITE)
        self.addCleanup(self.session.close)
        self.address = self.session.log_in()

    def log_in_again(self):
        self.address = self.session.log_in()

    def start(self, *demos):
        """An editor that takes part in the session."""
        editor = Editor(PROGRAM, None, window=False, arguments=[str(demo) for demo in demos],
                        HOME=str(self.home), XDG_CONFIG_HOME=str(self.home / ".config"),
                        SESSION_MANAGER=self.address)
        self.addCleanup(editor.close)
        return editor

    def change(self, editor, name):
        window = editor.window_of(name)
        editor.activate(window)
        editor.choose_item("Step", "Add Step", "Wait", window=window)
        editor.window_of(f"{name}*")

    def log_out(self, *editors, saving=False):
        self.session.log_out(saving)
        for editor in editors:
            editor.wait_end()
        self.assertEqual((kinds(self.demo), kinds(self.other)), (["click"], ["hold"]),
                         "the files themselves are left alone")

    def end(self, editor, *changed):
        """Closes the demos without saving; an orderly end leaves nothing."""
        editor.key("ctrl+q")
        for name in changed:
            editor.wait_question(f"Do you want to save the changes to “{name}”?")
            editor.answer("Don't Save")
        editor.wait_end()
        self.assertEqual(list(self.kept.iterdir()), [])

    def test_a_changed_demo_is_back_at_the_next_start_without_a_question(self):
        self.log_in()
        editor = self.start(self.demo)
        self.change(editor, "demo")
        self.log_out(editor)

        self.log_in_again()
        editor = self.start()
        editor.wait_titles("demo*")
        editor.wait_rows("1, Click", "2, Wait")
        self.assertEqual([w.name for w in editor.root.children if w.role == "dialog"], [])
        self.end(editor, "demo")

    def test_each_of_several_demos_is_back_whether_changed_or_not(self):
        self.log_in()
        editor = self.start(self.demo, self.other)
        self.change(editor, "demo")
        editor.key("ctrl+n")
        self.change(editor, "Untitled")
        self.log_out(editor)

        self.log_in_again()
        editor = self.start()
        editor.wait_titles("Untitled*", "demo*", "other")
        # A second log-out keeps what the first has brought back.
        self.log_out(editor)
        self.log_in_again()
        editor = self.start()
        editor.wait_titles("Untitled*", "demo*", "other")

    def test_a_session_that_is_saved_brings_the_demos_of_two_programs_back_by_itself(self):
        self.log_in()
        first = self.start(self.demo)
        self.change(first, "demo")
        second = self.start(self.other)
        self.change(second, "other")
        self.log_out(first, second, saving=True)

        self.log_in_again()
        titles = ["demo* — Velvane", "other* — Velvane"]
        wait_for(lambda: sorted(title for _, title in windows()) == titles, f"windows {titles}")
        (process,) = {process for process, _ in windows()}
        root = application(process)
        for title, first in (("demo*", "1, Click"), ("other*", "1, Hold")):
            frame = next(root.each("frame", title))
            rows = [row.name for row in frame.all("list item")]
            self.assertEqual([rows[0][:len(first)], rows[1][:7]], [first, "2, Wait"])
        self.log_out()
        wait_for(lambda: not Path(f"/proc/{process}").exists(), "the program to end")


if __name__ == "__main__":
    main()
