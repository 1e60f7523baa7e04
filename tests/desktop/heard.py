"""What an independent listener hears of mouse and keyboard, and what a demo's steps should make it
hear."""

import os
import subprocess
import tempfile
from pathlib import Path

from accessible import wait_for

LISTENER = os.environ.get("VELVANE_LISTENER", "")
LEFT, RIGHT = 1, 3


class Heard:
    """The listener's lines so far, each (milliseconds, kind, detail, x, y, state)."""

    def __init__(self):
        self.folder = tempfile.TemporaryDirectory(prefix="velvane-heard.")
        self.file = Path(self.folder.name) / "events"
        self.process = subprocess.Popen([LISTENER, str(self.file)])
        wait_for(lambda: self.file.exists() and "ready" in self.file.read_text(), "the listener")

    def close(self):
        self.process.terminate()
        self.process.wait()
        self.folder.cleanup()

    @property
    def events(self):
        lines = self.file.read_text().split("\n")
        # The last line may still be on its way.
        words = [line.split() for line in lines[:-1] if line != "ready"]
        return [(int(w[0]), w[1], *map(int, w[2:])) for w in words]

    def forget(self):
        """Lines from here on only; returns how many there were."""
        return len(self.events)

    def buttons(self, since=0):
        """The buttons pressed and released: (kind, button, x, y)."""
        return [event[1:5] for event in self.events[since:] if event[1].startswith("button")]

    def keys(self, since=0):
        return [event[1:3] for event in self.events[since:] if event[1].startswith("key")]

    def motions(self, since=0):
        """Where the pointer was moved to, and when: (milliseconds, x, y, left button held)."""
        return [
            (time, x, y, bool(state & 0x100))
            for time, kind, _, x, y, state in self.events[since:]
            if kind == "motion"
        ]

    def held(self):
        """Buttons and keys that went down and not up again."""
        down = set()
        for _, kind, detail, *_ in self.events:
            device, way = kind.split("-") if "-" in kind else (kind, "")
            if way == "down":
                down.add((device, detail))
            elif way == "up":
                down.discard((device, detail))
        return down


def eased(a):
    return 4 * a**3 if a < 0.5 else 1 - (2 - 2 * a) ** 3 / 2


def travel(start, end, duration, fps=60):
    """The points of a cursor's way."""
    count = max(1, int(duration * max(fps, 30)))
    return [
        tuple(a + (b - a) * eased(k / count) for a, b in zip(start, end)) for k in range(count + 1)
    ]


def clicks(steps, start):
    """The buttons that the steps press and release: (kind, button, x, y)."""
    place, held, expected = start, False, []
    for step in steps:
        kind = step["kind"]
        if kind == "move":
            place = tuple(step["point"])
        elif kind in ("click", "rightClick"):
            button = LEFT if kind == "click" else RIGHT
            expected += [("button-down", button, *place), ("button-up", button, *place)]
        elif kind == "hold":
            held = True
            expected.append(("button-down", LEFT, *place))
        elif kind == "release":
            held = False
            expected.append(("button-up", LEFT, *place))
    if held:
        expected.append(("button-up", LEFT, *place))
    return expected
