#!/usr/bin/env python3
"""Types mixed text into real programs and compares what arrives, character for character.

usage: posting.py [--all]
A terminal, a GTK editor and a Qt window, each with another keyboard layout; with --all each with
every layout, and again while all cores are busy; and a little with Caps Lock on. VELVANE_POST_INPUT
and VELVANE_TYPING_WINDOW name the test programs; others type instead when VELVANE_TYPIST is
"xdotool".
"""

import contextlib
import difflib
import os
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

from keyboard import keyboard_map

POST = os.environ.get("VELVANE_POST_INPUT", "")
WINDOW = os.environ.get("VELVANE_TYPING_WINDOW", "")
LAYOUTS = ("us", "de", "fr")
INTERVAL = 0.02  # seconds between characters: the shortest that a demo has
CONTROL = 0x40000
KEY_S = 1

SAMPLES = (
    list("The quick brown fox: {[(1+2)*3]} ~ <#@$%^&|\\> \"a'b`c\"; 100%!? x_y = z/w, Hello-World.")
    + list("àâäéèêëîïôöùûüÿçñßœæåøÀÉÎÕÜÇÑØłşčžőűđþð€£¥§°±µ¿¡«»“”‘’–—…")
    + list("αβγδεζηθικλμνξοπρστυφχψωάέήίόύώΑΒΓΔΩ")
    + list("абвгдеёжзийклмнопрстуфхцчшщъыьэюяЖЩЮЯіїєґ")
    + list("日本語漢字仮名ひらがなカタカナ中文简体繁體한국어글자")
    + ["😀", "🎉", "👍", "🚀", "❤️", "🇩🇪", "🇫🇷", "🇯🇵", "👩‍💻", "👍🏽", "👨‍👩‍👧", "①", "→", "√", "∞"]
)


def text_of(count):
    """`count` characters, mixed by a fixed stride so that scripts follow one another."""
    stride = 67
    assert len(SAMPLES) % stride
    return "".join(SAMPLES[i * stride % len(SAMPLES)] for i in range(count))


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout


def wait_for(condition, what, seconds=30):
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        found = condition()
        if found:
            return found
        time.sleep(0.1)
    raise AssertionError(f"waited in vain for {what}")


def content(path):
    with contextlib.suppress(FileNotFoundError, UnicodeDecodeError):
        return path.read_bytes().decode()
    return ""


def settled(read):
    """What a reader tells once it has been the same for a second."""
    last, since = read(), time.monotonic()
    while time.monotonic() - since < 1:
        time.sleep(0.05)
        now = read()
        if now != last:
            last, since = now, time.monotonic()
    return last


class Program:
    """One program to type into, as long as the block lasts."""

    def __init__(self, folder):
        self.file = Path(folder) / "typed.txt"

    def __enter__(self):
        environment = {**os.environ, "LC_ALL": "C.UTF-8", "GTK_IM_MODULE": "gtk-im-context-simple"}
        self.process = subprocess.Popen(self.command(), env=environment,
                                        stderr=subprocess.DEVNULL)
        try:
            wait_for(self.has_focus, f"{self.name} to have the focus")
            self.await_ready()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()

    def has_focus(self):
        """Whether keys go to its window; a window manager may want to be asked for that."""
        shown = output("xdotool", "search", "--onlyvisible", "--class", f"^{self.name}$").split()
        if not shown:
            return False
        if output("xdotool", "getwindowfocus").strip() in shown:
            return True
        output("xdotool", "windowactivate", shown[0])
        return False

    def await_ready(self):
        wait_for(self.file.exists, f"{self.name} to listen")

    def typed(self):
        return settled(lambda: content(self.file))


class Terminal(Program):
    name = "xterm"

    def command(self):
        return ["xterm", "-u8", "-e", "sh", "-c", f"stty raw -echo; exec cat >'{self.file}'"]

    def typed(self):
        return super().typed().replace("\r", "\n")


class GtkEditor(Program):
    name = "mousepad"

    def command(self):
        self.file.write_text("")
        return ["mousepad", "--disable-server", str(self.file)]

    def typed(self):
        subprocess.run([POST, "key", str(KEY_S), str(CONTROL)], check=True)
        wait_for(lambda: content(self.file), "the file to be saved")
        return super().typed().removesuffix("\n")


