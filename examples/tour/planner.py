"""The planner's window: side bar, tool bar and the week."""

from .desktop import leaf, window_frame
from .layout import DAY_HEADER
from .style import (ACCENT, BORDER, CORAL, HAIRLINE, INK, NIGHT, NIGHT_RAISED, NIGHT_SECONDARY,
                    NIGHT_SELECTED, NIGHT_TEXT, OCHRE, SECONDARY, TEAL, TERTIARY, VIOLET,
                    WHITE)
from .svg import Rect

NOW = 10.4  # hours of the day, as the clock in the top bar
TODAY = 1   # Tuesday

# Each day with the width of its name.
DAYS = (("Mon", 28), ("Tue", 25), ("Wed", 29), ("Thu", 25), ("Fri", 17), ("Sat", 22))

ICONS = {
    "Planner": "M2.5 3.5H13.5V13.5H2.5ZM2.5 6.8H13.5M5.5 2V4.6M10.5 2V4.6",
    "Bookings": "M5.5 4H13.5M5.5 8H13.5M5.5 12H13.5M2.5 4H2.6M2.5 8H2.6M2.5 12H2.6",
    "Clients": "M8 8A2.7 2.7 0 1 0 8 2.6A2.7 2.7 0 1 0 8 8M2.8 13.6C3.4 10.9 5.4 9.9 8 9.9"
               "S12.6 10.9 13.2 13.6",
    "Rooms": "M4 14V2.5H12V14M2.5 14H13.5M9.4 8.2H9.5",
    "Invoices": "M3.5 2.2H12.5V14L10.2 12.6L8 14L5.8 12.6L3.5 14ZM6 5.6H10M6 8.6H10",
}


def draw(svg, layout):
    window_frame(svg, layout.window)
    side_bar(svg, layout)
    tool_bar(svg, layout)
    day_headers(svg, layout)
    hours(svg, layout)
    bookings(svg, layout)
    now_line(svg, layout)


def side_bar(svg, layout):
    s = layout.sidebar
    # Each half of the window has its own round corners: one colour over another would show as a
    # fringe. The square strips undo the corners in the middle.
    svg.rect(s, NIGHT, 12)
    svg.rect(Rect(s.right - 14, s.y, 14, s.h), NIGHT)
    svg.rect(Rect(s.right, s.y, layout.window.w - s.w, s.h), WHITE, 12)
    svg.rect(Rect(s.right, s.y, 14, s.h), WHITE)
    for i in range(3):
        svg.circle(s.x + 22 + i * 18, s.y + 24, 5.5, "#3F656A")
    svg.rect(Rect(s.x + 20, s.y + 50, 28, 28), ACCENT, 8)
    leaf(svg, s.x + 26, s.y + 55.5, 16, WHITE)
    svg.text(s.x + 58, s.y + 69.5, "Wrenfield", 16, WHITE, 700, spacing=-0.1)
    for r, name in zip(layout.nav, ICONS):
        navigation_row(svg, r, name, selected=name == "Planner")
    unscheduled(svg, layout)
    account(svg, s)


def navigation_row(svg, r, name, selected):
    colour = WHITE if selected else NIGHT_SECONDARY
    if selected:
        svg.rect(r, NIGHT_SELECTED, 8)
    svg.path(ICONS[name], r.x + 10, r.y + 8, stroke=colour, line=1.4)
    svg.text(r.x + 36, r.y + 20.5, name, 13, WHITE if selected else "#CFE0DF",
             600 if selected else 400)
    if name == "Invoices":
        svg.rect(Rect(r.right - 32, r.y + 7, 22, 18), NIGHT_SELECTED, 9)
        svg.text(r.right - 21, r.y + 20, "3", 11, NIGHT_TEXT, 600, "middle")


