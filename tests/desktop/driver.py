"""Runs the editor on the display of this process and drives it with real X events."""

import os
import plistlib
import signal
import subprocess
import tempfile
from pathlib import Path

from accessible import Focus, Node, application, wait_for

NO_SITE = "http://127.0.0.1:9"  # nothing answers there, and at once
MARGIN = 20  # pixels around the canvas in a window wider than 1200


def xdotool(*arguments):
    command = ["xdotool", *map(str, arguments)]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def active_window():
    """The window with the keyboard; empty while none has it."""
    command = ["xdotool", "getactivewindow"]
    return subprocess.run(command, check=False, capture_output=True, text=True).stdout.strip()


class Editor:
    """One running editor with one demo, in folders of its own."""

    def __init__(self, program, demo, scheme="dark", window=True, single=False, arguments=(),
                 **environment):
        """`scheme` is dark or light, or empty to leave it to the desktop. `demo` may be None.

        Waits for its window unless `window` is False. Several run on one session bus, each for
        itself; one that is `single` is that in which later ones open their demos.
        """
        self.program = str(program)
        self.demo = Path(demo) if demo else None
        self.folder = tempfile.TemporaryDirectory(prefix="velvane-editor.")
        self.home = home = Path(self.folder.name)
        environment = {
            **os.environ,
            "HOME": str(home),
            "XDG_CONFIG_HOME": str(home / "config"),
            "XDG_DATA_HOME": str(home / "data"),
            "XDG_DATA_DIRS": str(home / "system"),
            "LC_ALL": "C.UTF-8",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "VELVANE_SCHEME": scheme,
            "VELVANE_SITE": NO_SITE,
            **environment,
        }
        Node.scale = float(environment.get("QT_SCALE_FACTOR", 1))
        command = [self.program, *([] if single else ["--new-instance"]), *arguments]
        command += [str(demo)] if demo else []
        self.process = subprocess.Popen(command, env=environment)
        self.focus = Focus()
        try:
            self.root = application(self.process.pid)
            if window:
                self.window = wait_for(self._first_window, "the editor's window")
                wait_for(self._is_active, "the window to become active")
        except BaseException:
            self.close()
            raise

    def _first_window(self):
        windows = self.root.all("frame")
        return windows[0] if windows else None

    def _is_active(self):
        return self.window.has("active")

    def close(self):
        """Ends the program, if it still runs, and clears up after it."""
        self.focus.close()
        self.process.terminate()
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self.folder.cleanup()
        if self.process.returncode not in (0, -signal.SIGTERM):
            raise AssertionError(f"the program ended with {self.process.returncode}")

    @property
    def is_running(self):
        return self.process.poll() is None

    # What is there.

    def find(self, role, name=None):
        """The first shown node with this role and name, which may still be on its way."""
        return wait_for(
            lambda: next(self.root.each(role, name), None), f"{role} {name or ''}"
        )

    def wait(self, condition, what):
        return wait_for(condition, what)

    @property
    def windows(self):
        """The editors' windows and the start window, without questions and panels."""
        return [w for w in self.root.children if w.role == "frame" and w.showing]

    def window_of(self, title):
        """The window with this title."""
        return wait_for(
            lambda: next((w for w in self.windows if w.name == title), None), f"window {title}"
        )

    def wait_titles(self, *titles):
        """Waits until these are the titles of the windows, in any order."""
        wanted = sorted(titles)

        def titles_are():
            return sorted(window.name for window in self.windows) == wanted

        try:
            wait_for(titles_are, "windows")
        except AssertionError:
            raise AssertionError(f"windows are {self.windows}, not {wanted}") from None

    def activate(self, window):
        """Makes a window the active one, as a taskbar does."""
        subprocess.run(["wmctrl", "-a", window.name.rstrip("*")], check=True)
        wait_for(lambda: window.has("active"), f"{window} to become active")

    def wait_end(self):
        """Waits until the program has ended by itself, and well."""
        wait_for(lambda: not self.is_running, "the program to end")
        if self.process.returncode != 0:
            raise AssertionError(f"the program ended with {self.process.returncode}")

    def field(self, name):
        return self.find("text", name)

    @property
    def list(self):
        return self.find("list")

    @property
    def rows(self):
        """The names of the rows on show, from the top."""
        return [row.name for row in self.list.children if row.role == "list item"]

    def row(self, start):
        """The row whose name starts so."""
        return wait_for(
            lambda: next((r for r in self.list.children if r.name.startswith(start)), None),
            f"row {start}",
        )

    def wait_rows(self, *starts):
        """Waits until the list's rows are these, each told by the start of its name."""

        def as_told():
            rows = self.rows
            return len(rows) == len(starts) and all(
                row.startswith(start) for row, start in zip(rows, starts)
            )

        try:
            wait_for(as_told, "rows")
        except AssertionError:
            raise AssertionError(f"rows are {self.rows}, not {starts}") from None

    def answer(self, text):
        """Clicks an answer of the question on show and waits until that question has gone."""
        button = self.find("push button", text)
        self.click(button)
        # The next one may have the same answers.
        wait_for(lambda: not self.is_running
                 or button.raw not in [b.raw for b in self.root.all("push button", text)],
                 "the question to go")

    def wait_question(self, text):
        """Waits for a question of these words, or of words that start so."""
        wait_for(
            lambda: any(label.name.startswith(text) for label in self.root.all("label")),
            f"the question {text!r}",
        )

    def choose_file(self, path):
        """Puts a file's path into the file panel on show and accepts it.

        It is not typed: the list of completions takes the keyboard while keys are on their way.
        """
        name = wait_for(self.dialog_field, "the panel's name field")
        name.put(str(path))
        wait_for(lambda: name.text == str(path), "the path in the panel")
        self.key("Return")
        wait_for(lambda: not self.dialog_field(), "the panel to close")

    def dialog_field(self):
        """The text field that has the focus in a dialog, if there is one."""
        dialogs = [w for w in self.root.children if w.role in ("dialog", "file chooser")]
        fields = [field for dialog in dialogs for field in dialog.all("text")]
        return next((field for field in fields if field.has("focused")), None)

    @property
    def status(self):
        return [label.name for label in self.root.all("label") if label.box[1] > self._foot]

    @property
    def _foot(self):
        x, y, width, height = self.window.box
        return y + height - round(30 * Node.scale)

    def wait_status(self, text):
        wait_for(lambda: text in self.status, f"the status {text!r}")

    # Menus.

    def item(self, *path, window=None):
        """An item of the menu bar by the names on the way to it, whether its menu is open or not.

        What it reads is as the menu would open now, but for recent demos and windows, which are
        listed when their menu opens.
        """
        node = self._menu_bar(window or self.window)
        for depth, name in enumerate(path):
            inside = node.children[0].children if depth else node.children
            node = next((item for item in inside if item.name == name), None)
            if not node:
                raise AssertionError(f"there is no {name} among {[i.name for i in inside]}")
        return node

    def open_menu(self, *path, window=None):
        """Opens a menu of the menu bar, or one inside it, by the mouse; its items."""
        for depth in range(1, len(path) + 1):
            item = self.item(*path[:depth], window=window)
            if depth == 1:
                self.click(item)
            else:
                xdotool("mousemove", *item.centre)
            menu = item.children[0]
            wait_for(lambda: menu.children and menu.children[0].showing, f"the menu {path}")
        return [item for item in menu.children if item.role != "separator"]

    def choose_item(self, *path, window=None):
        """Chooses an item of the menu bar by the mouse."""
        self.open_menu(*path[:-1], window=window)
        self.click(self.item(*path, window=window))
        wait_for(lambda: not self.item(path[0], window=window).children[0].showing, "closed menus")

    def close_menu(self):
        """Closes all open menus without choosing."""
        for _ in range(10):
            if not self._menus():
                return
            self.key("Escape")
        raise AssertionError("the menus stay open")

    def _menu_bar(self, window):
        return next(child for child in window.children if child.role == "menu bar")

    def _menus(self):
        children = [child for window in self.windows for child in window.children]
        bars = [child for child in children if child.role == "menu bar"]
        return [menu for bar in bars for item in bar.children for menu in item.children
                if menu.showing]

    def wait_menu(self):
        """Waits until a menu is open. Menus are windows of their own, outside the tree."""
        wait_for(lambda: len(self._shown_windows()) > 1, "an open menu")

    def wait_no_menu(self):
        wait_for(lambda: len(self._shown_windows()) == 1, "the menu to close")

    def menu_items(self):
        """The items of the open menu that can be chosen, from the first, read by walking it."""
        self.wait_menu()
        items = []
        while True:
            name = self.next_item()
            if name in items:
                return items
            items.append(name)

    def next_item(self):
        """Goes to the next item of the open menu; its name."""
        before = self.focus.count
        self.key("Down")
        wait_for(lambda: self.focus.count > before, "the next item of the menu")
        return self.focus.name

    def choose(self, name):
        """Walks the open menu to the item and chooses it."""
        for _ in range(50):
            if self.next_item() == name:
                self.key("Return")
                return self.wait_no_menu()
        raise AssertionError(f"the menu has no {name}")

    def _shown_windows(self):
        return xdotool("search", "--onlyvisible", "--class", "velvane").split()

    # The canvas.

    @property
    def canvas(self):
        return next(n for n in self.root.walk(True) if n.name == "Preview canvas")

    def on_canvas(self, x, y, size=(1280, 800)):
        """Screen pixel of a point of the demo, while the canvas is not magnified."""
        left, top, width, height = self.canvas.box
        width, height = width - 2 * MARGIN, height - 2 * MARGIN
        scale = min(width / size[0], height / size[1])
        return (
            round(left + MARGIN + (width - size[0] * scale) / 2 + x * scale),
            round(top + MARGIN + (height - size[1] * scale) / 2 + y * scale),
        )

    # Mouse and keyboard.

    def click_at(self, x, y, button=1, modifier=None):
        held = ["keydown", modifier] if modifier else []
        let_go = ["keyup", modifier] if modifier else []
        xdotool("mousemove", x, y, *held, "click", button, *let_go)

    def click(self, node, button=1, modifier=None):
        self.click_at(*node.centre, button, modifier)

    def drag(self, start, end, steps=8, release=True):
        """Presses at start, moves to end in small steps and lets go."""
        xdotool("mousemove", *start, "mousedown", 1)
        for k in range(1, steps + 1):
            x = round(start[0] + (end[0] - start[0]) * k / steps)
            y = round(start[1] + (end[1] - start[1]) * k / steps)
            xdotool("mousemove", x, y)
        if release:
            self.release()

    def release(self):
        xdotool("mouseup", 1)

    def key(self, *keys):
        """Presses keys one after another: "Return", "ctrl+z", "shift+Left"."""
        xdotool("key", "--delay", "20", *keys)

    def type(self, text):
        xdotool("type", "--delay", "20", "--", text)

    def fill(self, field, text):
        """Replaces what a field holds and goes on to the next control."""
        self.click(field)
        wait_for(lambda: field.has("focused"), f"the focus in {field}")
        self.key("ctrl+a")
        self.type(text)
        self.key("Tab")

    # The file.

    def saved(self):
        """Saves with Ctrl+S and returns the demo as the file now holds it."""
        before = self.demo.stat().st_ino if self.demo.exists() else None
        self.key("ctrl+s")
        # A save puts a new file in place.
        wait_for(
            lambda: self.demo.exists() and self.demo.stat().st_ino != before, "the saved file"
        )
        return plistlib.loads(self.demo.read_bytes())

    def saved_steps(self):
        return self.saved()["steps"]

    # Pictures.

    def color(self, x, y):
        """The colour of a screen pixel as #RRGGBB."""
        pixel = subprocess.run(
            ["import", "-window", "root", "-crop", f"1x1+{x}+{y}", "-depth", "8", "rgb:-"],
            check=True,
            capture_output=True,
        ).stdout
        return "#" + pixel[:3].hex().upper()

    def picture(self, file, window=None):
        """Writes a window without its frame, and what stands over it, as a PNG."""
        x, y, width, height = (window or self.window).box
        command = ["import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage"]
        subprocess.run([*command, str(file)], check=True)
