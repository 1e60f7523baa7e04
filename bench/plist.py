#!/usr/bin/env python3
"""Converts a demo of 100,000 steps with Velvane and with plistutil, turn by turn, and prints the
CPU seconds of each.

    bench/plist.py [--build build/release] [--steps 100000] [--rounds 3]

Velvane always writes the binary form. From XML plistutil writes it too; from binary it writes XML,
because told to write binary it copies a binary file unread.
"""
import argparse
import os
import pathlib
import plistlib
import random
import shutil
import subprocess
import sys
import tempfile
import uuid

KINDS = ["move", "click", "rightClick", "hold", "release", "type", "shortcut", "wait", "switchApp",
         "section"]


def step(i, rng):
    return {"id": str(uuid.UUID(int=rng.getrandbits(128))).upper(), "kind": KINDS[i % 10],
            "point": [float(rng.randrange(1280)), float(rng.randrange(800))],
            "text": f"Hello {i}" if i % 10 == 5 else "", "duration": rng.choice([1.0, 1.2, 1.6]),
            "pauseAfter": rng.choice([0.2, 0.3, 0.4]), "keyCode": i % 128,
            "modifiers": (i % 2) * 0x100000, "centerWindow": False, "collapsed": False,
            "recordedOffset": i * 0.7}


def demo(steps):
    rng = random.Random(1)
    return {"version": 1, "steps": [step(i, rng) for i in range(steps)],
            "startPoint": [640.0, 400.0], "canvasSize": [1280.0, 800.0], "fps": 60}


def cpu_seconds(command):
    """User and system time of one run."""
    process = subprocess.Popen(command)
    _, status, usage = os.wait4(process.pid, 0)
    if status:
        sys.exit(f"failed: {' '.join(map(str, command))}")
    return usage.ru_utime + usage.ru_stime


def ours(build, source, target):
    return [build / "velvane", "convert", source, target]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=pathlib.Path, default=pathlib.Path("build/release"))
    parser.add_argument("--steps", type=int, default=100_000)
    parser.add_argument("--rounds", type=int, default=3)
    options = parser.parse_args()
    if not shutil.which("plistutil"):
        sys.exit("plistutil is missing: install libplist-utils")

    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        binary, xml = folder / "demo.binary", folder / "demo.xml"
        value = demo(options.steps)
        binary.write_bytes(plistlib.dumps(value, fmt=plistlib.FMT_BINARY, sort_keys=False))
        xml.write_bytes(plistlib.dumps(value, sort_keys=False))
        print(f"{options.steps} steps, binary {binary.stat().st_size >> 10} KB, "
              f"XML {xml.stat().st_size >> 10} KB; CPU seconds, best of {options.rounds}")
        runs = {
            "binary to binary, velvane": ours(options.build, binary, folder / "a"),
            "binary to XML, plistutil": ["plistutil", "-i", binary, "-o", folder / "b", "-f", "xml"],
            "XML to binary, velvane": ours(options.build, xml, folder / "c"),
            "XML to binary, plistutil": ["plistutil", "-i", xml, "-o", folder / "d", "-f", "bin"],
        }
        best = {}
        for _ in range(options.rounds):
            for label, command in runs.items():
                best[label] = min(best.get(label, float("inf")), cpu_seconds(command))
        for label, seconds in best.items():
            print(f"{label:28} {seconds:7.2f}")
        for result in ("a", "c"):
            if plistlib.loads((folder / result).read_bytes()) != value:
                sys.exit("a converted demo differs")
        print("both of ours read back equal")


if __name__ == "__main__":
    main()
