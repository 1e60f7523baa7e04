#!/usr/bin/python3
"""Ends a live run in its middle, as a person or a crash does: Esc at any moment of the bundled
demo, and a display that goes away.

usage: stopping.py [--all]
Esc at a few moments; with --all at many. VELVANE_SEED chooses others.
"""

import contextlib
import os
import plistlib
import random
import subprocess
import sys
from pathlib import Path

from accessible import wait_for
from driver import active_window, xdotool
from fixture import PROGRAM, EditorTest, main, move, step, write_demo
from heard import Heard
from keyboard import keyboard_map
from live_fixture import START, TOUR, pointer_at
from server import Server

MOMENTS = 20 if "--all" in sys.argv else 3
QUICKER = 6  # how many times quicker than its author wrote it the demo runs here
LATE = 100  # milliseconds that a loaded machine may take to tell the program of the key
TRIES = 3  # at one moment, until the machine has told it soon
ESCAPE = 9  # its key, and what is heard of it


def quick_tour():
    tour = plistlib.loads(TOUR.read_bytes())
    for a_step in tour["steps"]:
        for field in ("duration", "pauseAfter"):
            a_step[field] = a_step.get(field, 0.0) / QUICKER
    return plistlib.dumps(tour, fmt=plistlib.FMT_BINARY)


class EscapeAtAnyMoment(EditorTest):
    def setUp(self):
        super().setUp()
        self.demo.write_bytes(quick_tour())
        self.editor = self.run_editor()
        self.window = active_window()
        self.heard = Heard()
        self.addCleanup(self.heard.close)

    def start(self):
        """Starts a run; what is heard from here on is the run's."""
        self.editor.key("ctrl+r")
        self.editor.wait(self.runs, "the run")

    def runs(self):
        """Whether the capsule over the window says so."""
        return any(node.name.startswith("Live run in") for node in self.editor.root.walk(True))

    def wait_end(self, status):
        # The status may still be that of the run before.
        self.editor.wait(lambda: not self.runs(), "the end of the run")
        self.editor.wait_status(status)

    def test_it_stops_within_one_event_with_nothing_held_and_the_editor_back(self):
        since = self.heard.forget()
        self.start()
        self.wait_end("Live run finished.")
        length = len(self.heard.events) - since
        before = keyboard_map()
        seed = int(os.environ.get("VELVANE_SEED", "5"))
        for event in random.Random(seed).sample(range(length * 9 // 10), MOMENTS):
            with self.subTest(event=event, of=length):
                self.stop_after(event)
                self.assertEqual(self.heard.held(), set())
                self.assertTrue(keyboard_map() == before, "the keyboard map is not the one before")
                self.editor.wait(lambda: active_window() == self.window,
                                 "the editor in front")

    def stop_after(self, event):
        """Runs the demo and presses Esc as soon as so many events have been heard: of the run at
        most one more begins, the one that was on its way.

        Until the program has heard of the key it cannot but go on; who is late there is the
        machine, whose other work is not the same at each try.
        """
        for _ in range(TRIES):
            begun, late = self.stop_once(event)
            self.assertLess(late, LATE)
            if begun <= 1:
                return
        self.fail(f"at each of {TRIES} tries more than one event began after Esc")

    def stop_once(self, event):
        """How many events began after Esc, and the milliseconds after it that the last did."""
        since = self.heard.forget()
        self.start()
        wait_for(lambda: len(self.heard.events) - since > event, "the moment")
        xdotool("key", "Escape")
        self.wait_end("Live run stopped.")
        events = self.heard.events[since:]
        pressed = next(i for i, e in enumerate(events) if e[1:3] == ("key-down", ESCAPE))
        begun = beginnings([e for e in events[pressed + 1:] if e[2] != ESCAPE])
        late = begun[-1] - events[pressed][0] if begun else 0
        print(f"event {event} of {len(events)}: {len(begun)} begun after Esc, the last {late} ms "
              "after it", file=sys.stderr)
        return len(begun), late


def beginnings(events):
    """When each of the driver's events began: keys and buttons that are pressed together are one,
    and what comes up has begun before."""
    times, together = [], 0
    for time, kind, *_ in events:
        if kind.endswith("up"):
            together = max(together - 1, 0)
            continue
        if kind == "motion" or together == 0:
            times.append(time)
        together += kind.endswith("down")
    return times


class LostDisplay(EditorTest):
    """The display goes while the editor performs a demo on it."""

    def setUp(self):
        super().setUp()
        self.server = Server()
        self.addCleanup(self.server.stop)
        self.environment = {**os.environ, "DISPLAY": self.server.display,
                            "HOME": str(self.folder), "VELVANE_SCHEME": "dark"}
        self.spawn("openbox")

    def spawn(self, *command):
        process = subprocess.Popen(command, env=self.environment, stderr=subprocess.DEVNULL)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        return process

    def key(self, *keys):
        subprocess.run(["xdotool", "key", *keys], env=self.environment, check=True)

    def running(self):
        """The processes of the program on that display."""
        found = []
        for process in Path("/proc").glob("[0-9]*"):
            # Any may end meanwhile.
            with contextlib.suppress(OSError):
                environment = (process / "environ").read_bytes().split(b"\0")
                command = (process / "cmdline").read_bytes().split(b"\0")[0].decode()
                if (f"DISPLAY={self.server.display}".encode() in environment
                        and Path(command).name.startswith("velvane")):
                    found.append(process.name)
        return found

    def active(self):
        return subprocess.run(["xdotool", "getactivewindow", "getwindowname"],
                              env=self.environment, capture_output=True, text=True,
                              check=False).stdout

    def test_the_editor_ends_with_its_file_whole_and_nothing_left_running(self):
        write_demo(self.demo, step("hold"), move(900, 700, duration=60.0))
        whole = self.demo.read_bytes()
        files = sorted(self.folder.iterdir())
        editor = self.spawn(PROGRAM, str(self.demo))
        wait_for(lambda: "demo" in self.active(), "the editor")
        self.key("ctrl+r")
        wait_for(lambda: pointer_at(self.server.display)[0] > START[0], "a drag under way")
        self.assertEqual(len(self.running()), 2, "the program and its watchdog")
        self.server.stop()
        wait_for(lambda: editor.poll() is not None, "the editor to end")
        self.assertEqual(editor.returncode, 1)
        wait_for(lambda: not self.running(), "its watchdog to end")
        self.assertEqual(self.demo.read_bytes(), whole)
        self.assertEqual([f for f in sorted(self.folder.iterdir()) if not f.name.startswith(".")],
                         files)


if __name__ == "__main__":
    sys.argv = [a for a in sys.argv if a != "--all"]
    main()