def unscheduled(svg, layout):
    s = layout.sidebar
    y = layout.unscheduled
    svg.text(s.x + 22, y, "Unscheduled", 12, NIGHT_SECONDARY, 600)
    svg.text(s.right - 22, y, str(len(layout.cards)), 12, NIGHT_SECONDARY, 500, "end")
    words = (("Voice-over, part 3", "Pilar Anders", "2 h", VIOLET),
             ("Ceramics, second set", "Tomasz Brandt", "3 h", CORAL),
             ("Interview, two chairs", "Ada Fennimore", "1 h", TEAL),
             ("Bread and butter", "Juno Halloran", "2 h", OCHRE))
    for r, (title, client, length, colours) in zip(layout.cards, words):
        svg.rect(r, NIGHT_RAISED, 9)
        svg.rect(Rect(r.x + 10, r.y + 12, 3, r.h - 24), colours[1], 1.5)
        svg.text(r.x + 22, r.y + 25, title, 12.5, NIGHT_TEXT, 600)
        svg.text(r.x + 22, r.y + 43, client, 12, NIGHT_SECONDARY)
        svg.text(r.right - 12, r.y + 43, length, 12, NIGHT_SECONDARY, 500, "end")


def account(svg, s):
    y = s.bottom - 34
    svg.circle(s.x + 34, y, 14, "#D98B6C")
    svg.text(s.x + 34, y + 4, "IM", 11, WHITE, 700, "middle")
    svg.text(s.x + 58, y - 2.5, "Inês Moreau", 12.5, NIGHT_TEXT, 600)
    svg.text(s.x + 58, y + 13.5, "Studio manager", 11.5, NIGHT_SECONDARY)


def tool_bar(svg, layout):
    t = layout.toolbar
    x, y = t.x + 20, t.y + 14
    svg.text(x, t.y + 36.5, f"18 – {17 + layout.size.days} May", 18, INK, 700,
             family="Inter Display")
    for i, d in enumerate(("M9 4.5L5.5 8L9 11.5", "M7 4.5L10.5 8L7 11.5")):
        r = Rect(x + 122 + i * 34, y, 34, 32)
        svg.path(d, r.x + 9, r.y + 8, stroke=SECONDARY, line=1.6)
    svg.rect(Rect(x + 198, y, 68, 32), WHITE, 8, BORDER)
    svg.text(x + 232, y + 20.5, "Today", 13, INK, 500, "middle")
    svg.rect(layout.view_trough, "#EDF0F1", 8)
    for i, (r, name) in enumerate(zip(layout.views, ("Day", "Week", "Month"))):
        if i == 1:
            svg.rect(r, ACCENT, 6)
        svg.text(r.mid_x, r.y + 17.5, name, 13, WHITE if i == 1 else SECONDARY,
                 600 if i == 1 else 500, "middle")
    search(svg, layout.search)
    b = layout.new_booking
    svg.rect(b, INK, 8)
    svg.path("M8 4V12M4 8H12", b.x + 8, b.y + 8, stroke=WHITE, line=1.7)
    svg.text(b.x + 29, b.y + 20.5, "New booking", 12.5, WHITE, 600)
    svg.hline(t.x, t.right, t.bottom - 1, HAIRLINE)


def search(svg, r):
    svg.rect(r, "#F3F5F6", 8)
    svg.path("M7.2 11.4A4.2 4.2 0 1 0 7.2 3A4.2 4.2 0 1 0 7.2 11.4M10.4 10.4L13 13", r.x + 9,
             r.y + 8, stroke=TERTIARY, line=1.5)
    svg.text(r.x + 33, r.y + 20.5, "Search bookings", 13, TERTIARY)


def day_headers(svg, layout):
    p, g = layout.planner, layout.grid
    column = g.w / layout.size.days
    for i in range(layout.size.days):
        x = g.x + i * column
        name, width = DAYS[i]
        number = x + 12 + width + 16
        today = i == TODAY
        svg.text(x + 12, p.y + 31, name, 13, ACCENT if today else SECONDARY, 600 if today else 500)
        if today:
            svg.circle(number, p.y + 26.5, 13, ACCENT)
        svg.text(number, p.y + 31.5, str(18 + i), 14, WHITE if today else INK, 600, "middle")
    svg.hline(p.x, p.right, p.y + DAY_HEADER - 1, HAIRLINE)


def hours(svg, layout):
    g = layout.grid
    first, last = layout.size.hours
    column, hour = g.w / layout.size.days, g.h / (last - first)
    today = Rect(g.x + TODAY * column, g.y, column, g.h)
    svg.rect(today, "#F5FAF9")
    for i in range(1, last - first):
        y = g.y + i * hour
        svg.hline(g.x, g.right, y, HAIRLINE)
        svg.text(g.x - 10, y + 4, f"{first + i}:00", 11, TERTIARY, 400, "end")
    for i in range(layout.size.days):
        svg.vline(g.x + i * column, g.y - 14, g.bottom, HAIRLINE)


