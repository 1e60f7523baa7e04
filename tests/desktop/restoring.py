#!/usr/bin/python3
"""What the program does not lose when it ends, however that comes about, and that it runs once."""

import os
import signal
import subprocess

from accessible import wait_for
from driver import Editor, xdotool
from fixture import PROGRAM, EditorTest, kinds, main, step, write_demo
from server import Server

CRASHED = "Velvane did not end properly the last time."


def shown(title):
    """Is a window of this title on the screen?"""
    return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title],
                          stdout=subprocess.DEVNULL, check=False).returncode == 0


class RestoringTest(EditorTest):
    def setUp(self):
        super().setUp()
        self.home = self.folder / "home"
        self.home.mkdir()
        self.sessions = self.home / ".local/state/velvane/sessions"

    def start(self, demo=None, window=True, **environment):
        """An editor whose home outlives it."""
        editor = Editor(PROGRAM, demo, window=window, HOME=str(self.home),
                        XDG_CONFIG_HOME=str(self.home / "config"), **environment)
        self.addCleanup(editor.close)
        return editor

    def start_changed(self):
        write_demo(self.demo, step("click"))
        editor = self.start(self.demo)
        editor.click(editor.find("push button", "Add Wait"))
        editor.wait_titles("demo*")
        return editor

    def end(self, editor, number):
        editor.process.send_signal(number)
        wait_for(lambda: not editor.is_running, "the program to end")

    def kept(self):
        return list(self.sessions.rglob("*.kept")) if self.sessions.exists() else []


class Ends(RestoringTest):
    def assert_comes_back(self):
        self.assertEqual(kinds(self.demo), ["click"], "the file itself is left alone")
        editor = self.start()
        editor.wait_titles("demo*")
        editor.wait_rows("1, Click", "2, Wait")
        return editor

    def test_asked_to_end_it_does_so_and_its_demos_come_back_unasked(self):
        for number in (signal.SIGTERM, signal.SIGHUP):
            with self.subTest(number):
                editor = self.start_changed()
                self.end(editor, number)
                self.assertEqual(editor.process.returncode, 0)
                editor = self.assert_comes_back()
                editor.key("ctrl+w")
                editor.answer("Don't Save")
                editor.window_of("Velvane")
                editor.key("ctrl+w")
                editor.wait_end()
                self.assertEqual(list(self.sessions.iterdir()), [], "an orderly end leaves nothing")

    def test_a_demo_without_changes_comes_back_too(self):
        write_demo(self.demo, step("click"))
        self.end(self.start(self.demo), signal.SIGTERM)
        self.start().wait_titles("demo")
        self.assertEqual(self.kept(), [])

    def lose_display(self, work):
        """Takes the display away while an editor has what `work` leaves in it."""
        server = Server()
        self.addCleanup(server.stop)
        display = os.environ["DISPLAY"]
        os.environ["DISPLAY"] = server.display
        self.addCleanup(os.environ.__setitem__, "DISPLAY", display)
        manager = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
        self.addCleanup(manager.wait)
        self.addCleanup(manager.kill)
        editor = work()
        self.addCleanup(setattr, editor.process, "returncode", 0)
        server.stop()
        wait_for(lambda: not editor.is_running, "the program to end")
        os.environ["DISPLAY"] = display

    def test_a_display_that_goes_takes_no_work_with_it(self):
        self.lose_display(self.start_changed)
        self.assert_comes_back()

    def test_nor_what_is_being_recorded(self):
        def record():
            write_demo(self.demo, step("click"))
            editor = self.start(self.demo)
            editor.click(editor.find("push button", "Record"))
            editor.answer("Keep Canvas")
            wait_for(lambda: shown("● Recording — Esc to stop"), "the panel of the recording")
            # The pointer has rested when the click comes.
            xdotool("mousemove", 30, 30, "sleep", 1, "click", 1)
            return editor

        self.lose_display(record)
        self.assertEqual(kinds(self.demo), ["click"])
        editor = self.start()
        editor.wait_titles("demo*")
        editor.wait_rows("1, Click", "2, Move", "3, Click")


