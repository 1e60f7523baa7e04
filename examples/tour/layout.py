"""Where everything stands: the numbers that the drawing and the cursor's targets share."""

from dataclasses import dataclass

from .svg import Rect


@dataclass(frozen=True)
class Size:
    """One of the demos: its canvas in pixels and how much room its design has."""

    width: int
    height: int
    scale: float
    window: tuple
    notes: tuple
    inspector: int
    days: int
    hours: tuple


# The planner stands in the middle of what the top bar leaves free; the notes peek out behind it.
STANDARD = Size(1280, 800, 1.0, (92, 74, 1096, 680), (26, 134, 420, 560), 270, 5, (9, 18))
LARGE = Size(1920, 1080, 1.2, (160, 80, 1280, 768), (46, 164, 440, 604), 300, 6, (9, 19))

BAR = 28
SIDEBAR = 208
TOOLBAR = 60
DAY_HEADER = 52
GUTTER = 52


class Layout:
    """The rectangles of one size, in design units. `targets` names those the story uses."""

    def __init__(self, size):
        self.size = size
        self.width, self.height = size.width / size.scale, size.height / size.scale
        self.window = Rect(*size.window)
        self.notes = Rect(*size.notes)
        w = self.window
        self.sidebar = Rect(w.x, w.y, SIDEBAR, w.h)
        self.toolbar = Rect(w.x + SIDEBAR, w.y, w.w - SIDEBAR, TOOLBAR)
        self.inspector = Rect(w.right - size.inspector, w.y + TOOLBAR, size.inspector,
                              w.h - TOOLBAR)
        self.planner = Rect(w.x + SIDEBAR, w.y + TOOLBAR, w.w - SIDEBAR - size.inspector,
                            w.h - TOOLBAR)
        self.grid = Rect(self.planner.x + GUTTER, self.planner.y + DAY_HEADER,
                         self.planner.w - GUTTER, self.planner.h - DAY_HEADER)
        self.targets = {}
        self._toolbar_widgets()
        self._sidebar_widgets()
        self._inspector_widgets()
        self.targets["dropSlot"] = self.slot(2, 14, 16)
        self.targets["catalogue"] = self.slot(1, 12.5, 16)
        self.targets["recipes"] = self.slot(2, 11, 13)

    def slot(self, day, start, end):
        """The block of a booking: day 0 is Monday, times are hours of the day."""
        first, last = self.size.hours
        column = self.grid.w / self.size.days
        hour = self.grid.h / (last - first)
        top = self.grid.y + (start - first) * hour
        return Rect(self.grid.x + day * column + 4, top + 2, column - 8, (end - start) * hour - 3)

    def pixels(self, name):
        """A target's rectangle in canvas pixels."""
        r, s = self.targets[name], self.size.scale
        return Rect(r.x * s, r.y * s, r.w * s, r.h * s)

    def _toolbar_widgets(self):
        t = self.toolbar
        self.new_booking = Rect(t.right - 20 - 118, t.y + 14, 118, 32)
        self.search = Rect(self.new_booking.x - 12 - 168, t.y + 14, 168, 32)
        middle = Rect(t.x + 306, t.y + 14, 186, 32)
        self.views = [Rect(middle.x + 3 + i * 60, middle.y + 3, 60, 26) for i in range(3)]
        self.view_trough = middle
        self.targets["weekView"] = self.views[1]

    def _sidebar_widgets(self):
        s = self.sidebar
        self.nav = [Rect(s.x + 12, s.y + 92 + i * 34, s.w - 24, 32) for i in range(5)]
        self.unscheduled = self.nav[-1].bottom + 32
        self.cards = [Rect(s.x + 12, self.unscheduled + 14 + i * 66, s.w - 24, 58)
                      for i in range(3 if self.size.scale == 1 else 4)]
        self.targets["card"] = self.cards[0]

    def _inspector_widgets(self):
        i = self.inspector
        left, width = i.x + 20, i.w - 40
        self.client = Rect(left, i.y + 130, width, 36)
        self.room = Rect(left, self.client.bottom + 34, width, 36)
        self.crew = Rect(left, self.room.bottom + 34, width, 32)
        self.note = Rect(left, self.crew.bottom + 34, width, 64 if self.size.scale == 1 else 84)
        roomy = self.size.scale > 1
        self.kit = Rect(left, self.note.bottom + 34, width, 28) if roomy else None
        half = (width - 8) / 2
        self.save = Rect(left, i.bottom - 20 - 36, half, 36)
        self.send = Rect(left + half + 8, i.bottom - 20 - 36, half, 36)
        for name in ("client", "room", "note", "send"):
            self.targets[name] = getattr(self, name)
