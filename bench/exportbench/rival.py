"""The same job by ffmpeg: a cursor picture laid over the backdrop along the same path.

It is as cheap as ffmpeg makes it: the backdrop is read and converted once and then repeated, the
cursor is converted once, and the overlay works in the encoder's pixel format. It draws neither
ripple, hold ring nor caption, so it has less to do than an export.
"""

import subprocess

from . import path

TIP = 8  # the tip's distance from the picture's corner, in pixels: room for the shadow

ARROW = """<svg xmlns="http://www.w3.org/2000/svg" width="44" height="56">
<filter id="s" x="-1" y="-1" width="3" height="3"><feGaussianBlur stdDeviation="3"/></filter>
<g transform="translate({tip} {tip}) scale(1.3333)" stroke-linejoin="round">
<path d="{d}" transform="translate(0 1.5)" stroke="black" stroke-width="3.75" opacity=".45"
 filter="url(#s)"/>
<path d="{d}" stroke="white" stroke-width="3.75"/><path d="{d}"/></g></svg>"""
OUTLINE = "M0 0V24L6 18L10 27L14 25L10 16H18Z"


def draw_cursor(file):
    svg = ARROW.format(tip=TIP, d=OUTLINE)
    subprocess.run(["rsvg-convert", "-o", str(file)], input=svg.encode(), check=True)


def command(demo, folder, preset, output):
    """The ffmpeg command; `folder` holds backdrop.png and cursor.png and gets the filter."""
    script = folder / "overlay.txt"
    script.write_text(_filter(demo))
    return ["ffmpeg", "-nostdin", "-v", "error", "-y",
            "-framerate", str(demo["fps"]), "-i", str(folder / "backdrop.png"),
            "-framerate", str(demo["fps"]), "-i", str(folder / "cursor.png"),
            "-filter_complex_script", str(script), "-map", "[out]",
            "-frames:v", str(demo["frames"]),
            "-c:v", "libx264", "-preset", preset, "-crf", "20", "-pix_fmt", "yuv420p",
            "-color_primaries", "bt709", "-color_trc", "bt709", "-colorspace", "bt709",
            "-color_range", "tv", "-movflags", "+faststart", str(output)]


def _filter(demo):
    x = path.expression(demo["segments"], 0, -TIP)
    y = path.expression(demo["segments"], 1, -TIP)
    once = "scale=out_color_matrix=bt709:out_range=tv"
    return (f"[0]{once},format=yuv420p,loop=-1:1[backdrop];"
            f"[1]{once},format=yuva420p,loop=-1:1[cursor];"
            f"[backdrop][cursor]overlay=format=yuv420:eval=frame:x='{x}':y='{y}'[out]")
