"""A test case for live runs: what is heard of them, and runs from the command line."""

import os
import plistlib
import subprocess
from pathlib import Path

from driver import xdotool
from fixture import CANVAS, PROGRAM, EditorTest
from heard import Heard, clicks

TOUR = Path(__file__).parents[2] / "examples" / "tour.velvane"
START = (640.0, 400.0)


class LiveTest(EditorTest):
    def setUp(self):
        super().setUp()
        # Away from where any demo starts.
        xdotool("mousemove", 5, 5)
        self.heard = Heard()
        self.addCleanup(self.heard.close)

    def write(self, *steps):
        root = {"version": 1, "steps": list(steps), "startPoint": list(START),
                "canvasSize": [float(side) for side in CANVAS], "fps": 60}
        self.demo.write_bytes(plistlib.dumps(root, fmt=plistlib.FMT_BINARY))

    def start(self, *options, demo=None, **environment):
        """Starts a run from the command line."""
        process = subprocess.Popen(
            [PROGRAM, "run", str(demo or self.demo), *options],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
            env={**os.environ, "XDG_DATA_HOME": str(self.folder / "data"), **environment})
        self.addCleanup(process.kill)
        return process

    def install(self, name, lines):
        """Makes a .desktop entry that a run from the command line finds."""
        entry = self.folder / "data" / "applications" / f"{name}.desktop"
        entry.parent.mkdir(parents=True)
        entry.write_text(f"[Desktop Entry]\nType=Application\nName={name}\n{lines}")

    def ended(self, process, status, out="", err=None):
        told = process.communicate(timeout=60)
        self.assertEqual((process.returncode, told[0]), (status, out), told[1])
        if err is not None:
            self.assertEqual(told[1], err)
        return told[1]

    def assert_buttons(self, steps, start=START, since=0):
        self.assertEqual(self.heard.buttons(since), clicks(steps, start))


def shown(name):
    """The windows on the screen whose class is this."""
    # Finding none counts as a failure.
    search = ["xdotool", "search", "--onlyvisible", "--class", name]
    return subprocess.run(search, capture_output=True, text=True, check=False).stdout.split()


def is_minimized(window):
    # A compositing window manager may keep it mapped.
    command = ["xprop", "-id", window, "_NET_WM_STATE"]
    return "_NET_WM_STATE_HIDDEN" in subprocess.run(command, capture_output=True, text=True,
                                                    check=True).stdout


def pointer_at(display):
    told = subprocess.run(["xdotool", "getmouselocation", "--shell"], capture_output=True,
                          text=True, env={**os.environ, "DISPLAY": display}, check=False).stdout
    values = dict(line.split("=") for line in told.split())
    return (int(values.get("X", -1)), int(values.get("Y", -1)))
