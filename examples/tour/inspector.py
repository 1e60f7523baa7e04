"""The planner's right side: one booking, its fields and its price."""

from .style import (ACCENT, ACCENT_SOFT, BORDER, INK, PAPER, SECONDARY, TEAL, TERTIARY,
                    WHITE)
from .svg import Rect


def draw(svg, layout):
    i = layout.inspector
    # The bottom right corner is the window's.
    svg.rect(Rect(i.x, i.y, i.w, i.h), PAPER, 12)
    svg.rect(Rect(i.x, i.y, i.w, i.h - 14), PAPER)
    svg.rect(Rect(i.x, i.y, 14, i.h), PAPER)
    svg.vline(i.x, i.y, i.bottom, BORDER)
    heading(svg, i)
    fields(svg, layout)
    price(svg, layout)
    button(svg, layout.save, "Save draft", False)
    button(svg, layout.send, "Send offer", True)


def heading(svg, i):
    left = i.x + 20
    svg.rect(Rect(left, i.y + 20, 52, 20), "#FBF0D6", 10)
    svg.text(left + 26, i.y + 34, "Draft", 11.5, "#7A560D", 600, "middle")
    svg.text(i.right - 20, i.y + 34, "No. 2041", 12, TERTIARY, 400, "end")
    svg.text(left, i.y + 67, "Autumn catalogue", 20, INK, 700, family="Inter Display")
    svg.text(left, i.y + 88, "Tuesday 19 May, 12:30 – 16:00", 13, SECONDARY)


def label(svg, r, words):
    svg.text(r.x, r.y - 9, words, 12, SECONDARY, 500)


def fields(svg, layout):
    client, room, crew, note = layout.client, layout.room, layout.crew, layout.note
    label(svg, client, "Client")
    halo = client.inset(-3)
    svg.rect(halo, ACCENT_SOFT, 11)
    svg.rect(client, WHITE, 8, ACCENT, 2)
    svg.rect(Rect(client.x + 12, client.y + 10, 1.5, 16), ACCENT)
    svg.text(client.x + 16, client.y + 22.5, "Add a client", 13, TERTIARY)
    label(svg, room, "Room")
    svg.rect(room, WHITE, 8, BORDER)
    svg.circle(room.x + 18, room.mid_y, 5, TEAL[1])
    svg.text(room.x + 32, room.y + 22.5, "Daylight room", 13, INK, 400)
    svg.path("M4.5 6.5L8 10L11.5 6.5", room.right - 26, room.y + 10, stroke=SECONDARY, line=1.5)
    label(svg, crew, "Crew")
    people(svg, crew)
    label(svg, note, "Note")
    svg.rect(note, WHITE, 8, BORDER)
    svg.text(note.x + 12, note.y + 22.5, "Warm white sweep, rail for", 13, INK, 400)
    svg.text(note.x + 12, note.y + 40.5, "forty coats, two tables.", 13, INK, 400)
    if layout.kit:
        kit(svg, layout.kit)


def kit(svg, r):
    label(svg, r, "Kit")
    x = r.x
    for words, width in (("Strobes", 70), ("Steamer", 74), ("Tether", 64)):
        svg.rect(Rect(x, r.y, width, 28), WHITE, 14, BORDER)
        svg.text(x + width / 2, r.y + 18.5, words, 12.5, INK, 500, "middle")
        x += width + 8


def people(svg, r):
    crew = (("SO", "#C8705A"), ("KN", "#6F63B8"), ("LV", "#2F8377"))
    for n, (initials, colour) in enumerate(crew):
        x = r.x + 16 + n * 27
        svg.circle(x, r.mid_y, 16, PAPER)
        svg.circle(x, r.mid_y, 14, colour)
        svg.text(x, r.mid_y + 4, initials, 11, WHITE, 600, "middle")
    x = r.x + 16 + len(crew) * 27 + 8
    svg.circle(x, r.mid_y, 13.5, WHITE, BORDER, 1)
    svg.path("M8 4.5V11.5M4.5 8H11.5", x - 8, r.mid_y - 8, stroke=SECONDARY, line=1.5)
    svg.text(r.right, r.mid_y + 4.5, "3 of 4 places", 12, TERTIARY, 400, "end")


def price(svg, layout):
    left, right = layout.note.x, layout.note.right
    y = layout.save.y - 100
    svg.hline(left, right, y - 22, BORDER)
    for words, amount in (("Daylight room, 3.5 h", "420.00"), ("Assistants, 2 × 3.5 h", "245.00")):
        svg.text(left, y, words, 13, SECONDARY)
        svg.text(right, y, amount, 13, INK, 400, "end")
        y += 24
    svg.hline(left, right, y - 11, BORDER)
    svg.text(left, y + 14, "Total", 14, INK, 600)
    svg.text(right, y + 15, "€ 665.00", 17, INK, 700, "end", "Inter Display")


def button(svg, r, words, primary):
    svg.rect(r, ACCENT if primary else WHITE, 8, None if primary else BORDER)
    svg.text(r.mid_x, r.y + 22.5, words, 13, WHITE if primary else INK, 600, "middle")
