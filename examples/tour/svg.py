"""A small SVG canvas that keeps every edge on a whole pixel.

Lengths are given in design units, origin at the top left. One unit is `scale` pixels. Edges are
rounded to whole pixels so that hairlines and fills stay crisp at any scale; text keeps its exact
size and only its baseline is rounded.
"""

from xml.sax.saxutils import escape


class Rect:
    """A rectangle in design units."""

    def __init__(self, x, y, w, h):
        self.x, self.y, self.w, self.h = x, y, w, h

    right = property(lambda self: self.x + self.w)
    bottom = property(lambda self: self.y + self.h)
    mid_x = property(lambda self: self.x + self.w / 2)
    mid_y = property(lambda self: self.y + self.h / 2)

    def inset(self, dx, dy=None):
        dy = dx if dy is None else dy
        return Rect(self.x + dx, self.y + dy, self.w - 2 * dx, self.h - 2 * dy)

    def at(self, fx, fy):
        """The point at the given fractions of width and height."""
        return (self.x + self.w * fx, self.y + self.h * fy)


class Svg:
    """Collects SVG elements; `text()` gives the finished document."""

    def __init__(self, width, height, scale):
        self.width, self.height, self.scale = width, height, scale
        self._defs, self._body = [], []

    def px(self, value):
        """Design units to whole pixels."""
        return int(value * self.scale + 0.5)

    def define(self, element):
        self._defs.append(element)

    def add(self, element):
        self._body.append(element)

    def rect(self, r, fill="none", radius=0, stroke=None, line=1, opacity=1, extra=""):
        """Fills `r`; `stroke` is drawn inside its edge, `line` whole pixels wide."""
        x, y = self.px(r.x), self.px(r.y)
        w, h = self.px(r.right) - x, self.px(r.bottom) - y
        inset = line / 2 if stroke else 0
        rx = max(0, radius * self.scale - inset)
        edge = f' stroke="{stroke}" stroke-width="{line}"' if stroke else ""
        alpha = f' opacity="{opacity}"' if opacity != 1 else ""
        self.add(f'<rect x="{x + inset:g}" y="{y + inset:g}" width="{w - 2 * inset:g}"'
                 f' height="{h - 2 * inset:g}" rx="{rx:g}" fill="{fill}"{edge}{alpha} {extra}/>')

    def shadow(self, r, radius, colour, opacity, dy, blur):
        """A soft shadow of `r`, `dy` units below it; `blur` is its standard deviation in units."""
        name = f"blur{blur}".replace(".", "_")
        margin = 0.5
        self.define(f'<filter id="{name}" x="-{margin}" y="-{margin}" width="{1 + 2 * margin}"'
                    f' height="{1 + 2 * margin}"><feGaussianBlur stdDeviation='
                    f'"{blur * self.scale:g}"/></filter>')
        self.rect(Rect(r.x, r.y + dy, r.w, r.h), colour, radius, opacity=opacity,
                  extra=f'filter="url(#{name})"')

    def hline(self, x1, x2, y, colour):
        """A line one pixel high whose top edge is at `y`."""
        self._hairline(self.px(x1), self.px(y), self.px(x2) - self.px(x1), 1, colour)

    def vline(self, x, y1, y2, colour):
        """A line one pixel wide whose left edge is at `x`."""
        self._hairline(self.px(x), self.px(y1), 1, self.px(y2) - self.px(y1), colour)

    def _hairline(self, x, y, w, h, colour):
        self.add(f'<rect x="{x}" y="{y}" width="{w}" height="{h}" fill="{colour}"/>')

    def circle(self, x, y, radius, fill="none", stroke=None, line=1.0, opacity=1):
        edge = f' stroke="{stroke}" stroke-width="{line * self.scale:g}"' if stroke else ""
        self.add(f'<circle cx="{x * self.scale:g}" cy="{y * self.scale:g}"'
                 f' r="{radius * self.scale:g}" fill="{fill}"{edge} opacity="{opacity}"/>')

    def path(self, d, x=0, y=0, fill="none", stroke=None, line=1.5, opacity=1):
        """A path in units, moved to (x, y); strokes are round."""
        edge = (f' stroke="{stroke}" stroke-width="{line}" stroke-linecap="round"'
                ' stroke-linejoin="round"' if stroke else "")
        self.add(f'<path transform="translate({self.px(x)} {self.px(y)}) scale({self.scale:g})"'
                 f' d="{d}" fill="{fill}"{edge} opacity="{opacity}"/>')

    def text(self, x, y, words, size, colour, weight=400, anchor="start", family="Inter",
             spacing=0):
        """A line of text with its baseline at `y`; anchor is start, middle or end."""
        gap = f' letter-spacing="{spacing * self.scale:g}"' if spacing else ""
        self.add(f'<text x="{x * self.scale:g}" y="{self.px(y)}" font-size="{size * self.scale:g}"'
                 f' font-family="{family}, sans-serif" font-weight="{weight}" fill="{colour}"'
                 f' text-anchor="{anchor}"{gap}>{escape(words)}</text>')

    def document(self):
        defs = "".join(dict.fromkeys(self._defs))
        body = "\n".join(self._body)
        return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.width}"'
                f' height="{self.height}" viewBox="0 0 {self.width} {self.height}">'
                f"<defs>{defs}</defs>\n{body}\n</svg>\n")
