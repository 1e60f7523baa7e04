#!/usr/bin/python3
"""Recorded live runs on a real display: what is told, where the movie is, that killing the program
or a full disk leaves what was recorded, and that the editor takes the movie as its backdrop."""

import os
import plistlib
import re
import resource
import signal
import subprocess
import time
from pathlib import Path

from accessible import wait_for
from driver import xdotool
from fixture import CANVAS, PROGRAM, EditorTest, main, move, step

ENDS = 0.05  # seconds of computing, at most, to open the movie's file and to complete it


def probe(movie, what):
    command = ["ffprobe", "-v", "error", "-select_streams", "v", "-show_entries", what, "-of",
               "csv=p=0", str(movie)]
    told = subprocess.run(command, capture_output=True, text=True, check=True)
    return told.stdout.split()


def frame_times(movie):
    """When each picture shows, in seconds; each was decoded."""
    # Builds of the tool end the line of a key picture with an empty field.
    return [float(line.strip(",")) for line in probe(movie, "frame=pts_time")]


def duration(movie):
    """Where the last picture's time ends, as far as packets tell."""
    times = [line.split(",")[:2] for line in probe(movie, "packet=pts_time,duration_time")]
    return max(float(pts) + float(length) for pts, length in times)


def slowness():
    """How many times longer than alone on the machine computing takes now."""
    begun, computed = time.monotonic(), time.process_time()
    while time.process_time() - computed < 0.05:
        pass
    return (time.monotonic() - begun) / (time.process_time() - computed)


def is_shown(name):
    """Is a window of that class on the screen?"""
    # Finding none counts as a failure.
    search = ["xdotool", "search", "--onlyvisible", "--class", name]
    return subprocess.run(search, capture_output=True, text=True, check=False).stdout


def fragments_end(movie):
    """Where the last picture's time ends in a movie that was broken off, in seconds: what its last
    fragment tells. Decoding tells when that picture begins."""
    data = movie.read_bytes()
    moof = data.rindex(b"moof")
    scale = int.from_bytes(data[(at := data.index(b"mdhd") + 16):at + 4])
    begin = int.from_bytes(data[(at := data.index(b"tfdt", moof) + 8):at + 8])
    # The flags' bit 3 says that a duration stands after the track's number.
    header = data.index(b"tfhd", moof) + 4
    assert data[header + 3] & 0x08 and not data[header + 3] & 0x03, data[header:header + 24]
    length = int.from_bytes(data[header + 8:header + 12])
    return (begin + length) / scale


