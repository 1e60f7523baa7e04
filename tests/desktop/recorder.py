"""A test case in which real actions are recorded: another process posts input into real programs."""

import os
import plistlib
import re
import subprocess

from accessible import wait_for
from driver import xdotool
from fixture import PROGRAM, EditorTest
from heard import Heard

SCREEN = (1920, 1080)
START = (640.0, 400.0)
LEFT, RIGHT = 1, 3
REST = 0.6  # seconds that one rests for a place to be meant


def shown(pattern, by="--class"):
    """The windows on the screen of this class or, with --name, of this title."""
    search = ["xdotool", "search", "--onlyvisible", by, pattern]
    return subprocess.run(search, capture_output=True, text=True, check=False).stdout.split()


def active():
    """The window with the keyboard; none while the window manager passes it on."""
    command = ["xdotool", "getactivewindow"]
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout.strip()


def stacked():
    """The numbers of the root's children, the topmost first."""
    tree = subprocess.run(["xwininfo", "-root", "-children"], capture_output=True, text=True,
                          check=True).stdout
    return [int(number, 16) for number in re.findall(r"^\s+(0x[0-9a-f]+)", tree, re.M)]


def place(window):
    told = xdotool("getwindowgeometry", "--shell", window)
    values = dict(line.split("=") for line in told.split())
    return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))


def without(steps, kind):
    return [step for step in steps if step["kind"] != kind]


class RecordingTest(EditorTest):
    def setUp(self):
        super().setUp()
        # Away from where any demo starts.
        xdotool("mousemove", 5, 5)
        # On a loaded machine a key is down for long.
        subprocess.run(["xset", "r", "off"], check=True)
        self.heard = Heard()
        self.addCleanup(self.heard.close)

    def write(self, *steps, canvas=SCREEN):
        root = {"version": 1, "steps": list(steps), "startPoint": list(START),
                "canvasSize": [float(side) for side in canvas], "fps": 60}
        self.demo.write_bytes(plistlib.dumps(root, fmt=plistlib.FMT_BINARY))

    @property
    def steps(self):
        return plistlib.loads(self.demo.read_bytes())["steps"]

    def command(self, *arguments, **environment):
        process = subprocess.Popen([PROGRAM, *arguments, str(self.demo)], stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE, text=True,
                                   env={**os.environ, **environment})
        self.addCleanup(process.kill)
        return process

    def ended(self, process, status, out="", err=""):
        told = process.communicate(timeout=60)
        self.assertEqual((process.returncode, *told), (status, out, err))

    def application(self, name, *command):
        """Starts a program and waits for its window to have the keyboard."""
        process = subprocess.Popen(command, stderr=subprocess.DEVNULL)
        self.addCleanup(process.wait)
        self.addCleanup(process.terminate)
        window = wait_for(lambda: shown(f"^{name}$"), f"the window of {name}")[0]
        wait_for(lambda: active() == window, f"{name} to be active")
        return window

    def xterm(self):
        # It outlives a Ctrl-C.
        return self.application("xterm", "xterm", "-geometry", "60x20+100+200", "-e", "sh", "-c",
                                "stty -isig; exec cat")

    def mousepad(self):
        return self.application("mousepad", "mousepad", "--disable-server")

    def panel(self, text):
        return wait_for(lambda: shown(f"^{text}", "--name"), f"the panel saying {text}")[0]

    def wait_capturing(self):
        self.panel("Recording starts in")
        return self.panel("● Recording — Esc to stop")

    def record(self):
        """Starts to record from the command line."""
        process = self.command("record")
        self.wait_capturing()
        return process
