#!/usr/bin/python3
"""Live runs on a real display, from the editor and from the command line: what an independent
listener hears is what the demo says, and Esc or a signal at any moment leaves nothing held."""

import os
import plistlib
import signal
import subprocess
from pathlib import Path

from accessible import wait_for
from driver import xdotool
from fixture import CANVAS, PROGRAM, EditorTest, main, move, step
from heard import Heard, clicks, travel
from server import Server

TOUR = Path(__file__).parents[2] / "examples" / "tour.velvane"
START = (640.0, 400.0)
LATE = 0.1  # seconds by which a loaded machine may be late where the pace is compared


class LiveTest(EditorTest):
    def setUp(self):
        super().setUp()
        # Away from where any demo starts.
        xdotool("mousemove", 5, 5)
        self.heard = Heard()
        self.addCleanup(self.heard.close)

    def write(self, *steps):
        root = {"version": 1, "steps": list(steps), "startPoint": list(START),
                "canvasSize": [float(side) for side in CANVAS], "fps": 60}
        self.demo.write_bytes(plistlib.dumps(root, fmt=plistlib.FMT_BINARY))

    def start(self, *options, demo=None, **environment):
        """Starts a run from the command line."""
        process = subprocess.Popen(
            [PROGRAM, "run", str(demo or self.demo), *options],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
            env={**os.environ, "XDG_DATA_HOME": str(self.folder / "data"), **environment})
        self.addCleanup(process.kill)
        return process

    def install(self, name, lines):
        """Makes a .desktop entry that a run from the command line finds."""
        entry = self.folder / "data" / "applications" / f"{name}.desktop"
        entry.parent.mkdir(parents=True)
        entry.write_text(f"[Desktop Entry]\nType=Application\nName={name}\n{lines}")

    def ended(self, process, status, out="", err=None):
        told = process.communicate(timeout=60)
        self.assertEqual((process.returncode, told[0]), (status, out), told[1])
        if err is not None:
            self.assertEqual(told[1], err)
        return told[1]

    def assert_buttons(self, steps, start=START, since=0):
        self.assertEqual(self.heard.buttons(since), clicks(steps, start))


