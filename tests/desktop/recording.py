#!/usr/bin/python3
"""Recording real actions from the command line: the steps that are saved are compared with what an
independent listener heard; run live, they make the same input again."""

import os
import plistlib
import signal
import subprocess
import time
from pathlib import Path

from accessible import wait_for
from driver import xdotool
from fixture import PROGRAM, main, step
from recorder import (LEFT, REST, RIGHT, SCREEN, RecordingTest, active, place, shown, stacked,
                      without)
from server import Server

ESCAPE, RETURN, C = 9, 36, 54  # X key codes
CLOSE = 0.02  # seconds; how exactly the moment of an event is known


class FromTheCommandLine(RecordingTest):
    def perform(self, terminal, editor):
        """A little of everything, in two programs, by another process."""
        x, y, width, height = place(editor)
        xdotool("mousemove", 300, 300)
        time.sleep(REST)
        xdotool("click", LEFT)
        time.sleep(REST)
        xdotool("type", "--delay", 30, "hello you")
        xdotool("key", "Return")
        xdotool("key", "ctrl+c")
        time.sleep(REST)
        xdotool("mousemove", x + width // 2, y + height // 2, "click", LEFT)
        wait_for(lambda: active() == editor, "the editor in front")
        xdotool("type", "--delay", 30, "words")
        time.sleep(REST)
        xdotool("mousemove", x + 60, y + height // 2, "mousedown", LEFT)
        for way in (20, 50, 90):
            xdotool("mousemove", x + 60 + way, y + height // 2 + way // 3)
        xdotool("mouseup", LEFT)
        time.sleep(REST)
        xdotool("key", "Escape")
        return (x + width // 2, y + height // 2), (x + 60, y + height // 2)

    def test_what_is_posted_is_what_is_saved_and_what_a_live_run_makes_again(self):
        editor, terminal = self.mousepad(), self.xterm()
        self.write(step("wait", pauseAfter=0.5))
        process = self.record()
        since = self.heard.forget()
        middle, grip = self.perform(terminal, editor)
        posted = self.heard.events[since:]
        out, err = process.communicate(timeout=60)
        steps = self.steps[1:]
        self.assertEqual((out, err), (f"Recorded {len(steps)} steps with screen recording.\n", ""))
        self.compare_steps(without(steps, "switchApp"), middle, grip)
        self.compare_times(steps, posted)
        switches = [step["text"] for step in steps if step["kind"] == "switchApp"]
        self.assertEqual(len(switches), 1, switches)

        # The terminal is in front again, as when it began.
        xdotool("windowactivate", "--sync", terminal)
        again = self.heard.forget()
        self.ended(self.command("run", "--no-countdown"), 0, out="Live run finished.\n")
        self.assertEqual(self.heard.buttons(again), self.buttons_of(posted))
        self.assertEqual(self.pressed(self.heard.events[again:]), self.pressed(posted))
        self.assertEqual(self.heard.held(), set())

    def buttons_of(self, events):
        return [event[1:5] for event in events if event[1].startswith("button")]

    def pressed(self, events):
        """The keys that went down; in which order they come up is no step's."""
        return [event[2] for event in events if event[1] == "key-down" and event[2] != ESCAPE]

    def compare_steps(self, steps, middle, grip):
        self.assertEqual(
            [step["kind"] for step in steps],
            ["move", "click", "type", "shortcut", "shortcut", "move", "click", "type",
             "move", "hold", "move", "release"])
        points = [tuple(step["point"]) for step in steps if step["kind"] == "move"]
        self.assertEqual(points, [(300, 300), middle, grip, (grip[0] + 90, grip[1] + 30)])
        self.assertEqual([s["text"] for s in steps if s["kind"] == "type"], ["hello you", "words"])
        keys = [(s["keyCode"], s["modifiers"]) for s in steps if s["kind"] == "shortcut"]
        self.assertEqual(keys, [(36, 0), (8, 0x40000)])
        for one in steps:
            self.assertAlmostEqual(one["pauseAfter"] * 10, round(one["pauseAfter"] * 10))
            self.assertLessEqual(one["pauseAfter"], 2.5)

    def compare_times(self, steps, posted):
        """The steps' offsets and pauses are those of the events, as the server has them."""
        ups = [event[0] / 1000 for event in posted if event[1] == "button-up"]
        offsets = [s["recordedOffset"] for s in steps if s["kind"] in ("click", "release")]
        for (a, b), (c, d) in zip(zip(ups, ups[1:]), zip(offsets, offsets[1:])):
            self.assertAlmostEqual(b - a, d - c, delta=CLOSE)
        all_offsets = [s["recordedOffset"] for s in steps]
        self.assertEqual(all_offsets, sorted(all_offsets))
        enter = next(e[0] for e in posted if e[1:3] == ("key-down", RETURN)) / 1000
        control = next(e[0] for e in posted if e[1:3] == ("key-down", C)) / 1000
        shortcut = next(s for s in steps if s["kind"] == "shortcut")
        self.assertAlmostEqual(shortcut["pauseAfter"], min(control - enter, 2.5), delta=0.05 + CLOSE)

    def test_the_movie_shows_what_happened_when_it_did(self):
        # Return turns it from red to blue.
        self.application("xterm", "xterm", "-geometry", "60x20+100+200", "-e", "sh", "-c",
                         r"printf '\033]11;#b02020\007'; read x; "
                         r"printf '\033]11;#2020b0\007'; cat")
        self.write()
        process = self.record()
        time.sleep(1)
        xdotool("key", "Return")
        time.sleep(1)
        xdotool("mousemove", 1200, 900, "click", RIGHT)
        time.sleep(REST)
        xdotool("key", "Escape")
        self.ended(process, 0, out="Recorded 3 steps with screen recording.\n")
        saved = plistlib.loads(self.demo.read_bytes())
        movie = Path(saved["recordingBookmark"].decode().split("\n")[4])
        self.assertEqual(movie.parent, Path.home() / "Movies" / "Velvane")
        turned = saved["steps"][0]["recordedOffset"]
        colors = self.colors(movie)
        self.assertEqual(colors[0][1], "red")
        self.assertEqual(colors[-1][1], "blue")
        blue = next(time for time, color in colors if color == "blue")
        print(f"the movie turns {1000 * (blue - turned):.0f} ms after its step")
        # The terminal takes some time, and the movie's pictures are a frame apart.
        self.assertGreater(blue, turned - 0.02)
        self.assertLess(blue, turned + 0.08)

    def colors(self, movie):
        """When pictures show, in seconds, and what of red and blue in the middle of the terminal."""
        told = subprocess.run(
            ["ffprobe", "-v", "error", "-select_streams", "v", "-show_entries", "frame=pts_time",
             "-of", "csv=p=0", str(movie)], capture_output=True, check=True, text=True).stdout
        times = [float(line.strip(",")) for line in told.split()]
        pixels = subprocess.run(
            ["ffmpeg", "-nostdin", "-v", "error", "-i", str(movie), "-fps_mode", "passthrough",
             "-vf", "crop=16:16:300:350,scale=1:1", "-f", "rawvideo", "-pix_fmt", "rgb24", "-"],
            capture_output=True, check=True).stdout
        self.assertEqual(len(pixels), 3 * len(times))
        return [(time, "red" if pixels[3 * i] > pixels[3 * i + 2] else "blue")
                for i, time in enumerate(times)]

    def test_a_full_disk_costs_only_the_movie(self):
        self.xterm()
        self.write()
        process = subprocess.Popen(
            ["sh", "-c", 'ulimit -f 16; exec "$0" record "$1"', PROGRAM, str(self.demo)],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.addCleanup(process.kill)
        self.wait_capturing()
        for _ in range(12):
            xdotool("type", "--delay", 5, "much to show " * 4)
            xdotool("key", "Return")
        xdotool("key", "Escape")
        out, err = process.communicate(timeout=60)
        self.assertEqual(process.returncode, 0, err)
        self.assertRegex(err, r"^Recording stopped: .+\n$")
        self.assertRegex(out, r"^Recorded 24 steps( with screen recording)?\.$")
        self.assertEqual(len(self.steps), 24)

    def test_a_layout_that_changes_in_a_word_is_followed(self):
        self.xterm()
        self.write()
        process = self.record()
        self.addCleanup(subprocess.run, ["setxkbmap", "us"], check=False)
        y_of_us = 29
        xdotool("key", y_of_us)
        subprocess.run(["setxkbmap", "de"], check=True)
        xdotool("key", y_of_us)
        xdotool("key", "Escape")
        self.ended(process, 0, out="Recorded 1 step with screen recording.\n")
        self.assertEqual([s["text"] for s in self.steps], ["yz"])

    def test_a_flood_of_events_is_recorded_whole(self):
        self.xterm()
        self.write()
        process = self.record()
        motions = [word for i in range(2000) for word in ("mousemove", 200 + i % 300, 300)]
        xdotool("mousemove", 200, 300, "click", LEFT, *motions, "mousemove", 900, 600)
        xdotool("type", "--delay", 0, "x" * 300)
        xdotool("click", RIGHT)
        xdotool("key", "Escape", "Escape")
        process.wait(60)
        steps = without(self.steps, "switchApp")
        self.assertEqual([s["kind"] for s in steps if s["kind"] != "move"],
                         ["click", "type", "rightClick"])
        self.assertEqual(next(s["text"] for s in steps if s["kind"] == "type"), "x" * 300)
        self.assertEqual([s for s in steps if s["kind"] == "move"][-1]["point"], [900, 600])

    def test_escape_in_the_countdown_leaves_the_demo_untouched(self):
        self.write(step("click"))
        before = self.demo.read_bytes()
        process = self.command("record")
        self.panel("Recording starts in")
        xdotool("key", "Escape")
        self.ended(process, 0, out="Recording stopped — no actions captured.\n")
        self.assertEqual(self.demo.read_bytes(), before)
        self.assertEqual(shown("Recording", "--name"), [])

    def test_a_pointer_that_rests_is_a_step(self):
        self.write()
        process = self.record()
        xdotool("mousemove", 700, 600)
        time.sleep(REST)
        xdotool("mousemove", 900, 300)
        time.sleep(REST)
        xdotool("key", "Escape")
        self.ended(process, 0, out="Recorded 2 steps with screen recording.\n")
        self.assertEqual([(s["kind"], s["point"]) for s in self.steps],
                         [("move", [700, 600]), ("move", [900, 300])])

    def test_ctrl_c_ends_it_and_saves(self):
        self.write()
        process = self.record()
        xdotool("mousemove", 700, 700, "click", LEFT)
        wait_for(lambda: len(self.heard.buttons()) == 2, "the click")
        time.sleep(REST)
        process.send_signal(signal.SIGINT)
        self.ended(process, 0, out="Recorded 2 steps with screen recording.\n")
        self.assertEqual([s["kind"] for s in self.steps], ["move", "click"])

    def test_a_terminal_that_closes_ends_it_and_saves(self):
        self.write()
        process = self.record()
        xdotool("mousemove", 700, 700, "click", LEFT)
        wait_for(lambda: len(self.heard.buttons()) == 2, "the click")
        time.sleep(REST)
        process.send_signal(signal.SIGHUP)
        self.ended(process, 0, out="Recorded 2 steps with screen recording.\n")
        self.assertEqual([s["kind"] for s in self.steps], ["move", "click"])

    def test_a_display_that_goes_takes_no_steps_with_it(self):
        server = Server()
        self.addCleanup(server.stop)
        environment = {**os.environ, "DISPLAY": server.display}
        manager = subprocess.Popen(["openbox"], env=environment, stderr=subprocess.DEVNULL)
        self.addCleanup(manager.wait)
        self.addCleanup(manager.kill)
        self.write()
        process = self.command("record", DISPLAY=server.display)

        def on_it(*arguments):
            return subprocess.run(["xdotool", *map(str, arguments)], env=environment,
                                  capture_output=True, check=False).returncode == 0

        for text in ("Recording starts in", "● Recording"):
            wait_for(lambda: on_it("search", "--onlyvisible", "--name", f"^{text}"), text)
        on_it("mousemove", 700, 700, "click", LEFT)
        time.sleep(REST)
        server.stop()
        told = process.communicate(timeout=60)
        self.assertEqual([s["kind"] for s in self.steps], ["move", "click"], told)

    def test_a_smaller_canvas_is_told_and_kept(self):
        self.write(canvas=(1280, 800))
        process = self.record()
        xdotool("mousemove", 1900, 1000, "click", LEFT)
        time.sleep(REST)
        xdotool("key", "Escape")
        self.ended(process, 0, out="Recorded 2 steps with screen recording.\n",
                   err="The screen (1920 × 1080) is larger than the canvas (1280 × 800): "
                       "what lies beyond is recorded at the canvas's edge.\n")
        self.assertEqual(self.steps[0]["point"], [1280, 800])

    def test_the_panel_lies_above_everything_and_takes_nothing(self):
        terminal = self.xterm()
        self.write()
        process = self.record()
        panel = self.panel("● Recording")
        self.assertEqual(place(panel), ((SCREEN[0] - 360) // 2, 40, 360, 52))
        self.assertEqual(active(), terminal)
        # Whatever comes forward comes below it.
        for window in (self.mousepad(), terminal):
            subprocess.run(["wmctrl", "-i", "-a", window], check=True)
            subprocess.run(["wmctrl", "-i", "-r", window, "-b", "add,fullscreen"], check=True)
            wait_for(lambda: place(window)[2] == SCREEN[0], "a full screen")
            wait_for(lambda: active() == window, "its being active")
            wait_for(lambda: stacked()[0] == int(panel), "the panel on top")
        # A click on it reaches what is below.
        xdotool("mousemove", SCREEN[0] // 2, 60)
        under = xdotool("getmouselocation", "--shell")
        self.assertNotIn(f"WINDOW={panel}\n", under)
        self.assertEqual(active(), terminal)
        xdotool("key", "Escape")
        process.wait(60)
        self.assertEqual(shown("Recording", "--name"), [])

    def test_without_a_display_it_refuses_in_a_sentence(self):
        self.write()
        for display in ("", ":4711"):
            process = self.command("record", DISPLAY=display)
            out, err = process.communicate(timeout=60)
            self.assertEqual((process.returncode, out, err.count("\n")), (1, "", 1), err)

    def test_without_the_record_extension_it_refuses_in_a_sentence(self):
        server = Server("-extension", "RECORD")
        self.addCleanup(server.stop)
        self.write()
        process = self.command("record", DISPLAY=server.display)
        out, err = process.communicate(timeout=60)
        self.assertEqual((process.returncode, out, err.count("\n")), (1, "", 1), err)
        self.assertIn("RECORD", err)


if __name__ == "__main__":
    main()
