#!/usr/bin/python3
"""Whenever a recorded run is killed, its movie opens, holds what was to be seen, each at its time,
and reaches to within the last second.

usage: killing.py [--all]
A few moments at random, or 100 with --all. VELVANE_SEED chooses other moments.
"""

import os
import plistlib
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

from accessible import wait_for
from driver import xdotool
from fixture import CANVAS, PROGRAM, main, step

READER = os.environ["VELVANE_READ_MOVIE"]
SCENE = os.environ["VELVANE_COLOUR_SCENE"]
ALL = "--all" in sys.argv
KILLS = 100 if ALL else 4
SPAN = 6.0 if ALL else 2.5  # seconds after the first picture within which the program is killed
PLACE = (200, 150)
FRAME = 1 / 60
NUMBERS = 64  # after so many the colours come again
LIMIT = 60  # seconds that anything here may take on a loaded machine


def number_of(colour):
    """Which change a colour stands for."""
    red, green, _ = colour
    steps = [round((value - 16) / 32) for value in (red, green)]
    near = all(abs(16 + 32 * count - value) <= 8 for count, value in zip(steps, (red, green)))
    return steps[0] + 8 * steps[1] if near else None


class Scene:
    """What is on the screen, and when it came there."""

    def __init__(self, seed):
        self.process = subprocess.Popen([SCENE, str(seed)], stdout=subprocess.PIPE, text=True)
        self.told = [self.next()]

    def changes(self, until):
        """(earliest, latest, late) of each change up to the first after that moment, in seconds."""
        while self.told[-1][0] < until:
            self.told.append(self.next())
        return self.told

    def next(self):
        _, *times = self.process.stdout.readline().split()
        return [float(time) for time in times]

    def end(self):
        self.process.kill()
        self.process.stdout.close()
        self.process.wait(LIMIT)


class Killing(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="velvane-killing."))
        self.addCleanup(shutil.rmtree, self.folder)
        self.movies = self.folder / "Movies" / "Velvane"
        self.demo = self.folder / "demo.velvane"
        root = {"version": 1, "steps": [step("wait", pauseAfter=3600.0)], "startPoint": [0.0, 0.0],
                "canvasSize": [float(side) for side in CANVAS], "fps": 60}
        self.demo.write_bytes(plistlib.dumps(root, fmt=plistlib.FMT_BINARY))
        xdotool("mousemove", 5, 5)

    def test_killed_at_any_moment(self):
        moments = random.Random(int(os.environ.get("VELVANE_SEED", "7")))
        lacks = []
        for kill in range(KILLS):
            moment = moments.uniform(0, SPAN)
            with self.subTest(kill=kill, moment=moment):
                scene = Scene(kill)
                try:
                    movie, killed = self.record(moment)
                    lacks.append(self.check(movie, killed, scene.changes(killed)))
                finally:
                    scene.end()
                    shutil.rmtree(self.movies, ignore_errors=True)
                self.assertLessEqual(lacks[-1], 1.0)
        if lacks:
            print(f"{len(lacks)} movies end {min(lacks):.3f} to {max(lacks):.3f} s before the "
                  f"kill, {sum(lacks) / len(lacks):.3f} s on average", file=sys.stderr)

    def record(self, moment):
        """The movie of a run killed so many seconds after its first picture, and when it had gone."""
        process = subprocess.Popen(
            [PROGRAM, "run", str(self.demo), "--no-countdown", "--record", "screen"],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            env={**os.environ, "HOME": str(self.folder)})
        try:
            movie = wait_for(self.begun, "a recording under way")
            time.sleep(moment)
        finally:
            process.send_signal(signal.SIGKILL)
            process.wait(LIMIT)
        return movie, time.monotonic()

    def begun(self):
        movies = list(self.movies.glob("*.mp4"))
        return movies and b"moof" in movies[0].read_bytes()[:4096] and movies[0]

    def read(self, movie):
        """Its duration, and each picture's time and which change it shows."""
        told = subprocess.run([READER, str(movie), *map(str, PLACE)], capture_output=True,
                              text=True, timeout=LIMIT, check=False)
        self.assertEqual((told.returncode, told.stderr), (0, ""))
        duration, *pictures = told.stdout.splitlines()
        self.assertAlmostEqual(self.told_by_ffprobe(movie), float(duration), 2)
        shown = []
        for line in pictures:
            at, *colour = line.split()
            number = number_of([int(value) for value in colour])
            self.assertIsNotNone(number, line)
            shown.append((float(at), number))
        return float(duration), shown

    @staticmethod
    def told_by_ffprobe(movie):
        """The duration that another program reads."""
        command = ["ffprobe", "-v", "error", "-show_entries", "format=duration", "-of", "csv=p=0",
                   str(movie)]
        return float(subprocess.run(command, capture_output=True, text=True, timeout=LIMIT,
                                    check=True).stdout)

    def check(self, movie, killed, changes):
        """Every picture is what was to be seen at its time; how many seconds the movie lacks."""
        duration, shown = self.read(movie)
        self.assertLess(len(changes), NUMBERS)
        self.assertLessEqual(shown[-1][0], duration)
        # What a picture shows came before its time, and the next change after it: so the movie
        # began between two moments. The first picture counts as taken at the beginning, which was
        # earlier.
        earliest = max((changes[number][0] - at for at, number in shown[1:]), default=0)
        latest = min(changes[number + 1][1] - at for at, number in shown)
        late = max(late for _, _, late in changes)  # a busy machine, from a picture's time to it
        self.assertLessEqual(earliest, latest + FRAME + late)
        # That it has seen changes at all says which of the moments it was.
        begun = earliest if len({number for _, number in shown}) > 1 else self.created()
        return killed - begun - duration

    def created(self):
        """When the movie's file came into its folder, at which moment it has just begun."""
        return self.movies.stat().st_mtime - time.time() + time.monotonic()


if __name__ == "__main__":
    sys.argv = [argument for argument in sys.argv if argument != "--all"]
    main()
