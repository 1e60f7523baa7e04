#!/usr/bin/python3
"""The installed program as a user of the machine meets it: its demos, manual, completion, pictures.

Runs as a user, on a display and a session bus of its own; nothing tells the desktop's tools where
the program is.
"""

import configparser
import os
import shlex
import signal
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[1] / "desktop"))
from accessible import wait_for  # noqa: E402
from fixture import step, write_demo  # noqa: E402
from server import Server  # noqa: E402

MIME_TYPE = "application/vnd.orvikel.velvane"
COMMANDS = {"new", "inspect", "state", "frame", "export", "convert", "run", "record", "doctor"}


def told(*command, **options):
    return subprocess.run([str(word) for word in command], check=True, capture_output=True,
                          text=True, timeout=60, **options).stdout


class OnMachine(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="velvane-user.")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.demo = self.folder / "Grüße an alle.velvane"
        write_demo(self.demo, step("click"))

    def windows(self, display=None):
        """Titles of the program's windows, whether a window manager has them or not."""
        environment = {**os.environ, "DISPLAY": display or os.environ["DISPLAY"]}
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "^velvane$"],
                               capture_output=True, text=True, env=environment, check=False).stdout
        return [told("xdotool", "getwindowname", number, env=environment).strip()
                for number in found.split()]

    def end(self):
        """Ends the program that a tool has started."""
        found = told("xdotool", "search", "--class", "^velvane$", "getwindowpid").split()
        os.kill(int(found[0]), signal.SIGTERM)
        wait_for(lambda: not self.windows(), "the program to end")

    def wait_window(self, title, display=None):
        wait_for(lambda: any(name.startswith(title) for name in self.windows(display)),
                 f"a window {title}")


class Demos(OnMachine):
    def test_the_desktops_tools_know_a_demo_and_what_opens_it(self):
        self.assertEqual(told("xdg-mime", "query", "filetype", self.demo).strip(), MIME_TYPE)
        self.assertEqual(told("xdg-mime", "query", "default", MIME_TYPE).strip(),
                         "com.orvikel.velvane.desktop")
        self.assertIn("com.orvikel.velvane.desktop", told("gio", "mime", MIME_TYPE))

    def test_they_open_it_in_a_window(self):
        for command in (["gio", "open"], ["xdg-open"]):
            with self.subTest(command[0]):
                opening = subprocess.Popen([*command, str(self.demo)], stderr=subprocess.DEVNULL)
                self.addCleanup(opening.wait)
                self.wait_window(self.demo.stem)
                self.end()

    def test_the_menu_opens_it_without_one(self):
        told("gtk-launch", "com.orvikel.velvane")
        self.wait_window("Untitled")
        self.end()

    def test_a_file_manager_gets_its_picture(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.read("/usr/share/thumbnailers/com.orvikel.velvane.thumbnailer")
        group = entry["Thumbnailer Entry"]
        picture = self.folder / "picture.png"
        values = {"%i": str(self.demo), "%o": str(picture), "%s": "256"}
        told(*[values.get(word, word) for word in shlex.split(group["Exec"])],
             env={"PATH": "/usr/bin:/bin"})
        self.assertEqual(struct.unpack(">II", picture.read_bytes()[16:24]), (256, 160))


class Terminal(OnMachine):
    def test_the_manual_is_there(self):
        page = told("man", "velvane", env={"PATH": "/usr/bin:/bin", "MANPAGER": "cat"})
        self.assertIn("SYNOPSIS", page)
        self.assertIn("velvane", told("man", "--whatis", "velvane"))

    def test_the_manual_is_there_in_other_languages(self):
        page = told("man", "--locale=ja", "velvane",
                    env={"PATH": "/usr/bin:/bin", "MANPAGER": "cat", "LC_ALL": "C.UTF-8"})
        self.assertIn("書式", page)

    def test_the_shell_completes_it(self):
        script = ("source /usr/share/bash-completion/bash_completion; _completion_loader velvane; "
                  "COMP_WORDS=(velvane '') COMP_CWORD=1 COMP_LINE='velvane ' COMP_POINT=8; "
                  "$(complete -p velvane | sed 's/.*-F \\([^ ]*\\).*/\\1/') velvane '' velvane; "
                  "printf '%s\\n' \"${COMPREPLY[@]}\"")
        self.assertLessEqual(COMMANDS, set(told("bash", "-c", script).split()))


class Poor(OnMachine):
    """Sessions that lack what most have."""

    def start(self, **environment):
        kept = {name: os.environ[name] for name in ("HOME", "DISPLAY") if name in os.environ}
        program = subprocess.Popen(
            ["velvane", str(self.demo)], stderr=subprocess.PIPE, text=True,
            env={"PATH": "/usr/bin:/bin", **kept, **environment})
        self.addCleanup(program.stderr.close)
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        return program

    def assert_works(self, program, display=None):
        self.wait_window(self.demo.stem, display)
        program.terminate()
        self.assertEqual(program.wait(30), 0)
        self.assertEqual(program.stderr.read(), "")

    def test_without_a_session_bus_a_runtime_folder_or_a_locale(self):
        self.assert_works(self.start())

    def test_in_a_language_that_the_machine_lacks(self):
        self.assert_works(self.start(LANG="ja_JP.UTF-8"))

    def test_without_a_window_manager(self):
        server = Server()
        self.addCleanup(server.stop)
        self.assert_works(self.start(DISPLAY=server.display), server.display)

    def test_without_a_home(self):
        self.assert_works(self.start(HOME="/nowhere"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
