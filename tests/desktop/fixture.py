"""A test case with demos made by Python's own property-list writer and one editor at a time."""

import json
import os
import plistlib
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from driver import Editor

PROGRAM = os.environ.get("VELVANE_PROGRAM", "")
CANVAS = (1280, 800)


def step(kind, **fields):
    """One step as a file may hold it: what is not named is left to the reader's defaults."""
    return {"kind": kind, **fields}


def move(x, y, **fields):
    return step("move", point=[float(x), float(y)], **fields)


def write_demo(path, *steps):
    """Writes a demo of these steps."""
    root = {
        "version": 1,
        "steps": list(steps),
        "startPoint": [640.0, 400.0],
        "canvasSize": [float(CANVAS[0]), float(CANVAS[1])],
        "fps": 60,
    }
    path.write_bytes(plistlib.dumps(root, fmt=plistlib.FMT_BINARY))


def inspect(path):
    """What the command line reads in a demo."""
    command = [PROGRAM, "inspect", str(path), "--json"]
    return json.loads(subprocess.run(command, check=True, capture_output=True).stdout)


def kinds(path):
    """The kinds of a file's steps."""
    return [step["kind"] for step in inspect(path)["steps"]]


class EditorTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="velvane-demo.")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.demo = self.folder / "demo.velvane"

    def open(self, *steps, **environment):
        """Opens an editor with a demo of these steps."""
        write_demo(self.demo, *steps)
        return self.run_editor(**environment)

    def open_empty(self, **environment):
        """Opens an editor without naming a demo: on a new one."""
        editor = Editor(PROGRAM, None, **environment)
        self.addCleanup(editor.close)
        return editor

    def open_new(self):
        """Opens an editor with a new demo, which has one step."""
        subprocess.run([PROGRAM, "new", str(self.demo)], check=True)
        return self.run_editor()

    def run_editor(self, **environment):
        editor = Editor(PROGRAM, self.demo, **environment)
        self.addCleanup(editor.close)
        return editor

    def assert_steps(self, editor, field, expected):
        """Saves and compares one field of all steps."""
        self.assertEqual([s[field] for s in editor.saved_steps()], expected)


def main():
    if not PROGRAM:
        sys.exit("set VELVANE_PROGRAM to the program under test")
    unittest.main(verbosity=2, warnings="ignore")
