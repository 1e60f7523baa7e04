#!/usr/bin/python3
"""Random but valid use of the window, for as long as asked: nothing crashes, no edit is lost.

usage: monkey.py [MINUTES] [SEED]
VELVANE_PICTURE names a file for a picture of the screen when something went wrong.

Demos are opened, edited, exported, recorded, run, saved and closed. After every sixty acts all edits
of the demo in front are undone, which must give what was opened, and done again, which must give
what was there; saved, closed and opened again it must be the same. After every third of these rounds
the program is quit, which must end well, and started again. With a program built with
AddressSanitizer a leak fails the test too, by the program's exit status.
"""

import plistlib
import random
import time
from collections import Counter

from accessible import wait_for
from fixture import inspect, main
from looking import within
from randomly import RandomTest, argument

MINUTES = argument(float, 1)
SEED = argument(int, random.randrange(10**6))
ACTS, ROUNDS = 60, 3  # acts of a round, rounds until the program is quit
BATCH = 30  # keys at once
LONG = 120  # seconds in which leaks are looked for on a loaded machine


def without_folding(demo):
    """Folding sections is no edit: undo may give them folded or not."""
    steps = [{k: v for k, v in s.items() if k != "collapsed"} for s in demo["steps"]]
    return {**demo, "steps": steps}


class Monkey(RandomTest):
    seed = SEED

    # Proof.

    def all_of(self, name, key):
        """Presses the key until its menu item has nothing left to do."""
        limit = 20 * ACTS * ROUNDS
        for _ in range(limit // BATCH):
            self.hands.focus_canvas()
            self.editor.key(*[key] * BATCH)
            if within(1, lambda: not self.edit_item(name).has("enabled")):
                return
            self.hands.settle()
        self.fail(f"{name} never ends")

    def edit_item(self, name):
        edit = self.editor.item("Edit", window=self.editor.window).children[0].children
        return next(item for item in edit if item.name.startswith(name))

    def prove(self):
        self.hands.settle()
        self.stop_playing()
        self.all_of("Redo", "ctrl+shift+z")  # what was undone meanwhile
        before = self.save()
        self.all_of("Undo", "ctrl+z")
        self.assertEqual(without_folding(self.save()), without_folding(self.opened[self.front]),
                         "undone is what was opened")
        self.all_of("Redo", "ctrl+shift+z")
        self.assertEqual(self.save(), before, "done again is what was there")
        self.prove_file()

    def prove_file(self):
        """What was saved is read by the command line and in a new window, and saved the same."""
        name = self.front
        before = self.path(name).read_bytes()
        steps = plistlib.loads(before)["steps"]
        self.assertEqual(len(inspect(self.path(name))["steps"]), len(steps))
        self.close("Cancel")
        if self.opened:
            self.next_window()
        else:
            wait_for(lambda: self.window("Velvane").has("active"), "the start window")
        self.open(name)
        self.save()
        self.assertEqual(self.path(name).read_bytes(), before, "what was read is written again")

    def stop_playing(self):
        pause = next(self.editor.window.each("push button", "Pause"), None)
        if pause:
            self.editor.click(pause)

    def quit(self):
        """Quits and saves every changed demo. How it ended counts when all is done, so that a leak
        ends no long run."""
        self.hands.settle()
        changed = [w.name for w in self.editor.windows if w.name.endswith("*")]
        # Not by keys: Qt's accessibility bridge never frees those that come while it ends.
        self.editor.open_menu("File", window=self.editor.window)
        self.editor.click(self.editor.item("File", "Quit", window=self.editor.window))
        for _ in changed:
            self.editor.answer("Save")
        wait_for(lambda: not self.editor.is_running, "the program to end", LONG)
        self.ends.append(self.editor.process.returncode)
        print(f"it ended with {self.ends[-1]}", flush=True)

    def round(self, end):
        for _ in range(ACTS):
            if time.monotonic() > end:
                break
            self.act()
        self.prove()

    def test_random_use_loses_and_breaks_nothing(self):
        print(f"seed {SEED}, {MINUTES:g} min", flush=True)
        end = time.monotonic() + MINUTES * 60
        self.ends = []
        total = Counter()
        while time.monotonic() < end:
            self.start()
            try:
                for _ in range(ROUNDS):
                    if time.monotonic() < end:
                        self.round(end)
                        print(f"{self.count} acts, {len(self.opened)} demos open", flush=True)
                self.quit()
            except BaseException:
                self.tell()
                raise
            total += self.hands.done
        for what, times in sorted(total.items()):
            print(f"{times:6} {what}")
        print(f"{self.count} acts")
        self.assertEqual(set(self.ends), {0}, "the program ended well")


if __name__ == "__main__":
    main()
