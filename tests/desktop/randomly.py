"""A test case in which random hands work on several demos at once."""

import os
import plistlib
import random
import subprocess
import sys
from pathlib import Path

from accessible import wait_for
from driver import Editor, xdotool
from fixture import PROGRAM, EditorTest, move, step, write_demo
from hands import Hands
from looking import active
from portal import DARK, Portal

# No name is a part of another's.
NAMES = ["alpha", "bravo", "charlie", "delta", "echo"]
LEAKS = Path(__file__).parent / "leaks.supp"  # for a program built with sanitizers
PICTURE = os.environ.get("VELVANE_PICTURE")


def argument(kind, default):
    """The next argument of the command line, which unittest must not see."""
    return kind(sys.argv.pop(1)) if len(sys.argv) > 1 else default


class RandomTest(EditorTest):
    """`opened` has what each demo was when it was opened, `front` the name of the one worked on."""

    seed = 1

    def setUp(self):
        super().setUp()
        # Turned over the bare desktop the wheel would go to another: the editor may not be back yet.
        xdotool("set_num_desktops", 1)
        self.dice = random.Random(self.seed)
        self.count = 0
        self.home = self.folder / "home"
        applications = self.home / "data" / "applications"
        applications.mkdir(parents=True)
        for name in ("Atlas", "Bell"):
            (applications / f"{name}.desktop").write_text(
                f"[Desktop Entry]\nType=Application\nName={name}\nExec=true\n")
        subprocess.run(["convert", "-size", "640x400", "plasma:fractal",
                        str(self.folder / "backdrop.png")], check=True)
        for name in NAMES:
            write_demo(self.path(name), step("section", text="One"), move(300, 200), step("click"),
                       step("type", text=name), step("wait"))
        self.portal = Portal(DARK)
        self.addCleanup(self.portal.close)

    def path(self, name):
        return self.folder / f"{name}.velvane"

    # Demos and their windows.

    def start(self):
        name = self.dice.choice(NAMES)
        self.editor = Editor(PROGRAM, self.path(name), scheme="", HOME=str(self.home),
                             XDG_CONFIG_HOME=str(self.home / "config"),
                             XDG_DATA_HOME=str(self.home / "data"),
                             LSAN_OPTIONS=f"suppressions={LEAKS}")
        self.addCleanup(self.editor.close)
        self.hands = Hands(self.editor, self.dice, self.folder, self.portal)
        self.opened = {}
        self.front = None
        self.take(name)

    def take(self, name):
        self.front = name
        window = wait_for(lambda: self.window(name), f"window {name}")
        self.hands.take(window)
        if name not in self.opened:
            self.opened[name] = self.save()

    def window(self, name):
        windows = self.editor.windows
        return next((w for w in windows if w.name.rstrip("*") == name), None)

    def open(self, name):
        """Opens a demo by the file panel."""
        self.editor.key("ctrl+o")
        self.editor.choose_file(self.path(name))
        window = wait_for(lambda: self.window(name), f"window {name}")
        wait_for(lambda: window.has("active"), f"{name} in front")
        self.take(name)

    def save(self):
        """Saves the demo in front; what its file holds then."""
        self.hands.settle()
        self.hands.focus_canvas()
        file = self.path(self.front)
        before = file.stat().st_ino
        self.editor.key("ctrl+s")
        # A save puts a new file in place.
        wait_for(lambda: file.stat().st_ino != before, f"{file.name} to be saved")
        wait_for(lambda: self.window(self.front).name == self.front, "the mark of changes to go")
        return plistlib.loads(file.read_bytes())

    def close(self, answer):
        """Closes the window in front; a changed demo is saved or not, as the answer says."""
        name = self.front
        self.hands.settle()
        changed = self.window(name).name.endswith("*")
        self.editor.key("ctrl+w")
        if changed:
            self.editor.wait_question(f"Do you want to save the changes to “{name}”?")
            self.editor.answer(answer)
        wait_for(lambda: not self.window(name), f"{name} to close")
        self.hands.forget()
        del self.opened[name]

    def next_window(self):
        """Works on in the window that is in front after another was closed, or opens one."""
        if self.opened:
            name = self.dice.choice(list(self.opened))
            self.editor.activate(self.window(name))
            self.take(name)
        else:
            wait_for(lambda: self.window("Velvane").has("active"), "the start window")
            self.open(self.dice.choice(NAMES))

    # What is done between acts.

    def change_window(self):
        """Opens, closes or changes to a window, or gives the demo in front another name."""
        free = [name for name in NAMES if name not in self.opened]
        what = self.dice.choice(["open", "new", "close", "activate", "rename"])
        self.hands.done[f"{what} a demo"] += 1
        if what == "open" and free:
            self.open(self.dice.choice(free))
        elif what == "new" and free:
            self.editor.key("ctrl+n")
            window = wait_for(lambda: self.window("Untitled"), "the new window")
            self.front = "Untitled"
            self.hands.take(window)
            self.save_as(self.dice.choice(free))
            self.take(self.front)
        elif what == "close":
            self.close(self.dice.choice(["Save", "Don't Save"]))
            self.next_window()
        elif what == "activate":
            self.next_window()
        elif what == "rename" and free:
            self.save_as(self.dice.choice(free))

    def save_as(self, name):
        self.hands.item("File", "Save As…")
        wait_for(self.editor.dialog_field, "the panel to save")
        self.path(name).unlink(missing_ok=True)  # or it would ask whether to replace it
        self.editor.choose_file(self.path(name))
        wait_for(lambda: self.window(name), f"the demo to be called {name}")
        before = self.opened.pop(self.front, None)
        self.front = name
        if before:
            self.opened[name] = before

    def act(self):
        self.hands.act()
        self.count += 1
        if self.dice.random() < 0.05:
            self.change_window()

    def tell(self):
        """How things stand when something went wrong."""
        print(f"act {self.count}: {self.hands.recent}, in {self.front} of {list(self.opened)}")
        if self.editor.is_running:
            print(f"windows {self.editor.windows}, status {self.editor.status}")
            print(f"active {active()} of {self.hands.windows}, extra {self.hands.extra()}", flush=True)
        if PICTURE:
            subprocess.run(["import", "-window", "root", PICTURE], check=False)
