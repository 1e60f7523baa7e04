#!/usr/bin/python3
"""Picking a target on the real screen: also with a menu of another application open, which holds
the pointer and the keyboard."""

import subprocess
import time

from accessible import wait_for
from driver import xdotool
from fixture import EditorTest, main, move

COUNTING = "Position the cursor over the target — grabbing in "
PICKING = "Pick on screen — position the cursor over the target."
ALL = 40  # seconds for a countdown of ten on a loaded machine


def windows(*criteria):
    """The windows on the screen that these options of xdotool's search find."""
    # Finding none counts as a failure.
    command = ["xdotool", "search", "--onlyvisible", *criteria]
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout.split()


def panels():
    return windows("--name", f"^{COUNTING}")


def label():
    """What the panel says; its title may end in the program's name."""
    found = panels()
    return xdotool("getwindowname", found[0]).strip().split(" — Velvane")[0] if found else ""


def geometry(window):
    told = xdotool("getwindowgeometry", "--shell", window)
    values = dict(line.split("=") for line in told.split())
    return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))


def monitor(*arguments):
    subprocess.run(["xrandr", *arguments], check=True, stderr=subprocess.DEVNULL)


class Picking(EditorTest):
    def begin(self, editor):
        """Picks for the selected step, by the inspector's button."""
        editor.click(editor.find("push button", "Pick on screen"))
        editor.wait_status(PICKING)
        wait_for(panels, "the panel")

    def wait_captured(self, editor, x, y):
        text = f"Captured target at ({x}, {y})"
        wait_for(lambda: text in editor.status, f"the status {text!r}", ALL)
        self.assertEqual(panels(), [])

    def open_selected(self, *steps, **environment):
        editor = self.open(*(steps or [move(10, 20)]), **environment)
        editor.click(editor.row("1"))
        return editor

    def another_application(self):
        """A GTK editor with a menu bar; its one window."""
        file = self.folder / "notes.txt"
        file.write_text("notes\n")
        process = subprocess.Popen(["mousepad", "--disable-server", str(file)],
                                   stderr=subprocess.DEVNULL)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        # The smaller ones of its class are helpers without a picture.
        def shown():
            found = [w for w in windows("--class", "^mousepad$") if geometry(w)[2] > 200]
            return found[0] if found else None

        return wait_for(shown, "the other application")

    def open_its_menu(self, window):
        """Opens the first menu of its menu bar; the menu's window."""
        xdotool("windowactivate", "--sync", window)
        before = windows("--class", "^mousepad$")
        xdotool("key", "--delay", "50", "alt+f")

        def opened():
            new = [w for w in windows("--class", "^mousepad$") if w not in before]
            return new[0] if new else None

        return wait_for(opened, "its menu")

    def test_a_target_is_picked_after_a_countdown_of_ten(self):
        editor = self.open_selected()
        active = xdotool("getactivewindow")
        self.begin(editor)
        panel = panels()[0]
        first = label()
        self.assertIn(first, [f"{COUNTING}{n}s · Esc to cancel" for n in (10, 9)])
        x, y, width, height = geometry(panel)
        self.assertEqual((y, height), (40, 56))
        self.assertGreaterEqual(width, 500)
        self.assertLessEqual(abs(2 * x + width - 1920), 1)
        self.assertEqual(xdotool("getactivewindow"), active)
        # It lies over the editor; what is under the pointer there is something else.
        under = xdotool("mousemove", x + width // 2, y + height // 2, "getmouselocation", "--shell")
        self.assertNotIn(f"WINDOW={panel}\n", under)
        wait_for(lambda: label() == f"{COUNTING}7s · Esc to cancel", "seven seconds left")
        xdotool("mousemove", 333, 222)
        self.wait_captured(editor, 333, 222)
        editor.wait_rows("1, Move to (333, 222)")
        self.assert_steps(editor, "point", [[333.0, 222.0]])
        editor.key("ctrl+z")
        editor.wait_rows("1, Move to (10, 20)")

    def test_with_a_menu_of_another_application_open_it_picks_an_item(self):
        other = self.another_application()
        editor = self.open_selected()
        editor.choose_item("Step", "Pick Location on Screen…")
        editor.wait_status(PICKING)
        menu = self.open_its_menu(other)
        x, y, width, height = geometry(menu)
        place = (x + width // 3, y + height // 4)
        xdotool("mousemove", *place)
        self.wait_captured(editor, *place)
        self.assertIn(menu, windows("--class", "^mousepad$"), "its menu is still open")
        xdotool("key", "Escape")
        editor.wait_rows("1, Move to ({}, {})".format(*place))

    def test_escape_ends_it_in_another_applications_menu_too(self):
        other = self.another_application()
        editor = self.open_selected()
        ours = xdotool("getactivewindow").strip()
        self.begin(editor)
        began = time.monotonic()
        self.open_its_menu(other)
        xdotool("key", "Escape")
        wait_for(lambda: not panels(), "the panel to go")
        wait_for(lambda: time.monotonic() > began + 12, "the time when it would have ended")
        self.assertEqual(editor.status, [PICKING])
        xdotool("windowactivate", "--sync", ours)
        self.assert_steps(editor, "point", [[10.0, 20.0]])

    def test_a_second_pick_drops_the_first(self):
        editor = self.open_selected(move(10, 20), move(30, 40))
        self.begin(editor)
        wait_for(lambda: label() == f"{COUNTING}8s · Esc to cancel", "eight seconds left")
        editor.click(editor.row("2"))
        self.begin(editor)
        wait_for(lambda: label() == f"{COUNTING}9s · Esc to cancel", "the new countdown")
        self.assertEqual(len(panels()), 1)
        xdotool("mousemove", 444, 111)
        self.wait_captured(editor, 444, 111)
        self.assert_steps(editor, "point", [[10.0, 20.0], [444.0, 111.0]])

    def test_left_of_the_primary_display_is_the_canvass_edge(self):
        monitor("--setmonitor", "aside", "960/254x1080/285+0+0", "none")
        self.addCleanup(monitor, "--delmonitor", "aside")
        monitor("--setmonitor", "*main", "960/254x1080/285+960+0", "screen")
        self.addCleanup(monitor, "--delmonitor", "main")
        editor = self.open_selected()
        self.begin(editor)
        xdotool("mousemove", 500, 300)
        self.wait_captured(editor, 0, 300)
        self.begin(editor)
        xdotool("mousemove", 960 + 123, 1079)
        self.wait_captured(editor, 123, 800)

    def test_with_large_pixels_places_are_still_those_of_the_screen(self):
        editor = self.open_selected(QT_SCALE_FACTOR="1.5")
        self.begin(editor)
        x, y, width, height = geometry(panels()[0])
        self.assertEqual((y, height), (60, 84))
        self.assertLessEqual(abs(2 * x + width - 1920), 2)
        xdotool("mousemove", 1111, 333)
        self.wait_captured(editor, 1111, 333)

    def test_closing_the_window_ends_it(self):
        editor = self.open_selected()
        self.begin(editor)
        editor.key("ctrl+w")
        wait_for(lambda: not panels(), "the panel to go")


if __name__ == "__main__":
    main()