class FromTheCommandLine(LiveTest):
    STEPS = [
        move(300, 200, duration=0.5, pauseAfter=0.1),
        step("click", pauseAfter=0.1),
        step("rightClick", pauseAfter=0.1),
        step("hold", pauseAfter=0.1),
        move(500, 350, duration=0.5, pauseAfter=0.1),
        step("release", pauseAfter=0.1),
        step("shortcut", keyCode=8, modifiers=0x40000, pauseAfter=0.1),
        step("type", text="hey", duration=0.2, pauseAfter=0.1),
    ]

    def test_what_arrives_is_what_the_demo_says(self):
        self.write(*self.STEPS)
        self.ended(self.start("--no-countdown"), 0, "Live run finished.\n")
        self.assert_buttons(self.STEPS)
        self.assertEqual(self.heard.held(), set())
        # Control, C, then three letters, each down and up: evdev's codes and 8.
        self.assertEqual(
            self.heard.keys(),
            [("key-down", 37), ("key-down", 54), ("key-up", 54), ("key-up", 37)]
            + [(f"key-{way}", code) for code in (43, 26, 29) for way in ("down", "up")])

    def test_the_cursor_goes_the_eased_way_at_its_pace(self):
        self.write(move(940, 700, duration=1.0, pauseAfter=0.0), step("wait", pauseAfter=0.2))
        self.ended(self.start("--no-countdown"), 0, "Live run finished.\n")
        motions = self.heard.motions()
        way = [START, *travel(START, (940, 700), 1.0)]
        self.assert_near([m[1:3] for m in motions], way)
        seconds = (motions[-1][0] - motions[0][0]) / 1000
        self.assertAlmostEqual(seconds, 1.0, delta=LATE)

    def assert_near(self, places, way):
        """Each place within a pixel of the way; points on one pixel may arrive once."""
        def distinct(points):
            points = [tuple(map(round, point)) for point in points]
            return [p for p, before in zip(points, [None, *points]) if p != before]

        places, way = distinct(places), distinct(way)
        self.assertEqual(len(places), len(way))
        for place, point in zip(places, way):
            self.assertLessEqual(max(abs(a - b) for a, b in zip(place, point)), 1)

    def test_a_move_while_held_is_a_drag(self):
        self.write(*self.STEPS)
        self.ended(self.start("--no-countdown"), 0, "Live run finished.\n")
        dragged = [place for *_, x, y, held in self.heard.motions() if held for place in [(x, y)]]
        self.assertEqual(dragged[-1], (500, 350))
        self.assertGreater(len(dragged), 20)

    def test_it_begins_with_the_step_of_a_number(self):
        self.write(*self.STEPS)
        self.ended(self.start("--no-countdown", "--from", "3"), 0, "Live run finished.\n")
        self.assert_buttons(self.STEPS[2:], start=(300, 200))

    def stopped_while_held(self, stop):
        self.write(step("hold", pauseAfter=0.1), move(900, 700, duration=60.0),
                   step("type", text="never"))
        process = self.start("--no-countdown")
        wait_for(lambda: len(self.heard.motions()) > 10, "a drag under way")
        stop(process)
        self.ended(process, 1, "Live run stopped.\n")
        # It stopped before the target, and the button came up there.
        self.assertEqual([event[:2] for event in self.heard.buttons()],
                         [("button-down", 1), ("button-up", 1)])
        self.assertLess(len(self.heard.motions()), 60 * 60)
        self.assertEqual(self.heard.held(), set())

    def test_escape_stops_it_with_nothing_held(self):
        self.stopped_while_held(lambda process: xdotool("key", "Escape"))

    def test_ctrl_c_stops_it_with_nothing_held(self):
        self.stopped_while_held(lambda process: process.send_signal(signal.SIGINT))

    def test_a_terminating_signal_stops_it_with_nothing_held(self):
        self.stopped_while_held(lambda process: process.send_signal(signal.SIGTERM))

    def test_escape_in_a_long_pause_or_the_countdown_stops_it_at_once(self):
        self.write(step("click", pauseAfter=3600.0), step("rightClick"))
        process = self.start("--no-countdown")
        wait_for(lambda: len(self.heard.buttons()) == 2, "the click")
        xdotool("key", "Escape")
        self.ended(process, 1, "Live run stopped.\n")
        since = self.heard.forget()
        process = self.start()
        wait_for(lambda: process.stderr.read(1), "the countdown")
        xdotool("key", "Escape")
        self.ended(process, 1, "Live run stopped.\n")
        self.assertEqual(self.heard.buttons(since), [])

    def test_a_server_that_goes_away_ends_it_with_a_sentence(self):
        self.write(step("wait", pauseAfter=3600.0))
        server = Server()
        self.addCleanup(server.stop)
        display = server.display
        process = self.start("--no-countdown", DISPLAY=display)
        wait_for(lambda: pointer_at(display) == START, "the run on the other display")
        server.stop()
        self.ended(process, 1, "Live run stopped: the display has gone.\n")

    def test_without_a_display_it_refuses_in_a_sentence(self):
        self.write(step("click"))
        told = self.ended(self.start(DISPLAY=""), 1)
        self.assertEqual(told.count("\n"), 1)
        self.assertIn("X server", told)

    def test_what_no_desktop_has_is_passed_over(self):
        self.write(move(1e9, -1e9, duration=0.1), step("click"), move(-1e300, 1e300, duration=0.1),
                   *[step("switchApp", text=name, centerWindow=True, pauseAfter=0.0) for name in
                     ("\"'", "../../bin/sh", "$(kill $PPID)", "\x01\n", "%f", "x" * 99999)],
                   step("shortcut", keyCode=65535, modifiers=2**63 - 1, pauseAfter=0.0),
                   move(300, 200, duration=0.1), step("click"))
        self.ended(self.start("--no-countdown"), 0, "Live run finished.\n")
        self.assertEqual(self.heard.buttons()[2:], clicks([step("click")], (300, 200)))
        self.assertEqual(self.heard.held(), set())

    def test_an_absurdly_long_move_ends_with_escape(self):
        self.write(move(900, 700, duration=1e300))
        process = self.start("--no-countdown")
        wait_for(lambda: pointer_at(os.environ["DISPLAY"]) == START, "the run")
        xdotool("key", "Escape")
        self.ended(process, 1, "Live run stopped.\n")

    def test_an_application_without_a_window_holds_nothing_up(self):
        sign = self.folder / "started"
        self.install("Windowless", f"Exec=touch {sign}\n")
        self.write(step("switchApp", text="windowless", centerWindow=True, pauseAfter=0.1),
                   step("click"), step("type", text="x"))
        self.ended(self.start("--no-countdown", "--hide-others"), 0, "Live run finished.\n")
        self.assert_buttons([step("click")])
        wait_for(sign.exists, "the application")

    def test_the_bundled_demo_opens_its_application_and_does_its_steps(self):
        self.install("Wrenfield", "Exec=xterm -class Wrenfield -geometry 100x40 -e cat\n"
                                  "StartupWMClass=Wrenfield\n")
        process = self.start("--no-countdown", demo=TOUR)
        self.addCleanup(lambda: [xdotool("windowkill", number) for number in shown("Wrenfield")])
        wait_for(lambda: shown("Wrenfield"), "the application")
        self.ended(process, 0, "Live run finished.\n")
        tour = plistlib.loads(TOUR.read_bytes())
        self.assert_buttons(tour["steps"], start=tuple(tour["startPoint"]))
        self.assertEqual(self.heard.held(), set())


