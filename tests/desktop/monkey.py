#!/usr/bin/python3
"""Random but valid use of the window, for as long as asked: nothing crashes, no edit is lost.

usage: monkey.py [MINUTES] [SEED]

Every hundred actions the demo is saved, all of its edits are undone and done again, and what is
saved then must be the same. At the end all demos are closed, and the memory that the program holds
then is told beside what it held before. With a program built with AddressSanitizer a leak fails the
test too, by the program's exit status.
"""

import plistlib
import random
import sys
import time

from driver import xdotool
from fixture import EditorTest, main

KINDS = ["Move to", "Click", "Right-click", "Hold (mouse down)", "Release (mouse up)", "Type",
         "Keyboard shortcut", "Wait", "Switch app", "Section"]
KEYS = ["Delete", "ctrl+z", "ctrl+shift+z", "ctrl+d", "ctrl+c", "ctrl+x", "ctrl+v", "ctrl+a",
        "Up", "Down", "shift+Down", "Home", "End", "Left", "Right"]
CANVAS_KEYS = ["z", "Left", "shift+Right", "Up", "shift+Down", "space", "Home", "Delete", "Escape"]
WORDS = ["word ", "é", "12.5", "-3", "0", "日本", "👍", "x" * 30]
MINUTES = float(sys.argv.pop(1)) if len(sys.argv) > 1 else 1
SEED = int(sys.argv.pop(1)) if len(sys.argv) > 1 else random.randrange(10**6)


def resident(editor):
    """Megabytes of memory that the program holds."""
    for line in open(f"/proc/{editor.process.pid}/status", encoding="utf-8"):
        if line.startswith("VmRSS"):
            return int(line.split()[1]) / 1024
    raise AssertionError("the program has gone")


class Monkey(EditorTest):
    def measure(self, editor):
        """Where things stand, which stays while the window keeps its size."""
        self.adders = [editor.find("push button", f"Add {kind}").centre for kind in KINDS]
        self.rows = editor.list.box
        self.canvas = editor.canvas.box
        self.time = editor.find("slider", "Time").box
        x, y, width, height = editor.window.box
        self.fields = (self.canvas[0] + self.canvas[2], y + 100, x + width, y + 420)

    def inside(self, box):
        x, y, width, height = box
        return self.dice.randrange(x + 2, x + width - 2), self.dice.randrange(y + 2, y + height - 2)

    # What a hand may do. None of it leaves the window or starts anything beyond it.

    def add(self, editor):
        editor.click_at(*self.dice.choice(self.adders))

    def select(self, editor):
        modifier = self.dice.choice([None, None, None, "ctrl", "shift"])
        editor.click_at(*self.inside(self.rows), modifier=modifier)

    def drag_row(self, editor):
        editor.drag(self.inside(self.rows), self.inside(self.rows), steps=4)

    def press(self, editor):
        editor.key(self.dice.choice(KEYS))

    def click_canvas(self, editor):
        editor.click_at(*self.inside(self.canvas))

    def drag_canvas(self, editor):
        editor.drag(self.inside(self.canvas), self.inside(self.canvas), steps=5)

    def press_on_canvas(self, editor):
        xdotool("mousemove", *self.inside(self.canvas), "click", self.dice.choice([4, 5]))
        editor.key(*self.dice.choices(CANVAS_KEYS, k=3))

    def scrub(self, editor):
        editor.drag(self.inside(self.time), self.inside(self.time), steps=5)

    def edit_field(self, editor):
        left, top, right, bottom = self.fields
        editor.click_at(self.dice.randrange(left + 90, right - 90),
                        self.dice.randrange(top, bottom))
        if self.dialog(editor):
            return
        editor.key("ctrl+a")
        editor.type(self.dice.choice(WORDS))
        editor.key(self.dice.choice(["Tab", "Return", "Escape", "ctrl+z"]))

    def dialog(self, editor):
        """Leaves what a click may have opened: a panel, a menu, a recording of keys."""
        if xdotool("getactivewindow").strip() != self.number or len(editor._shown_windows()) > 1:
            editor.key("Escape")
            return True
        return False

    def saved_again(self, editor):
        """The demo as saved; a save that changes nothing may write nothing."""
        editor.canvas.act("SetFocus")
        editor.key("ctrl+s")
        editor.wait(lambda: editor.window.name == "demo", "the demo to be saved")
        return plistlib.loads(self.demo.read_bytes())

    def check_undo(self, editor):
        while self.dialog(editor):
            pass
        if editor.find("slider", "Time") and editor.root.all("push button", "Pause"):
            editor.click(editor.find("push button", "Pause"))
        self.all_of(editor, "Redo", "ctrl+shift+z")  # what the monkey itself had undone
        before = self.saved_again(editor)
        self.all_of(editor, "Undo", "ctrl+z")
        self.all_of(editor, "Redo", "ctrl+shift+z")
        self.assertEqual(self.saved_again(editor), before)

    def item_of(self, editor, name):
        edit = editor.item("Edit").children[0].children
        return next(item for item in edit if item.name.startswith(name))

    def all_of(self, editor, name, key):
        """Presses the key until its menu item has nothing left to do."""
        for _ in range(5000):
            if not self.item_of(editor, name).has("enabled"):
                return
            editor.key(key)
        self.fail(f"{name} never ends")

    def test_random_use_loses_and_breaks_nothing(self):
        self.dice = random.Random(SEED)
        print(f"seed {SEED}, {MINUTES:g} min", flush=True)
        editor = self.open_new()
        # Closed and opened once, so that what is made only once is there.
        editor.key("ctrl+w")
        editor.wait_titles("Velvane")
        editor.wait(lambda: editor.window_of("Velvane").has("active"), "the start window")
        idle = resident(editor)
        editor.key("Return")
        editor.wait_titles("demo")
        editor.window = editor.window_of("demo")
        self.number = xdotool("getactivewindow").strip()
        self.measure(editor)
        acts = [self.add, self.add, self.select, self.select, self.drag_row, self.press, self.press,
                self.click_canvas, self.drag_canvas, self.press_on_canvas, self.scrub,
                self.edit_field, self.edit_field]
        end = time.monotonic() + MINUTES * 60
        count = 0
        while time.monotonic() < end:
            for _ in range(100):
                act = self.dice.choice(acts)
                act(editor)
                count += 1
                self.assertTrue(editor.is_running, f"{act.__name__} ended the program")
                while self.dialog(editor):
                    pass
            self.check_undo(editor)
            print(f"{count} actions, {resident(editor):.0f} MB", flush=True)
        editor.key("ctrl+w")
        editor.wait_titles("Velvane")
        print(f"{count} actions; all closed: {resident(editor):.0f} MB, before: {idle:.0f} MB")
        editor.key("ctrl+q")
        editor.wait_end()


if __name__ == "__main__":
    main()
