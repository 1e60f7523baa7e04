#!/usr/bin/python3
"""The live screen as the backdrop: the canvas shows the desktop behind the editor as if neither the
editor nor its menus and dialogs were there."""

import ctypes
import plistlib
import subprocess

from accessible import wait_for
from fixture import EditorTest, main, step

SCREEN = (1920, 1080)
LEFT, RIGHT = "#204080", "#805020"  # the scene's halves
MARKS = ["#20A020", "#A020A0"]  # of what comes into the scene later, one for each look
MARK = (20, 200, 160, 200)  # where: beside the editor
COLUMNS, ROWS = 48, 27  # of the grid that is compared


def tone(color):
    return tuple(int(color[i:i + 2], 16) for i in (1, 3, 5))


def alike(a, b):
    """Scaling mixes nothing within one colour, but may round."""
    return max(abs(x - y) for x, y in zip(a, b)) <= 6


class Picture:
    """The whole screen as it is to be seen now."""

    def __init__(self):
        command = ["import", "-window", "root", "-depth", "8", "rgb:-"]
        self.bytes = subprocess.run(command, check=True, capture_output=True).stdout

    def at(self, x, y):
        start = 3 * (y * SCREEN[0] + x)
        return tuple(self.bytes[start:start + 3])


class Attributes(ctypes.Structure):
    """Xlib's XSetWindowAttributes."""

    _fields_ = [(name, kind) for kind, names in (
        (ctypes.c_ulong, ["background_pixmap", "background_pixel", "border_pixmap",
                          "border_pixel"]),
        (ctypes.c_int, ["bit_gravity", "win_gravity", "backing_store"]),
        (ctypes.c_ulong, ["backing_planes", "backing_pixel"]), (ctypes.c_int, ["save_under"]),
        (ctypes.c_long, ["event_mask", "do_not_propagate_mask"]),
        (ctypes.c_int, ["override_redirect"]), (ctypes.c_ulong, ["colormap", "cursor"]),
    ) for name in names]


class Scene:
    """Windows of one colour each, which no window manager touches."""

    COLOR, UNMANAGED = 1 << 1, 1 << 9  # which attributes are given

    def __init__(self):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XCreateWindow.restype = self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))

    def show(self, color, x, y, width, height, below=False):
        """A new window above all others, or below them."""
        given = Attributes(background_pixel=int(color[1:], 16), override_redirect=1)
        window = ctypes.c_ulong(self.x11.XCreateWindow(
            self.display, self.root, x, y, width, height, 0, 0, 0, None,
            ctypes.c_ulong(self.COLOR | self.UNMANAGED), ctypes.byref(given)))
        if below:
            self.lower(window)
        self.x11.XMapWindow(self.display, window)
        self.x11.XSync(self.display, 0)
        return window

    def lower(self, window):
        self.x11.XLowerWindow(self.display, window)

    def move(self, window, x, y):
        self.x11.XMoveWindow(self.display, window, x, y)
        self.x11.XSync(self.display, 0)

    def close(self):
        self.x11.XCloseDisplay(self.display)


class LiveScreen(EditorTest):
    def setUp(self):
        super().setUp()
        self.scene = Scene()
        self.addCleanup(self.scene.close)
        half = SCREEN[0] // 2
        self.halves = [self.scene.show(LEFT, 0, 0, half, SCREEN[1], below=True),
                       self.scene.show(RIGHT, half, 0, half, SCREEN[1], below=True)]

    def open_live(self):
        root = {"version": 1, "steps": [step("wait")], "startPoint": [-100.0, -100.0],
                "canvasSize": [float(side) for side in SCREEN], "fps": 60}
        self.demo.write_bytes(plistlib.dumps(root, fmt=plistlib.FMT_BINARY))
        editor = self.run_editor()
        editor.key("ctrl+1")
        return editor

    @staticmethod
    def mapping(editor):
        """From points of the scene to those of the screen where the canvas shows them."""
        left, top = editor.on_canvas(0, 0, SCREEN)
        right, bottom = editor.on_canvas(*SCREEN, SCREEN)

        def place(x, y):
            return (round(left + x * (right - left) / SCREEN[0]),
                    round(top + y * (bottom - top) / SCREEN[1]))

        return place

    def faults(self, editor, covered, mark):
        """Points of the scene that the canvas shows in another colour; not those under what covers
        the canvas on the screen."""
        place_of = self.mapping(editor)
        picture = Picture()
        found = []
        for column in range(COLUMNS):
            for row in range(ROWS):
                x = round((column + 0.5) * SCREEN[0] / COLUMNS)
                y = round((row + 0.5) * SCREEN[1] / ROWS)
                place = place_of(x, y)
                if any(l <= place[0] < l + w and t <= place[1] < t + h for l, t, w, h in covered):
                    continue
                inside = MARK[0] <= x < MARK[0] + MARK[2] and MARK[1] <= y < MARK[1] + MARK[3]
                expected = mark if mark and inside else LEFT if x < SCREEN[0] / 2 else RIGHT
                if not alike(picture.at(*place), tone(expected)):
                    found.append((x, y, picture.at(*place)))
        return found

    def wait_scene(self, editor, covered=(), mark=None):
        """The canvas shows the scene and nothing else; `mark` shows that it is of now."""
        last = []

        def shown():
            last[:] = self.faults(editor, covered, mark)
            return not last

        try:
            wait_for(shown, "the scene")
        except AssertionError:
            raise AssertionError(f"{len(last)} points are wrong, such as {last[:6]}") from None

    def marked(self, index):
        """Brings something new into the scene, so that a picture of before can be told."""
        self.scene.show(MARKS[index], *MARK)
        return MARKS[index]

    def test_the_editor_its_menu_and_a_dialog_are_in_no_picture(self):
        editor = self.open_live()
        self.wait_scene(editor)
        x, y, width, height = editor.window.box
        self.assertGreater(width * height, SCREEN[0] * SCREEN[1] / 3, "it covers a good part")

        menu = editor.open_menu("View")[0]
        # Generously: with its frame and its shadow.
        left, top, wide, _ = menu.box
        cover = (left - 40, top - 40, wide + 80, 500)
        self.wait_scene(editor, [cover], self.marked(0))
        editor.close_menu()

        editor.choose_item("Help", "About Velvane")
        button = editor.find("push button", "OK")
        dialog = next(w for w in editor.root.children
                      if w.role in ("dialog", "alert") and w.showing)
        left, top, wide, high = dialog.box
        cover = (left - 60, top - 80, wide + 120, high + 140)
        self.wait_scene(editor, [cover], self.marked(1))
        editor.click(button)
        self.wait_scene(editor, mark=MARKS[1])

    def test_what_moves_behind_the_editor_is_seen_moving(self):
        editor = self.open_live()
        self.wait_scene(editor)
        x, y, width, height = editor.window.box
        ball = self.scene.show(MARKS[0], x + 200, y + 200, 200, 200, below=True)
        for window in self.halves:
            self.scene.lower(window)
        for left in (x + 200, x + width - 500):
            self.scene.move(ball, left, y + 200)
            centre = self.mapping(editor)(left + 100, y + 300)
            wait_for(lambda: alike(tone(editor.color(*centre)), tone(MARKS[0])), "the ball")


if __name__ == "__main__":
    main()
