"""The steps of the demo: what the cursor does, where and for how long."""

import uuid

from . import layout as places
from .timeline import AIMLESS

NAMESPACE = uuid.UUID("6f1c1d0e-52b4-4c55-9a57-2f3e8f0a7c11")
COMMAND = 0x100000
KEY_S = 1  # by place on an ANSI keyboard

# Beside the window, in fractions of the canvas. The cursor starts and ends here, so that a movie
# played in a loop shows no jump.
REST = (0.958, 0.62)


def on_canvas(size, x, y):
    return (float(int(size.width * x + 0.5)), float(int(size.height * y + 0.5)))


class Story:
    """Builds steps one after another; points are the canvas pixels of the layout's targets."""

    def __init__(self, name, layout):
        self._name, self._layout = name, layout
        self.steps = []
        self.aims = []  # the target each step's cursor rests on, beside `steps`
        self._aim = AIMLESS

    def add(self, kind, pause, point=(0.0, 0.0), **fields):
        step = {
            # Stable, so that writing the demo again gives the same file.
            "id": str(uuid.uuid5(NAMESPACE, f"{self._name} {len(self.steps)}")).upper(),
            "kind": kind,
            "point": [float(point[0]), float(point[1])],
            "text": "",
            "duration": 1.0,
            "pauseAfter": float(pause),
            "keyCode": 0,
            "modifiers": 0,
            "centerWindow": False,
            "collapsed": False,
        }
        step.update(fields)
        self.steps.append(step)
        self.aims.append(self._aim)

    def section(self, title):
        self.add("section", 0, text=title)

    def move(self, target, seconds, pause, at=(0.5, 0.5)):
        """Glides to a place in a target, given as fractions of its width and height."""
        self._aim = target
        x, y = self._layout.pixels(target).at(*at)
        self.add("move", pause, (int(x + 0.5), int(y + 0.5)), duration=float(seconds))

    def move_to(self, x, y, seconds, pause):
        """Glides to no target; x and y are fractions of the canvas."""
        self._aim = AIMLESS
        self.add("move", pause, on_canvas(self._layout.size, x, y), duration=float(seconds))

    def type(self, text, seconds, pause):
        self.add("type", pause, text=text, duration=float(seconds))


def tell(name, layout):
    """The whole demo, about half a minute."""
    s = Story(name, layout)
    s.add("switchApp", 1.4, text="Wrenfield", centerWindow=True)

    s.section("Find the booking")
    s.move("weekView", 1.1, 0.25, at=(0.5, 0.55))
    s.add("click", 0.5)
    s.move("catalogue", 1.1, 0.25, at=(0.45, 0.5))
    s.add("click", 0.7)

    s.section("Add the client")
    s.move("client", 1.2, 0.2, at=(0.5, 0.5))
    s.add("click", 0.5)
    s.type("Zoë Lindqvist", 1.8, 1.0)
    s.move("room", 0.7, 0.2, at=(0.6, 0.5))
    s.add("click", 0.6)

    s.section("Plan by dragging")
    s.move("card", 1.4, 0.25, at=(0.55, 0.45))
    s.add("hold", 0.5)
    s.move("card", 0.4, 0.0, at=(0.62, 0.2))
    s.move("dropSlot", 1.3, 0.35, at=(0.5, 0.3))
    s.add("release", 0.8)
    s.move("recipes", 0.9, 0.2, at=(0.5, 0.55))
    s.add("rightClick", 1.0)

    s.section("Save and send")
    s.move("note", 1.2, 0.2, at=(0.62, 0.62))
    s.add("click", 0.5)
    s.type("Doors open at 12:15", 2.0, 0.9)
    s.add("shortcut", 1.3, text="S", keyCode=KEY_S, modifiers=COMMAND)
    # Beside the label, so that the arrow does not hide it.
    s.move("send", 0.9, 0.3, at=(0.84, 0.6))
    s.add("click", 0.8)
    s.add("wait", 0.8)
    s.move_to(*REST, 0.9, 1.2)
    return s


DEMOS = {"tour": places.STANDARD, "tour-1080p": places.LARGE}


def demo(name, background):
    """The root record of a demo file and the story it was made from."""
    size = DEMOS[name]
    story = tell(name, places.Layout(size))
    record = {
        "version": 1,
        "steps": story.steps,
        "startPoint": list(on_canvas(size, *REST)),
        "canvasSize": [float(size.width), float(size.height)],
        "fps": 60,
        "background": background,
    }
    return record, story
