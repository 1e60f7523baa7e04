"""What a person may do in the window at random: each act is valid, whole, and leaves nothing open.

Nothing here posts into other programs or leaves the program's own windows, except for what a
recording or a run of moves does on the empty desktop.
"""

import re
import subprocess
import time
from collections import Counter

from accessible import wait_for
from driver import xdotool
from looking import active, is_tooltip, shown, within
from tasks import Tasks

KINDS = ["Move to", "Click", "Right-click", "Hold (mouse down)", "Release (mouse up)", "Type",
         "Keyboard shortcut", "Wait", "Switch app", "Section"]
EDIT_KEYS = ["Delete", "ctrl+z", "ctrl+shift+z", "ctrl+d", "ctrl+c", "ctrl+x", "ctrl+v", "ctrl+a",
             "Up", "Down", "shift+Down", "Home", "End", "Left", "Right", "Tab", "shift+Tab"]
CANVAS_KEYS = ["z", "Left", "shift+Right", "Up", "shift+Down", "space", "Home", "Delete", "Escape"]
WORDS = ["word ", "é", "12.5", "-3", "0", "0.2", "7", "640", "1920", "4000", "1e9", "日本", "👍",
         "x" * 30]
SHORTCUTS = ["ctrl+s", "super+shift+4", "Tab", "F5", "alt+Left", "Return", "a", "ctrl+z", "Escape"]
ENDS = ["Tab", "Return", "Escape", "ctrl+z", "Up"]


