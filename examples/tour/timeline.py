"""Resolves a demo's steps into timed segments, for the check of the story."""

from dataclasses import dataclass

AIMLESS = None
SHORTEST = 0.0001  # seconds


@dataclass(frozen=True)
class Segment:
    step: int  # index in the demo's steps
    start: float
    end: float
    action: float
    start_pos: tuple
    end_pos: tuple
    held: bool


def resolve(record):
    time, position, held = 0.0, tuple(record["startPoint"]), False
    segments = []
    for index, step in enumerate(record["steps"]):
        kind = step["kind"]
        if kind == "section":
            continue
        action = max(step["duration"], SHORTEST) if kind in ("move", "type") else 0.0
        pause = step["pauseAfter"]
        end = time + max(action + pause if pause > 0 else action, SHORTEST)
        target = tuple(step["point"]) if kind == "move" else position
        segments.append(Segment(index, time, end, action, position, target, held))
        held = {"hold": True, "release": False}.get(kind, held)
        time, position = end, target
    return segments


def ease(a):
    return 4 * a ** 3 if a < 0.5 else 1 - (2 - 2 * a) ** 3 / 2


def cursor(segments, time):
    """Where the cursor is, in canvas pixels."""
    segment = next((s for s in segments if s.start <= time < s.end), segments[-1])
    if segment.action <= 0:
        return segment.end_pos
    share = ease(min(max((time - segment.start) / segment.action, 0), 1))
    return tuple(a + (b - a) * share for a, b in zip(segment.start_pos, segment.end_pos))
