"""The desktop behind the planner: wallpaper, top bar and a window of notes."""

from .layout import BAR
from .style import INK, SECONDARY, TERTIARY, WHITE
from .svg import Rect


def draw(svg, layout):
    wallpaper(svg)
    top_bar(svg, layout)
    notes_window(svg, layout)


def wallpaper(svg):
    """A dawn sky over four ranges of hills, in fractions of the canvas."""
    w, h = svg.width, svg.height
    svg.define('<linearGradient id="sky" x1="0" y1="0" x2="0" y2="1">'
               '<stop offset="0" stop-color="#86B0BA"/><stop offset=".42" stop-color="#BFD0CB"/>'
               '<stop offset=".72" stop-color="#EBCFB4"/></linearGradient>')
    svg.add(f'<rect width="{w}" height="{h}" fill="url(#sky)"/>')
    ranges = (("#A9C4C2", "M0 .52C.14 .44 .22 .56 .36 .52S.62 .38 .78 .46S.94 .5 1 .42V1H0Z"),
              ("#86ABAD", "M0 .66C.1 .6 .2 .7 .34 .68S.6 .56 .74 .62S.92 .7 1 .62V1H0Z"),
              ("#5F8D92", "M0 .8C.12 .86 .24 .76 .4 .8S.7 .86 .82 .78S.95 .76 1 .8V1H0Z"),
              ("#43747B", "M0 .95C.16 .87 .3 .97 .5 .94S.8 .9 1 .96V1H0Z"))
    for colour, outline in ranges:
        svg.add(f'<path transform="scale({w} {h})" d="{outline}" fill="{colour}"/>')


def top_bar(svg, layout):
    svg.rect(Rect(0, 0, layout.width, BAR), "#12292E", opacity=0.86)
    leaf(svg, 14, 6, 16, WHITE)
    x = 42
    svg.text(x, 18.5, "Wrenfield", 13, WHITE, 600)
    x += 82
    for name, width in (("Planner", 66), ("Edit", 44), ("View", 50), ("Booking", 70),
                        ("Help", 44)):
        svg.text(x, 18.5, name, 13, "#DCE8E8")
        x += width
    right = layout.width - 16
    svg.text(right, 18.5, "10:24", 13, WHITE, 600, "end")
    svg.text(right - 48, 18.5, "Tue 19 May", 13, "#DCE8E8", 400, "end")
    battery(svg, right - 158, 9)
    wireless(svg, right - 188, 8)


def leaf(svg, x, y, size, colour):
    """The planner's mark: two leaves on one stem, in a square of `size`."""
    unit = size / 16
    outline = ("M8 15C8 10 9.5 6.5 15 5.5C15 11 12.5 13.6 8 15Z"
               "M8 15C7.6 8.6 6 4.6 1 2C.6 8.6 3 13 8 15Z")
    points = " ".join(_scaled(outline, unit))
    svg.path(points, x, y, fill=colour)


def _scaled(outline, unit):
    """Splits a path into commands and scaled numbers."""
    number = ""
    for sign in outline + " ":
        if sign.isdigit() or sign == ".":
            number += sign
            continue
        if number:
            yield f"{float(number) * unit:g}"
            number = ""
        if sign.isalpha():
            yield sign


def battery(svg, x, y):
    svg.path("M2.5 1H17.5A1.5 1.5 0 0 1 19 2.5V8.5A1.5 1.5 0 0 1 17.5 10H2.5A1.5 1.5 0 0 1 1 "
             "8.5V2.5A1.5 1.5 0 0 1 2.5 1ZM21 4V7", x, y, stroke=WHITE, line=1.2, opacity=0.9)
    svg.path("M3 3H13.5V8H3Z", x, y, fill=WHITE, opacity=0.9)


def wireless(svg, x, y):
    svg.path("M1.5 4.6A9 9 0 0 1 14.5 4.6M4 7.4A5.4 5.4 0 0 1 12 7.4", x, y, stroke=WHITE,
             line=1.5, opacity=0.95)
    svg.path("M6.3 9.6A2.6 2.6 0 0 1 9.7 9.6L8 11.6Z", x, y, fill=WHITE, opacity=0.95)


def window_frame(svg, r, fill=None, radius=12):
    """The shadows of a window, and its ground when it has a single colour."""
    svg.shadow(r, radius, "#0A2226", 0.32, 12, 14)
    svg.shadow(r, radius, "#0A2226", 0.22, 3, 5)
    if fill:
        svg.rect(r, fill, radius)


def notes_window(svg, layout):
    r = layout.notes
    window_frame(svg, r, "#FFFDF7")
    for i in range(3):
        svg.circle(r.x + 20 + i * 18, r.y + 21, 5.5, "#DDD8CA")
    left = r.x + 20
    svg.text(left, r.y + 72, "Shot list", 19, INK, 700, family="Inter Display")
    svg.text(left, r.y + 92, "Tue 19 May", 12, TERTIARY)
    lines = ("Coats, full rail", "Boots on oak", "Knitwear", "Scarves, flat", "Group of six",
             "Hands, detail", "Cover, portrait", "Spare: gloves")
    for i, words in enumerate(lines):
        y = r.y + 128 + i * 34
        done = i < 3
        box = Rect(left, y - 12, 16, 16)
        svg.rect(box, "#D9A63A" if done else "none", 4, None if done else "#CFC8B6")
        if done:
            svg.path("M4 8.2L7 11L12 5.4", box.x, box.y, stroke=WHITE, line=1.8)
        svg.text(left + 26, y + 1, words, 13, TERTIARY if done else SECONDARY)