class RunRecording(EditorTest):
    def setUp(self):
        super().setUp()
        self.home = self.folder / "home"
        self.home.mkdir()
        self.movies = self.home / "Movies" / "Velvane"
        xdotool("mousemove", 5, 5)

    def start(self, *options, **arguments):
        process = subprocess.Popen(
            [PROGRAM, "run", str(self.demo), "--no-countdown", "--record", *options],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
            env={**os.environ, "HOME": str(self.home)}, **arguments)
        self.addCleanup(process.kill)
        return process

    def write(self, *steps):
        root = {"version": 1, "steps": list(steps), "startPoint": [640.0, 400.0],
                "canvasSize": [float(side) for side in CANVAS], "fps": 60}
        self.demo.write_bytes(plistlib.dumps(root, fmt=plistlib.FMT_BINARY))

    def ended(self, process, status=0):
        out, err = process.communicate(timeout=90)
        self.assertEqual(process.returncode, status, err)
        return out, err

    def busy_scene(self):
        """Something that never stands still."""
        # Its own line of random text again and again.
        process = subprocess.Popen(["xterm", "-geometry", "150x50+0+0", "-e",
                                    "while true; do head -c 3000 /dev/urandom | base64; done"])
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        wait_for(lambda: is_shown("xterm"), "the scene")

    def recorded(self):
        """The only movie, once it holds pictures."""
        def found():
            movies = list(self.movies.glob("*.mp4")) if self.movies.is_dir() else []
            return movies and b"moof" in movies[0].read_bytes()[:4096] and movies[0]
        return wait_for(found, "a recording under way")

    def test_the_movie_is_told_and_is_as_long_as_the_run(self):
        self.write(move(300, 200, duration=0.5), step("wait", pauseAfter=1.5))
        slow = slowness()
        out, err = self.ended(self.start("screen"))
        slow = max(slow, slowness())
        told = re.fullmatch(r"Recording saved to (run-[\d-]+\.mp4) — revealed in Finder\.\n"
                            r"(/.+)\n", out)
        self.assertTrue(told, out + err)
        movie = Path(told[2])
        self.assertEqual(movie, self.movies / told[1])
        self.assertEqual(probe(movie, "stream=codec_name,width,height"), ["h264,1920,1080"])
        # The moves alone take half a second and the pauses 1.8.
        self.assertGreater(duration(movie), 2.2)
        # The folder changed last when the file came into it, and the file when it was completed.
        length = movie.stat().st_mtime - self.movies.stat().st_mtime
        self.assertAlmostEqual(duration(movie), length, delta=ENDS * slow)
        self.assertGreater(len(frame_times(movie)), 10)

    def test_without_the_window_it_records_the_screen_and_says_so(self):
        self.write(step("switchApp", text="Nobody", pauseAfter=0.5))
        out, _ = self.ended(self.start("window", "--no-cursor"))
        self.assertIn(" (window not found — recorded full screen) — revealed in Finder.\n", out)

    def test_the_window_of_the_one_application_is_recorded(self):
        entries = self.folder / "data" / "applications"
        entries.mkdir(parents=True)
        (entries / "Wrenfield.desktop").write_text(
            "[Desktop Entry]\nType=Application\nName=Wrenfield\nExec=true\n"
            "StartupWMClass=Wrenfield\n")
        window = subprocess.Popen(["xterm", "-class", "Wrenfield", "-e", "cat"])
        self.addCleanup(window.wait)
        self.addCleanup(window.kill)
        wait_for(lambda: is_shown("Wrenfield"), "the window")
        self.write(step("switchApp", text="wrenfield", pauseAfter=0.7))
        os.environ["XDG_DATA_HOME"] = str(self.folder / "data")
        self.addCleanup(os.environ.pop, "XDG_DATA_HOME")
        out, err = self.ended(self.start("window"))
        self.assertNotIn("full screen", out, err)
        width, height = map(int, probe(out.splitlines()[1], "stream=width,height")[0].split(","))
        self.assertLess(width, 1920)
        self.assertEqual((width % 2, height % 2), (0, 0))

    def test_killed_it_leaves_a_movie_to_within_the_last_second(self):
        for scene in ("still", "busy"):
            with self.subTest(scene):
                if scene == "busy":
                    self.busy_scene()
                self.write(step("wait", pauseAfter=3600.0))
                begun = time.monotonic()
                process = self.start("screen")
                movie = self.recorded()
                at_least = time.monotonic()  # the recording had begun by then
                time.sleep(3.4)
                process.send_signal(signal.SIGKILL)
                process.wait()
                killed = time.monotonic()
                length = fragments_end(movie)
                self.assertAlmostEqual(float(probe(movie, "format=duration")[0]), length, 2)
                self.assertLessEqual(frame_times(movie)[-1], length)
                self.assertGreater(length, killed - at_least - 1.0)
                self.assertLess(length, killed - begun + 0.1)
                self.assertGreater(len(frame_times(movie)), 3)
                movie.unlink()

    def full_disk(self):
        """A home with little room; where none can be made, as little room for each file."""
        self.movies.mkdir(parents=True)
        size = 600_000
        mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs",
                                  str(self.movies)], capture_output=True, check=False)
        if mounted.returncode == 0:
            self.addCleanup(subprocess.run, ["umount", "-l", str(self.movies)], check=False)
            return {}, "No space left on device"

        def limit():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))
        return {"preexec_fn": limit, "restore_signals": False}, "File too large"

    def test_a_full_disk_ends_the_recording_and_keeps_what_was_written(self):
        arguments, reason = self.full_disk()
        self.busy_scene()
        self.write(step("wait", pauseAfter=6.0))
        out, err = self.ended(self.start("screen", **arguments))
        self.assertEqual(err, f"Recording stopped: {reason}\n")
        movie = Path(out.splitlines()[1])
        self.assertLessEqual(movie.stat().st_size, 600_000)
        self.assertGreater(len(frame_times(movie)), 0)

    def test_a_disk_that_is_full_already_keeps_no_run_from_being_made(self):
        self.home.joinpath("Movies").write_text("in the way")
        self.write(step("wait", pauseAfter=0.2))
        out, err = self.ended(self.start("screen"))
        self.assertEqual(out, "Live run finished.\n")
        self.assertEqual(err, "Couldn't start recording: Not a directory\n")

    def test_in_the_editor_the_movie_becomes_the_backdrop(self):
        editor = self.open(step("wait", pauseAfter=1.0), HOME=str(self.home))
        editor.click(editor.find("push button", "Run options"))
        editor.wait_menu()
        editor.choose("Record screen")
        editor.key("ctrl+r")
        movie = self.recorded()
        editor.wait_status(f"Recording saved to {movie.name} — revealed in Finder.")
        self.assertGreater(duration(movie), 1.0)
        editor.key("ctrl+3")
        editor.find("slider", "Recording time")
        editor.saved_steps()
        saved = plistlib.loads(self.demo.read_bytes())
        self.assertEqual(saved["recordingBookmark"].splitlines()[-1], str(movie).encode())


if __name__ == "__main__":
    main()
