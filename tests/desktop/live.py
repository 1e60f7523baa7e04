#!/usr/bin/python3
"""Live runs from the command line on a real display: what an independent listener hears is what
the demo says, and Esc or a signal at any moment leaves nothing held."""

import os
import plistlib
import select
import signal

from accessible import wait_for
from driver import xdotool
from fixture import main, move, step
from heard import clicks, travel
from live_fixture import START, TOUR, LiveTest, pointer_at, shown
from server import Server

LATE = 0.1  # seconds by which a loaded machine may be late where the pace is compared


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

    def test_a_click_in_a_hold_does_not_end_the_drag(self):
        self.write(step("hold", pauseAfter=0.1), step("click", pauseAfter=0.1),
                   move(500, 350, duration=0.5, pauseAfter=0.1), step("wait", pauseAfter=0.1))
        self.ended(self.start("--no-countdown"), 0, "Live run finished.\n")
        # To the server a button is pressed and let go; the drag presses it again.
        self.assertEqual(
            self.heard.buttons(),
            [("button-down", 1, *START), ("button-up", 1, *START)]
            + [("button-down", 1, *START), ("button-up", 1, 500, 350)])
        dragged = [place[1:3] for place in self.heard.motions() if place[3]]
        self.assertEqual(dragged[-1], (500, 350))
        self.assertGreater(len(dragged), 20)
        self.assertEqual(self.heard.held(), set())

    def test_the_pause_after_typing_is_whole_though_keys_were_lent_characters(self):
        self.write(step("type", text="a日", duration=0.1, pauseAfter=1.0), step("click"))
        self.ended(self.start("--no-countdown"), 0, "Live run finished.\n")
        typed = [event for event in self.heard.events if event[1] == "key-up"][-1]
        clicked = next(event for event in self.heard.events if event[1] == "button-down")
        # Taking the character back alone takes 0.3 s more.
        self.assertGreaterEqual((clicked[0] - typed[0]) / 1000, 1.3)

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
        told, _, _ = select.select([process.stderr], [], [], 30)
        self.assertTrue(told, "the countdown")
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


if __name__ == "__main__":
    main()