# Day, start and end in hours, title, client, colours. Days are counted from Monday.
WEEK = (
    (0, 9.5, 12, "Ceramics", "Tomasz Brandt", CORAL),
    (0, 12.5, 14, "Voice-over, 2", "Pilar Anders", VIOLET),
    (0, 14.5, 17, "Set build", "North room", OCHRE),
    (1, 9.5, 12, "City choir", "Cover portraits", CORAL),
    (2, 9, 10.5, "Morning talk", "Live audio", VIOLET),
    (2, 11, 13, "Soup and salt", "Juno Halloran", OCHRE),
    (3, 10, 13, "Linen stills", "Hollis Ware", CORAL),
    (3, 13.5, 14.5, "Walk-through", "Roof light", TEAL),
    (3, 15, 16.5, "Dance duo", "Rehearsal", VIOLET),
    (4, 9.5, 11, "Casting", "Six people", TEAL),
    (4, 11.5, 14, "Paper goods", "Ada Fennimore", CORAL),
    (4, 15, 17, "Strike", "North room", OCHRE),
    (5, 10, 14, "Open house", "All rooms", TEAL),
    (5, 15, 18, "Rooftop set", "Hollis Ware", CORAL),
    (1, 17, 18.5, "Evening class", "Light and lens", VIOLET),
)


def bookings(svg, layout):
    last = layout.size.hours[1]
    for day, start, end, title, client, colours in WEEK:
        if day < layout.size.days and end <= last - 0.5:
            booking(svg, layout.slot(day, start, end), clock(start, end), title, client, colours)
    selected(svg, layout.targets["catalogue"])
    drop_slot(svg, layout.targets["dropSlot"])


def clock(start, end):
    def spell(hour):
        return f"{int(hour)}:{int(hour % 1 * 60):02}"
    return f"{spell(start)} – {spell(end)}"


def booking(svg, r, times, title, client, colours):
    fill, bar, ink, detail = colours
    svg.rect(r, fill, 7)
    svg.rect(Rect(r.x + 5, r.y + 7, 3, r.h - 14), bar, 1.5)
    svg.text(r.x + 15, r.y + 20, title, 12.5, ink, 600)
    svg.text(r.x + 15, r.y + 36, client, 11.5, detail, 400)
    if r.h > 76:
        svg.text(r.x + 15, r.bottom - 11, times, 11, detail, 400)


def selected(svg, r):
    svg.shadow(r, 7, "#0B4F48", 0.35, 5, 7)
    svg.rect(r, ACCENT, 7)
    svg.text(r.x + 13, r.y + 20, "Autumn", 12.5, WHITE, 700)
    svg.text(r.x + 13, r.y + 36, "catalogue", 12.5, WHITE, 700)
    svg.text(r.x + 13, r.y + 54, "Daylight room", 11.5, "#CDEBE6", 400)
    svg.text(r.x + 13, r.bottom - 11, clock(12.5, 16), 11, "#CDEBE6", 400)


def drop_slot(svg, r):
    """An open slot: a dashed outline that asks for a booking."""
    x, y, s = svg.px(r.x) + 0.75, svg.px(r.y) + 0.75, svg.scale
    w, h = svg.px(r.right) - svg.px(r.x) - 1.5, svg.px(r.bottom) - svg.px(r.y) - 1.5
    svg.add(f'<rect x="{x}" y="{y}" width="{w}" height="{h}" rx="{7 * s:g}" fill="#F4F1FC"'
            f' stroke="{VIOLET[1]}" stroke-width="1.5" stroke-dasharray="{5 * s:g} {4 * s:g}"/>')
    svg.text(r.mid_x, r.mid_y - 2, "Free", 12.5, VIOLET[2], 600, "middle")
    svg.text(r.mid_x, r.mid_y + 14, clock(14, 16), 11, VIOLET[3], 400, "middle")


def now_line(svg, layout):
    g = layout.grid
    column = g.w / layout.size.days
    y = layout.slot(TODAY, NOW, NOW + 1).y - 2
    x = g.x + TODAY * column
    svg.rect(Rect(x, y - 1, column, 2), "#D6453D")
    svg.circle(x, y, 4.5, "#D6453D")