class QtWindow(Program):
    name = "typing-window"

    def command(self):
        return [WINDOW, str(self.file)]


def post(text):
    if os.environ.get("VELVANE_TYPIST") == "xdotool":
        command = ["xdotool", "type", "--delay", str(int(INTERVAL * 1000)), "--file", "-"]
    else:
        command = [POST, "type", str(INTERVAL)]
    subprocess.run(command, input=text.encode(), stdout=subprocess.DEVNULL, check=True)


def faults(expected, got):
    """How many code points were lost, and how many are wrong."""
    lost = wrong = 0
    matcher = difflib.SequenceMatcher(None, expected, got, autojunk=False)
    for kind, a, b, c, d in matcher.get_opcodes():
        if kind != "equal":
            lost += max(0, (b - a) - (d - c))
            wrong += d - c
    return lost, wrong


@contextlib.contextmanager
def busy_cores():
    workers = [subprocess.Popen([sys.executable, "-c", "while True: pass"])
               for _ in range(os.cpu_count() or 1)]
    try:
        yield
    finally:
        for worker in workers:
            worker.kill()
            worker.wait()


def type_into(kind, layout, text):
    """Types into a new program of a kind; returns what came, whether the keyboard map is the one
    before, and the time."""
    subprocess.run(["setxkbmap", "-layout", layout], check=True)
    with tempfile.TemporaryDirectory(prefix="velvane-typing.") as folder, kind(folder) as program:
        before = keyboard_map()
        started = time.monotonic()
        post(text)
        took = time.monotonic() - started
        same = keyboard_map() == before
        return program.typed(), same, took


def caps_is_locked():
    return "Caps Lock:   on" in output("xset", "q")


def lock_caps(on):
    if caps_is_locked() != on:
        output("xdotool", "key", "Caps_Lock")
    wait_for(lambda: caps_is_locked() == on, "Caps Lock")


class Posting(unittest.TestCase):
    def check(self, kind, layout, count):
        with self.subTest(program=kind.name, layout=layout):
            text = text_of(count)
            typed, same, took = type_into(kind, layout, text)
            lost, wrong = faults(text, typed)
            print(f"{kind.name:14} {layout}  {count} characters in {took:.1f} s: "
                  f"{lost} lost, {wrong} wrong", file=sys.stderr)
            self.assertEqual(typed, text)
            self.assertTrue(same, "the keyboard map is not the one before")


class EachProgramWithALayout(Posting):
    def test_every_character_arrives(self):
        for kind, layout in zip((Terminal, GtkEditor, QtWindow), LAYOUTS, strict=True):
            self.check(kind, layout, 140)


class CapsLock(unittest.TestCase):
    def test_it_changes_nothing_on_a_german_keyboard_and_is_locked_afterwards(self):
        subprocess.run(["setxkbmap", "-layout", "de"], check=True)
        lock_caps(True)
        self.addCleanup(lock_caps, False)
        text = "aÄ1!äÖzZßẞ@é日"
        typed, same, _ = type_into(QtWindow, "de", text)
        self.assertEqual(typed, text)
        self.assertTrue(same, "the keyboard map is not the one before")
        self.assertTrue(caps_is_locked())


class EveryProgramWithEveryLayout(Posting):
    def test_every_character_arrives(self):
        for kind in (Terminal, GtkEditor, QtWindow):
            for layout in LAYOUTS:
                self.check(kind, layout, 500)

    def test_every_character_arrives_while_all_cores_are_busy(self):
        with busy_cores():
            for kind, layout in zip((Terminal, GtkEditor, QtWindow), LAYOUTS, strict=True):
                self.check(kind, layout, 500)


if __name__ == "__main__":
    if not POST or not WINDOW:
        sys.exit("set VELVANE_POST_INPUT and VELVANE_TYPING_WINDOW to the test programs")
    every = "--all" in sys.argv
    tests = ["EveryProgramWithEveryLayout" if every else "EachProgramWithALayout", "CapsLock"]
    unittest.main(argv=sys.argv[:1], verbosity=2, warnings="ignore", defaultTest=tests)
