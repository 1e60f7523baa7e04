"""Looks for what would spoil the demo: missed targets, hidden targets, a wrong length."""

from .layout import Layout
from .story import DEMOS
from .svg import Rect
from .timeline import AIMLESS, cursor, resolve

SHORTEST, LONGEST = 28.0, 32.0  # seconds
KINDS = {"move", "click", "rightClick", "hold", "release", "type", "shortcut", "wait",
         "switchApp", "section"}
TIP = 2  # the tip stays this many pixels inside its target

# The caption's pill, in canvas pixels. No letter of the caption's face is wider than the bound.
PILL_ABOVE_BOTTOM, PILL_HEIGHT, PILL_ENDS, WIDEST_LETTER = 48, 56, 44, 26
ARROW_WIDTH, ARROW_HEIGHT = 30, 42


def problems(name, record, story):
    """Sentences, none when all is well."""
    layout = Layout(DEMOS[name])
    segments = resolve(record)
    yield from _length(segments)
    yield from _vocabulary(record)
    for segment in segments:
        step, aim = record["steps"][segment.step], story.aims[segment.step]
        where = f"step {segment.step} ({step['kind']})"
        if aim is not AIMLESS:
            target = layout.pixels(aim)
            if not contains(target.inset(TIP), cursor(segments, segment.end - 1e-9)):
                yield f"{where} does not rest inside “{aim}”"
            if _caption(step) and overlap(_pill(layout, step), target):
                yield f"{where}: the caption covers “{aim}”"
        if _caption(step) and overlap(_pill(layout, step), _arrow(segment.end_pos)):
            yield f"{where}: the caption covers the cursor"


def _length(segments):
    total = segments[-1].end
    if not SHORTEST <= total <= LONGEST:
        yield f"lasts {total:.2f} s, not {SHORTEST:g} to {LONGEST:g} s"
    if segments[-1].held:
        yield "ends with the button held"


def _vocabulary(record):
    steps = record["steps"]
    missing = KINDS - {step["kind"] for step in steps}
    if missing:
        yield "never uses " + ", ".join(sorted(missing))
    if len({step["id"] for step in steps}) != len(steps):
        yield "has two steps with one id"
    drag = [s["kind"] for s in steps if s["kind"] in ("hold", "move", "release")]
    if "hold" not in drag or drag[drag.index("hold") + 1] != "move":
        yield "holds the button without dragging"


def _caption(step):
    return {"type": step["text"], "switchApp": "→ " + step["text"],
            "shortcut": "⌘" + step["text"]}.get(step["kind"], "")


def _pill(layout, step):
    size = layout.size
    width = len(_caption(step)) * WIDEST_LETTER + PILL_ENDS
    return Rect((size.width - width) / 2, size.height - PILL_ABOVE_BOTTOM - PILL_HEIGHT, width,
                PILL_HEIGHT)


def _arrow(tip):
    return Rect(tip[0] - 4, tip[1] - 4, ARROW_WIDTH, ARROW_HEIGHT)


def contains(r, point):
    return r.x <= point[0] <= r.right and r.y <= point[1] <= r.bottom


def overlap(a, b):
    return a.x < b.right and b.x < a.right and a.y < b.bottom and b.y < a.bottom
