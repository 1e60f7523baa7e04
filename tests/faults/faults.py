#!/usr/bin/python3
"""Whatever happens while a demo is saved or kept, the old or the new one is there whole.

usage: faults.py [--all]
The program is killed at random moments, a few, or 100 with --all; every system call that writes
fails once. VELVANE_SEED chooses other moments.
"""

import errno
import os
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

KEEP_DEMOS = os.environ["VELVANE_KEEP_DEMOS"]
INJECTOR = os.environ["VELVANE_INJECTOR"]
KILLS = 100 if "--all" in sys.argv else 10
LIMIT = 60  # seconds that anything here may take on a loaded machine
LATEST = 0.05  # seconds after the first version within which the program is killed
MANY = 1_000_000

FAULTS = [("open", errno.EACCES), ("write", errno.ENOSPC), ("write", errno.EIO),
          ("sync", errno.EIO), ("rename", errno.EIO)]
if "--all" in sys.argv:
    FAULTS += [("open", errno.ENOSPC), ("open", errno.EMFILE), ("write", errno.EDQUOT),
               ("sync", errno.ENOSPC), ("rename", errno.ENOSPC)]


class Faults:
    """The tests; `write` and `read` are the helper's words, `place` what they are given."""

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="velvane-faults."))
        self.addCleanup(shutil.rmtree, self.folder)
        self.place = self.folder / "place"

    def helper(self, *arguments, **environment):
        return subprocess.run([KEEP_DEMOS, *map(str, arguments)], capture_output=True, text=True,
                              timeout=LIMIT, env={**os.environ, **environment})

    def there(self):
        """The versions that are there whole."""
        result = self.helper(self.read, self.place)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return [int(line) for line in result.stdout.split()]

    def test_killed_at_any_moment(self):
        moments = random.Random(int(os.environ.get("VELVANE_SEED", "7")))
        for _ in range(KILLS):
            moment = moments.uniform(0, LATEST)
            with self.subTest(moment=moment):
                process = subprocess.Popen([KEEP_DEMOS, self.write, str(self.place), "1", str(MANY)],
                                           stdout=subprocess.PIPE, text=True)
                told = [process.stdout.readline()]
                time.sleep(moment)
                process.send_signal(signal.SIGKILL)
                told += process.stdout.readlines()
                process.stdout.close()
                self.assertEqual(process.wait(LIMIT), -signal.SIGKILL)
                last = int(told[-1])
                versions = self.there()
                self.assertEqual(len(versions), 1)
                self.assertIn(versions[0], (last, last + 1))
            self.after_kill()

    def after_kill(self):
        pass

    def test_every_call_that_writes_fails_once(self):
        hits = {}
        for call, error in FAULTS:
            for number in range(1, 100):
                with self.subTest(call=call, number=number, error=errno.errorcode[error]):
                    if not self.fails_well(call, number, error):
                        break
                    hits[call] = number
        self.assertEqual(sorted(hits), ["open", "rename", "sync", "write"], hits)

    def fails_well(self, call, number, error):
        """Lets a call fail between two versions; False when there are not so many."""
        shutil.rmtree(self.folder)
        self.folder.mkdir()
        first = self.first_version()
        result = self.helper(self.write, self.place, 2, 2, LD_PRELOAD=INJECTOR,
                             VELVANE_FAULT=f"{call}:{number}:{error}",
                             VELVANE_FAULT_FOLDER=str(self.folder))
        lines = result.stderr.splitlines()
        came = "fault" in lines
        if result.returncode == 0:
            self.assertIn(2, self.there())
        else:
            self.assertEqual(result.returncode, 1, result.stderr)
            self.assertTrue(came, result.stderr)
            self.assertGreater(len(lines), 1, "it says why")
            self.assertEqual(self.there(), first)
        return came


class Saving(Faults, unittest.TestCase):
    write, read = "save", "saved"

    def first_version(self):
        self.assertEqual(self.helper("save", self.place, 1, 1).returncode, 0)
        return [1]

    def fails_well(self, call, number, error):
        came = super().fails_well(call, number, error)
        self.assertEqual(os.listdir(self.folder), [self.place.name], "nothing is left behind")
        return came

    def test_it_counts_as_saved_when_its_name_is_on_the_disk(self):
        self.first_version()
        # Before it come the file's own.
        result = self.helper("save", self.place, 2, 2, LD_PRELOAD=INJECTOR,
                             VELVANE_FAULT=f"sync:3:{errno.EIO}",
                             VELVANE_FAULT_FOLDER=str(self.folder))
        self.assertEqual((result.returncode, result.stderr), (0, "fault\n"))
        self.assertEqual(self.there(), [2])


class Keeping(Faults, unittest.TestCase):
    write, read = "keep", "kept"

    def first_version(self):
        """Another process has left a version before."""
        self.assertEqual(self.helper("keep", self.place, 1, 1).returncode, 0)
        return [1]

    def after_kill(self):
        shutil.rmtree(self.place)


if __name__ == "__main__":
    sys.argv = [a for a in sys.argv if a != "--all"]
    unittest.main(verbosity=2)