class Hands(Tasks):
    """The hands on one window, whose every act counts in `done`."""

    def __init__(self, editor, dice, folder, portal=None):
        self.editor = editor
        self.dice = dice
        self.folder = folder
        self.portal = portal
        self.done = Counter()
        self.movies = 0
        self.recent = []  # names of the last acts
        self.windows = set()  # numbers of the windows that stay
        self.acts = {self.add: 5, self.select: 5, self.drag_row: 2, self.press: 5, self.fold: 2,
                     self.delete_row: 1, self.use_context_menu: 1, self.click_canvas: 3,
                     self.drag_canvas: 3, self.press_on_canvas: 3, self.magnify: 1, self.scrub: 2,
                     self.play: 2, self.use_inspector: 12, self.choose_from_menu: 2,
                     self.resize: 1, self.drag_panes: 1, self.change_theme: 1, self.export: 1,
                     self.pick: 1, self.record: 1, self.run_live: 1, self.show_about: 1}

    def act(self):
        """Does one act at random and returns its name."""
        act = self.dice.choices(list(self.acts), list(self.acts.values()))[0]
        self.done[act.__name__] += 1
        self.recent = [*self.recent[-9:], act.__name__]
        act()
        self.settle()
        return act.__name__

    # The window and where things stand in it.

    def take(self, window):
        """Works in this window from now on; it has to be the active one."""
        self.editor.window = window
        wait_for(lambda: window.has("active") and active(), f"{window} to be active")
        self.number = active()
        self.windows.add(self.number)
        self.settle()
        self.measure()

    def forget(self):
        """The window has gone."""
        self.windows.discard(self.number)

    def measure(self):
        self.rows = self.part("list", "Steps").box
        self.canvas = self.part("canvas", "Preview canvas").box
        self.time = self.part("slider", "Time").box

    def part(self, role, name):
        """A shown part of the window worked in."""
        window = self.editor.window
        return wait_for(lambda: next(window.each(role, name), None), f"{role} {name}")

    def inside(self, box, part=1.0):
        """A point of the box, or of its left part."""
        x, y, width, height = box
        return (self.dice.randrange(x + 2, x + int(width * part) - 2),
                self.dice.randrange(y + 2, y + height - 2))

    def extra(self):
        """The program's windows that are on the screen and should not stay."""
        return {w for w in shown("--class", "velvane") - self.windows if not is_tooltip(w)}

    def is_settled(self):
        return active() == self.number and not self.extra()

    def settle(self):
        """Leaves what an act may have opened: a menu, a question, a panel, a recording of keys."""
        for _ in range(20):
            if within(0.3, self.is_settled):
                return
            if not self.editor.is_running:
                raise AssertionError(f"the program ended after {self.recent}")
            if self.extra():
                self.editor.key("Escape")
            else:
                subprocess.run(["wmctrl", "-i", "-a", self.number], check=False)
        names = [xdotool("getwindowname", number).strip() for number in self.extra()]
        raise AssertionError(f"after {self.recent} stays open: {names}; active is {active()}")

    def focus_canvas(self):
        canvas = self.part("canvas", "Preview canvas")
        canvas.act("SetFocus")
        wait_for(lambda: canvas.has("focused"), "the focus on the canvas")

    # The list.

    def add(self):
        kind = self.dice.choice(KINDS)
        button = next(self.editor.window.each("push button", f"Add {kind}"), None)
        if button:
            self.editor.click(button)
        else:  # the window is small
            self.item("Step", "Add Step", kind)

    def select(self):
        # Only the left part: on the right are buttons, of which one runs the demo for real.
        modifier = self.dice.choice([None, None, None, "ctrl", "shift"])
        self.editor.click_at(*self.inside(self.rows, 0.5), modifier=modifier)

    def drag_row(self):
        self.editor.drag(self.inside(self.rows, 0.5), self.inside(self.rows, 0.5), steps=4)

    def press(self):
        self.editor.key(*self.dice.choices(EDIT_KEYS, k=self.dice.randrange(1, 4)))

    def shown_rows(self):
        x, y, width, height = self.rows
        rows = [row for row in self.part("list", "Steps").children if row.role == "list item"]
        return [row for row in rows if y <= row.box[1] and row.box[1] + row.box[3] <= y + height]

    def fold(self):
        sections = [row for row in self.shown_rows() if not re.match(r"\d+, ", row.name)]
        if not sections:
            return
        x, y, width, height = self.dice.choice(sections).box
        self.editor.click_at(x + self.dice.choice([24, 24, 120]), y + height // 2)
        self.editor.key(self.dice.choice(["Left", "Right"]))

    def delete_row(self):
        rows = self.shown_rows()
        if not rows:
            return
        x, y, width, height = self.dice.choice(rows).box
        xdotool("mousemove", x + width // 2, y + height // 2)
        # From the right: the inset, the duration, the trash.
        self.editor.click_at(x + width - 58, y + height // 2)

    def use_context_menu(self):
        rows = self.shown_rows()
        if not rows:
            return
        x, y, width, height = self.dice.choice(rows).box
        self.editor.click_at(x + width // 3, y + height // 2, button=3)
        if not within(2, self.extra):
            return
        items = [i for i in self.editor.menu_items() if not i.startswith(("Run Live", "Pick"))]
        wanted = self.dice.choice(items)
        for _ in range(30):
            if self.editor.next_item() == wanted:
                return self.editor.key("Return")

    # The stage.

    def click_canvas(self):
        self.editor.click_at(*self.inside(self.canvas))

    def drag_canvas(self):
        self.editor.drag(self.inside(self.canvas), self.inside(self.canvas), steps=5)

    def press_on_canvas(self):
        xdotool("mousemove", *self.inside(self.canvas), "click", self.dice.choice([4, 5]))
        self.focus_canvas()
        self.editor.key(*self.dice.choices(CANVAS_KEYS, k=3))

    def magnify(self):
        self.focus_canvas()
        self.editor.key("z")
        if self.dice.random() < 0.5:
            self.drag_canvas()
            self.click_canvas()
            self.editor.key("z")

    def scrub(self):
        self.editor.drag(self.inside(self.time), self.inside(self.time), steps=5)

    def play(self):
        self.focus_canvas()
        self.editor.key("space")
        if self.dice.random() < 0.5:
            time.sleep(self.dice.random())
            self.editor.key(self.dice.choice(["space", "Home", "End"]))

    # The inspector.

    def use_inspector(self):
        """Uses one of the controls on show there, whichever they are."""
        left = self.canvas[0] + self.canvas[2]
        x, y, width, height = self.editor.window.box
        controls = []
        for node in self.editor.window.walk(shown_only=True):
            at = node.box
            if at[0] > left and at[1] > self.canvas[1] and at[1] + at[3] < y + height \
                    and node.role in ("text", "push button", "check box") \
                    and node.has("enabled"):
                controls.append(node)
        if controls:
            self.use(self.dice.choice(controls))

    def use(self, node):
        name = node.name
        self.done[f"inspector: {node.role} {name}" if node.role == "text" else
                  f"inspector: {node.role}"] += 1
        if name == "Pick on screen":
            return self.pick()
        opens_menu = "ShowMenu" in node.actions
        self.editor.click(node)
        if node.role == "text":
            wait_for(lambda: node.has("focused"), f"the focus in {name}")
            self.editor.key("ctrl+a")
            self.editor.type(self.dice.choice(WORDS))
            self.editor.key(self.dice.choice(ENDS))
        elif name == "Shortcut":
            self.editor.key(self.dice.choice(SHORTCUTS))
        elif name == "Choose…":
            self.editor.choose_file(self.folder / "backdrop.png")
        elif opens_menu and within(2, self.extra):
            self.editor.key(*["Down"] * self.dice.randrange(1, 4), "Return")

    # The menus and the window.

    def item(self, *path):
        """Chooses an item of the menu bar, unless it cannot be chosen."""
        window = self.editor.window
        try:
            self.editor.open_menu(*path[:-1], window=window)
        except AssertionError:  # the click came while the window changed, as a user's may
            self.settle()
            self.editor.open_menu(*path[:-1], window=window)
        if self.editor.item(*path, window=window).has("enabled"):
            self.editor.click(self.editor.item(*path, window=window))
        else:
            self.editor.close_menu()
        wait_for(lambda: not self.editor.item(path[0], window=window).children[0].showing,
                 "closed menus")

    def choose_from_menu(self):
        self.item(*self.dice.choice([
            ("View", "Live Backdrop"), ("View", "Freeze"), ("View", "Recording Backdrop"),
            ("View", "Zoom 4×"), ("Demo", "Go to Start"), ("Edit", "Select All"),
            ("Edit", "Duplicate"), ("Edit", "Copy"), ("Edit", "Paste"), ("Step", "Delete Step"),
            ("Demo", "Screen Recording", "Record Screen"),
            ("Demo", "Screen Recording", "Don't Record"),
            ("Demo", "Screen Recording", "Show Mouse Cursor"),
        ]))

    def resize(self):
        size = self.dice.randrange(960, 1800), self.dice.randrange(600, 980)
        xdotool("windowsize", self.number, *size)
        window = self.editor.window
        within(2, lambda: abs(window.box[2] - size[0]) < 60)
        self.measure()

    def drag_panes(self):
        middle = self.canvas[1] + self.canvas[3] // 2
        edge = self.dice.choice([self.rows[0] + self.rows[2], self.canvas[0] + self.canvas[2]])
        self.editor.drag((edge, middle), (edge + self.dice.randrange(-80, 80), middle), steps=4)
        self.measure()

    def change_theme(self):
        if self.portal:
            self.portal.change(self.dice.choice([1, 2]))

    def show_about(self):
        self.item("Help", self.dice.choice(["About Velvane", "Check for Updates…"]))
        if within(3, self.extra):
            self.editor.key("Return")
