"""What a fast export must not lose: picture, size, frames, times and colour.

The true frames come from `velvane frame` and are turned into luma here, by the definition of
BT.709 in limited range and rounded once, because a scaler's own rounding would count as an error
of the movie. Chroma is compared by its mean alone: that finds a wrong matrix, range or order and
does not depend on how the picture's half of the samples are placed.
"""

import itertools
import json
import math
import operator
import subprocess
from dataclasses import dataclass
from fractions import Fraction

RED, GREEN, BLUE = 0.2126, 0.7152, 0.0722
TABLES = [[weight * value * 219 / 255 for value in range(256)] for weight in (RED, GREEN, BLUE)]
BLOCK = 16  # a macroblock's side, in pixels


@dataclass
class Likeness:
    """How far a movie's frames are from the true ones."""

    psnr: float          # dB, over all samples
    worst_frame: float   # dB
    worst_block: float   # dB, of one macroblock
    worst_block_at: str
    chroma: float        # greatest difference of a mean from the true mean, of 255


def decibels(squares):
    return math.inf if squares == 0 else 10 * math.log10(255 * 255 / squares)


def likeness(program, demo, movie, indices, folder):
    """Compares the frames of the given indices."""
    width, height = demo["width"], demo["height"]
    frames = _movie_frames(movie, indices, width, height)
    worst, worst_block, place, chroma, total = 0.0, 0.0, "", 0.0, 0.0
    for index, (luma, u, v) in zip(indices, frames, strict=True):
        red, green, blue = _true_planes(program, demo, index, folder / "frame.png")
        true = _luma(red, green, blue)
        squares = [d * d for d in map(operator.sub, true, luma)]
        mean = sum(squares) / len(squares)
        total += mean
        worst = max(worst, mean)
        block, x, y = _worst_block(squares, width, height)
        if block >= worst_block:
            worst_block, place = block, f"frame {index}, ({x}, {y})"
        chroma = max(chroma, _chroma_difference(red, green, blue, u, v))
    return Likeness(decibels(total / len(indices)), decibels(worst), decibels(worst_block), place,
                    chroma)


def _true_planes(program, demo, index, file):
    file.unlink(missing_ok=True)
    subprocess.run([program, "frame", demo["file"], "--at", repr(index / demo["fps"]), "--output",
                    str(file)], check=True, stdout=subprocess.DEVNULL)
    pixels = subprocess.run(["ffmpeg", "-nostdin", "-v", "error", "-i", str(file), "-f",
                             "rawvideo", "-pix_fmt", "rgb24", "-"], stdout=subprocess.PIPE,
                            check=True).stdout
    assert len(pixels) == demo["width"] * demo["height"] * 3, "a frame of another size"
    return pixels[0::3], pixels[1::3], pixels[2::3]


def _luma(red, green, blue):
    parts = [map(table.__getitem__, plane) for table, plane in zip(TABLES, (red, green, blue))]
    return [int(16.5 + value) for value in map(operator.add, map(operator.add, *parts[:2]),
                                               parts[2])]


def _chroma_difference(red, green, blue, u, v):
    count = len(red)
    r, g, b = sum(red) / count, sum(green) / count, sum(blue) / count
    grey = RED * r + GREEN * g + BLUE * b
    true_u = 128 + 224 / 255 * (b - grey) / (2 - 2 * BLUE)
    true_v = 128 + 224 / 255 * (r - grey) / (2 - 2 * RED)
    return max(abs(sum(u) / len(u) - true_u), abs(sum(v) / len(v) - true_v))


def _worst_block(squares, width, height):
    """The greatest mean of one macroblock, and its corner. Blocks at the edges may be smaller."""
    worst = (-1.0, 0, 0)
    for top in range(0, height, BLOCK):
        rows = range(top, min(top + BLOCK, height))
        columns = list(squares[top * width:(top + 1) * width])
        for row in rows[1:]:
            columns = list(map(operator.add, columns, squares[row * width:(row + 1) * width]))
        for left in range(0, width, BLOCK):
            part = columns[left:left + BLOCK]
            worst = max(worst, (sum(part) / (len(part) * len(rows)), left, top))
    return worst


def _movie_frames(movie, indices, width, height):
    """The planes of the movie's frames, as decoded."""
    wanted = "+".join(f"eq(n,{index})" for index in indices)
    sizes = (width * height, width * height // 4, width * height // 4)
    process = subprocess.Popen(["ffmpeg", "-nostdin", "-v", "error", "-i", str(movie), "-vf",
                                f"select='{wanted}'", "-vsync", "passthrough", "-f", "rawvideo",
                                "-pix_fmt", "yuv420p", "-"], stdout=subprocess.PIPE)
    with process:
        for _ in indices:
            planes = [process.stdout.read(size) for size in sizes]
            assert [len(plane) for plane in planes] == list(sizes), "the movie lacks a frame"
            yield planes


def sample(demo, count, position):
    """Frame indices: `count` spread evenly and the dozen where the cursor moves furthest."""
    last = demo["frames"] - 1
    spread = {round(i * last / (count - 1)) for i in range(count)}

    def stride(index):
        before, here = (position(i / demo["fps"]) for i in (index - 1, index))
        return math.dist(before, here)
    fastest = sorted(range(1, demo["frames"]), key=stride, reverse=True)
    # Every fourth: neighbours show the same glide.
    return sorted(spread | set(itertools.islice(fastest, 0, 48, 4)))


def times(movie, demo):
    """What is wrong with the movie's frames and tags, as sentences."""
    entries = "stream=time_base,width,height,color_range,color_space,color_transfer," \
              "color_primaries,chroma_location:frame=pts"
    out = subprocess.run(["ffprobe", "-v", "error", "-select_streams", "v:0", "-show_entries",
                          entries, "-of", "json", str(movie)], stdout=subprocess.PIPE,
                         check=True).stdout
    probe = json.loads(out)
    stream, frames = probe["streams"][0], probe["frames"]
    base = Fraction(stream["time_base"])
    if len(frames) != demo["frames"]:
        yield f"{len(frames)} frames, not {demo['frames']}"
    late = [i for i, frame in enumerate(frames) if frame["pts"] * base != Fraction(i, demo["fps"])]
    if late:
        yield f"{len(late)} frames not at i ÷ {demo['fps']}, the first is frame {late[0]}"
    if (stream["width"], stream["height"]) != (demo["width"], demo["height"]):
        yield f"{stream['width']} × {stream['height']} pixels"
    for name, value in (("color_range", "tv"), ("color_space", "bt709"),
                        ("color_transfer", "bt709"), ("color_primaries", "bt709"),
                        ("chroma_location", "left")):
        if stream.get(name) != value:
            yield f"{name} is {stream.get(name)}, not {value}"
