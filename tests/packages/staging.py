"""The program as `cmake --install` lays it out, in a folder of the test's own."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

BUILD = Path(os.environ.get("VELVANE_BUILD", ""))
SOURCE = Path(__file__).parents[2]
APPLICATION = "com.orvikel.velvane"
MIME_TYPE = "application/vnd.orvikel.velvane"


def run(*command, **options):
    """The command's output; what went wrong is told with what it said."""
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True,
                          timeout=300, **options)
    if done.returncode:
        raise AssertionError(f"{command} ended with {done.returncode}\n{done.stdout}{done.stderr}")
    return done.stdout


class Staged(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="velvane-staged.")
        cls.addClassCleanup(folder.cleanup)
        cls.prefix = Path(folder.name)
        run("cmake", "--install", BUILD, "--prefix", cls.prefix)
        cls.share = cls.prefix / "share"
        cls.program = cls.prefix / "bin" / "velvane"

    def scratch(self):
        folder = tempfile.TemporaryDirectory(prefix="velvane-packages.")
        self.addCleanup(folder.cleanup)
        return Path(folder.name)


def main():
    if not BUILD.is_dir():
        sys.exit("set VELVANE_BUILD to the build's folder")
    unittest.main(verbosity=2, warnings="ignore")