def shown(name):
    """The windows on the screen whose class is this."""
    # Finding none counts as a failure.
    search = ["xdotool", "search", "--onlyvisible", "--class", name]
    return subprocess.run(search, capture_output=True, text=True, check=False).stdout.split()


def is_minimized(window):
    # A compositing window manager may keep it mapped.
    command = ["xprop", "-id", window, "_NET_WM_STATE"]
    return "_NET_WM_STATE_HIDDEN" in subprocess.run(command, capture_output=True, text=True,
                                                    check=True).stdout


def pointer_at(display):
    told = subprocess.run(["xdotool", "getmouselocation", "--shell"], capture_output=True,
                          text=True, env={**os.environ, "DISPLAY": display}, check=False).stdout
    values = dict(line.split("=") for line in told.split())
    return (int(values.get("X", -1)), int(values.get("Y", -1)))


class FromTheEditor(LiveTest):
    def run_button(self, editor):
        return editor.find("push button", "Run Live")

    def overlay(self, editor):
        """What lies over the window."""
        names = [node.name for node in editor.root.walk(True)]
        return next((n for n in names if "Esc" in n and "\n" in n or "Live run in" in n), "")

    def wait_countdown(self, editor):
        # Each of the three numbers is there only for a moment.
        editor.wait(lambda: self.overlay(editor)[1:].startswith("\nDriving the real cursor"),
                    "the countdown")

    def test_the_toolbar_runs_the_demo_and_the_editor_comes_back(self):
        steps = [move(300, 200, duration=0.3), step("click")]
        editor = self.open(*steps)
        with_window = xdotool("getactivewindow")
        since = self.heard.forget()
        editor.click(self.run_button(editor))
        self.wait_countdown(editor)
        self.assertFalse(self.run_button(editor).has("sensitive"))
        editor.wait_status("Live run finished.")
        editor.wait(lambda: self.run_button(editor).has("sensitive"), "the button")
        self.assertEqual(self.overlay(editor), "")
        # The first two are the click on the button.
        self.assertEqual(self.heard.buttons(since)[2:], clicks(steps, START))
        self.assertEqual(xdotool("getactivewindow"), with_window)
        self.assertEqual(self.heard.held(), set())

    def test_escape_stops_a_drag_and_the_editor_comes_back(self):
        editor = self.open(step("hold"), move(900, 700, duration=60.0))
        window = xdotool("getactivewindow")
        editor.key("ctrl+r")
        wait_for(lambda: len(self.heard.motions()) > 10, "a drag under way")
        editor.wait(lambda: self.overlay(editor) == "Live run in progress — Esc to stop",
                    "the capsule")
        self.assertFalse(self.run_button(editor).has("sensitive"))
        xdotool("key", "Escape")
        editor.wait_status("Live run stopped.")
        self.assertEqual(self.heard.held(), set())
        editor.wait(lambda: xdotool("getactivewindow") == window, "the editor in front")

    def test_escape_in_the_countdown_posts_nothing(self):
        editor = self.open(step("click"))
        editor.key("ctrl+r")
        self.wait_countdown(editor)
        since = self.heard.forget()
        xdotool("key", "Escape")
        editor.wait_status("Live run stopped.")
        self.assertEqual(self.heard.buttons(since) + self.heard.motions(since), [])

    def test_a_run_from_a_step_starts_where_the_move_before_it_went(self):
        steps = [move(300, 200), step("click"), step("rightClick")]
        editor = self.open(*steps)
        editor.click(editor.row("3, Right-click"), button=3)
        editor.wait_menu()
        since = self.heard.forget()
        editor.choose("Run Live from Here")
        editor.wait_status("Live run finished.")
        self.assertEqual(self.heard.buttons(since), clicks(steps[2:], (300, 200)))

    def test_closing_the_window_stops_the_run_first(self):
        editor = self.open(step("hold"), step("wait", pauseAfter=3600.0))
        editor.key("ctrl+r")
        wait_for(lambda: self.heard.held() == {("button", 1)}, "the hold")
        editor.key("alt+F4")
        editor.wait(lambda: self.heard.held() == set(), "the button to come up")

    def test_others_are_hidden_and_we_come_back(self):
        editor = self.open(step("switchApp", text="Nobody", pauseAfter=3600.0))
        window = xdotool("getactivewindow").strip()
        editor.click(editor.find("push button", "Run options"))
        editor.wait_menu()
        editor.choose("Hide other apps during run")
        editor.key("ctrl+r")
        wait_for(lambda: is_minimized(window), "the editor to hide")
        xdotool("key", "Escape")
        wait_for(lambda: not is_minimized(window), "the editor")
        editor.wait_status("Live run stopped.")
        editor.wait(lambda: xdotool("getactivewindow").strip() == window, "the editor in front")


if __name__ == "__main__":
    main()