class Crashes(RestoringTest):
    def crash(self):
        """A demo is changed, kept after half a minute, and the program killed."""
        editor = self.start_changed()
        wait_for(self.kept, "the kept demo", 60)
        self.end(editor, signal.SIGKILL)
        editor.process.returncode = 0

    def offered(self):
        editor = self.start(window=False)
        editor.wait_question(CRASHED)
        row = editor.find("list").children[0]
        self.assertTrue(row.name.startswith(f"demo — {self.folder}, "), row.name)
        return editor

    def test_what_a_killed_program_kept_is_offered_until_it_is_decided(self):
        self.crash()
        editor = self.offered()
        editor.key("Escape")
        editor.wait_titles("Untitled")
        editor.key("ctrl+q")
        editor.wait_end()

        editor = self.offered()
        editor.click(editor.find("push button", "Restore"))
        editor.wait_titles("demo*")
        editor.wait_rows("1, Click", "2, Wait")
        # Killed at once it is there still.
        self.end(editor, signal.SIGKILL)
        editor.process.returncode = 0

        editor = self.offered()
        editor.click(editor.find("push button", "Discard"))
        editor.wait_titles("Untitled")
        self.assertEqual(self.kept(), [])
        self.assertEqual(kinds(self.demo), ["click"])


class OneInstance(RestoringTest):
    def run_again(self, *arguments, **environment):
        """Starts the program a second time; its exit status and what it says."""
        result = subprocess.run(
            [PROGRAM, *map(str, arguments)], capture_output=True, text=True, timeout=60,
            cwd=self.folder, env={**os.environ, "HOME": str(self.home), **environment})
        return result.returncode, result.stderr

    def test_demos_open_in_the_program_that_runs_already(self):
        other = self.folder / "other demo.velvane"
        write_demo(other, step("hold"))
        write_demo(self.demo, step("click"))
        editor = self.start(self.demo, single=True)
        self.assertEqual(self.run_again(other.name), (0, ""))
        editor.wait_titles("demo", "other demo")
        editor.wait(lambda: editor.window_of("other demo").has("active"), "it in front")
        self.assertEqual(self.run_again(self.demo), (0, ""))
        editor.wait(lambda: editor.window_of("demo").has("active"), "the one that has it in front")
        editor.wait_titles("demo", "other demo")

    def test_without_a_demo_it_comes_to_the_front(self):
        write_demo(self.demo, step("click"))
        editor = self.start(self.demo, single=True)
        covering = Editor(PROGRAM, None)
        self.addCleanup(covering.close)
        editor.wait(lambda: not editor.window.has("active"), "another program in front")
        self.assertEqual(self.run_again(), (0, ""))
        editor.wait(lambda: editor.window.has("active"), "the program in front")
        editor.wait_titles("demo")

    def test_a_file_that_is_no_demo_is_refused_where_it_was_named(self):
        editor = self.start(single=True)
        bad = self.folder / "bad.velvane"
        bad.write_text("no demo")
        self.assertEqual(self.run_again(bad), (1, f"velvane: {bad}: not a property list\n"))
        editor.wait_titles("Untitled")

    def test_the_desktops_calls_are_answered(self):
        editor = self.start(single=True)
        write_demo(self.demo, step("click"))
        call = ["gdbus", "call", "--session", "--dest", "com.orvikel.velvane", "--object-path",
                "/com/orvikel/velvane", "--method"]
        application = "org.freedesktop.Application"
        for arguments in (["Open", f"['{self.demo.as_uri()}']", "{'desktop-startup-id': <'x'>}"],
                          ["ActivateAction", "new-demo", "[]", "{}"],
                          ["Activate", "{}"]):
            subprocess.run([*call, f"{application}.{arguments[0]}", *arguments[1:]], check=True,
                           capture_output=True)
        editor.wait_titles("Untitled", "demo", "Untitled 2")

    def test_started_by_the_bus_it_opens_what_it_is_called_for_alone(self):
        write_demo(self.demo, step("click"))
        editor = self.start(window=False, single=True, arguments=["--service"])
        self.assertEqual(self.run_again(self.demo), (0, ""))
        editor.wait_titles("demo")


if __name__ == "__main__":
    main()
