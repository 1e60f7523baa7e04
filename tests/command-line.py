#!/usr/bin/env python3
"""The program as its users meet it: exit statuses, one clear line, nothing lost, bounded cost.

usage: command-line.py VELVANE   (VELVANE_SANITIZED=1: no limits on cost)
"""
import json
import os
import plistlib
import resource
import signal
import struct
import subprocess
import sys
import tempfile
import threading
import unittest
import zlib

VELVANE = os.path.abspath(sys.argv.pop(1))
SANITIZED = os.environ.get("VELVANE_SANITIZED") == "1"
MAX_SECONDS = 5
# No program under test takes as long, whatever else the machine does.
PATIENCE = 180
# The texts that are looked for below.
os.environ["LANGUAGE"] = "en"
MAX_BYTES = 500 * 2**20
# A program that begins in our own memory would be charged with the most that we ever had.
subprocess._USE_VFORK = False
FREE_MEMORY = os.sysconf("SC_AVPHYS_PAGES") * os.sysconf("SC_PAGE_SIZE")


class Patience:
    """Ends a process that takes too long, so that whoever waits for it fails and goes on."""

    def __init__(self, process):
        self.timer = threading.Timer(PATIENCE, process.kill)

    def __enter__(self):
        self.timer.start()

    def __exit__(self, *_):
        self.timer.cancel()


class Result:
    def __init__(self, arguments, limits=None, env=None, cwd=None):
        with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
            process = subprocess.Popen([VELVANE, *arguments], stdin=subprocess.DEVNULL, stdout=out,
                                       stderr=err, preexec_fn=limits, cwd=cwd,
                                       env={**os.environ, **(env or {})})
            with Patience(process):
                _, status, usage = os.wait4(process.pid, 0)
                process.returncode = os.waitstatus_to_exitcode(status)
            self.status = process.returncode
            # The processor's: others may be busy with it too.
            self.seconds = usage.ru_utime + usage.ru_stime
            self.bytes = usage.ru_maxrss * 1024
            out.seek(0)
            err.seek(0)
            self.out = out.read().decode()
            self.err = err.read().decode()


def demo(**changes):
    root = {"version": 1, "startPoint": [10.0, 10.0], "canvasSize": [320.0, 200.0], "fps": 30,
            "steps": [{"kind": "move", "point": [200.0, 100.0], "duration": 1.0},
                      {"kind": "click", "pauseAfter": 0.5}]}
    root.update(changes)
    return root


def nested_binary(depth):
    """Arrays in arrays: object k holds object k + 1, the last one is empty."""
    offsets, data = [], bytearray(b"bplist00")
    for k in range(depth):
        offsets.append(len(data))
        data += b"\xa1" + struct.pack(">I", k + 1) if k + 1 < depth else b"\xa0"
    table = len(data)
    for offset in offsets:
        data += struct.pack(">I", offset)
    return bytes(data) + struct.pack(">6xBBQQQ", 4, 4, depth, 0, table)


def large_binary(size):
    """The start and the end of a file that lists one datum of zeros, and the datum's size."""
    start = b"bplist00\xa1\x01\x4f\x13"
    end = struct.pack(">QQ", 8, 10) + struct.pack(">6xBBQQQ", 8, 1, 2, 0, size - 32 - 16)
    return start + struct.pack(">Q", size - len(start) - 8 - len(end)), end


def many_texts_binary(count):
    """A list of so many texts of one character each."""
    start = b"bplist00\xaf\x12" + struct.pack(">I", count)
    references = b"".join(struct.pack(">I", k)[1:] for k in range(1, count + 1))
    texts = len(start) + len(references)
    offsets = [8, *range(texts, texts + 2 * count, 2)]
    table = b"".join(struct.pack(">I", offset) for offset in offsets)
    return (start + references + b"\x51x" * count + table
            + struct.pack(">6xBBQQQ", 4, 3, count + 1, 0, texts + 2 * count))


def png(width, height, bits, compressed):
    """A picture of red, green and blue without any compression's choice of its own."""
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(
            ">I", zlib.crc32(kind + data))
    header = struct.pack(">IIBBBBB", width, height, bits, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", compressed)
            + chunk(b"IEND", b""))


def compressed_zeros(size):
    """As zlib would, without going through all of them: equal pieces, flushed apart."""
    piece = 2**20
    packer = zlib.compressobj(9, wbits=-15)
    one = packer.compress(bytes(piece)) + packer.flush(zlib.Z_FULL_FLUSH)
    packer = zlib.compressobj(9, wbits=-15)
    rest = packer.compress(bytes(size % piece)) + packer.flush()
    return b"\x78\xda" + one * (size // piece) + rest + struct.pack(">HH", size % 65521, 1)


def objects_binary(objects):
    """A file of raw objects with one-byte references and the first as its root."""
    offsets, data = [], bytearray(b"bplist00")
    for each in objects:
        offsets.append(len(data))
        data += each
    table = len(data)
    data += bytes(offsets)
    return bytes(data) + struct.pack(">6xBBQQQ", 1, 1, len(objects), 0, table)


class CommandLine(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def path(self, name):
        return os.path.join(self.folder.name, name)

    def write(self, name, content):
        if not isinstance(content, bytes):
            content = plistlib.dumps(content, fmt=plistlib.FMT_BINARY)
        with open(self.path(name), "wb") as file:
            file.write(content)
        return self.path(name)

    def assertOneLine(self, result, status=1):
        self.assertEqual(result.status, status, result.err)
        self.assertEqual(result.out, "")
        self.assertEqual(result.err.count("\n"), 1, result.err)
        self.assertLess(len(result.err), 1000)
        if not SANITIZED:
            self.assertLess(result.seconds, MAX_SECONDS)
            self.assertLess(result.bytes, MAX_BYTES)

    def assertRefused(self, name, content):
        path = self.write(name, content)
        for arguments in (["inspect", path], ["state", path, "--at", "0"],
                          ["convert", path, self.path("out.velvane")],
                          ["frame", path, "--at", "0", "-o", self.path("out.png")],
                          ["export", path, self.path("out.mp4")]):
            with self.subTest(arguments=arguments[0]):
                result = Result(arguments)
                self.assertOneLine(result)
                self.assertTrue(result.err.startswith(path + ": "), result.err)
        self.assertEqual(sorted(os.listdir(self.folder.name)), [name])

    def probe(self, movie):
        text = subprocess.run(["ffprobe", "-v", "error", "-show_entries",
                               "stream=codec_name,width,height:frame=pts_time", "-of", "json",
                               movie], capture_output=True, check=True).stdout
        found = json.loads(text)
        return found["streams"][0], [float(frame["pts_time"]) for frame in found["frames"]]

    def test_every_moment_of_a_movie_has_its_frame(self):
        path = self.write("a.velvane", demo())
        result = Result(["export", path, self.path("a.mp4")])
        self.assertEqual((result.status, result.out), (0, "Exported to a.mp4.\n"))
        stream, times = self.probe(self.path("a.mp4"))
        self.assertEqual((stream["codec_name"], stream["width"], stream["height"]),
                         ("h264", 320, 200))
        total = json.loads(Result(["inspect", "--json", path]).out)["total"]
        self.assertAlmostEqual(total, 1.0 + 0.3 + 0.5)
        self.assertEqual(len(times), 54)
        for i, at in enumerate(times):
            self.assertAlmostEqual(at, i / 30, places=5)

    def test_python_reads_what_is_written(self):
        path = self.write("a.velvane", demo(recordingBookmark=b"\x00movie"))
        self.assertEqual(Result(["convert", path, self.path("b.velvane")]).status, 0)
        with open(self.path("b.velvane"), "rb") as file:
            root = plistlib.load(file)
        self.assertEqual(sorted(root), sorted(["version", "steps", "startPoint", "canvasSize",
                                               "fps", "recordingBookmark"]))
        self.assertEqual(root["recordingBookmark"], b"\x00movie")
        self.assertEqual(root["steps"][0]["point"], [200.0, 100.0])
        self.assertEqual(root["steps"][1]["pauseAfter"], 0.5)
        self.assertNotIn("recordedOffset", root["steps"][0])

    def test_what_is_no_property_list_is_refused(self):
        self.assertRefused("a.velvane", b"")
        self.assertRefused("a.velvane", b"hello")
        self.assertRefused("a.velvane", b"bplist00")
        self.assertRefused("a.velvane", os.urandom(5000))
        self.assertRefused("a.velvane", b"<plist><dict><key>version</key>")

    def test_deep_nesting_is_refused(self):
        self.assertRefused("a.velvane", nested_binary(100_000))
        self.assertRefused("a.velvane",
                           b"<plist>" + b"<array>" * 100_000 + b"</array>" * 100_000 + b"</plist>")

    def test_cycles_are_refused(self):
        self.assertRefused("a.velvane", objects_binary([b"\xa1\x00"]))
        self.assertRefused("a.velvane", objects_binary([b"\xa2\x01\x01", b"\xa1\x00"]))

    def test_shared_references_that_expand_to_billions_are_refused(self):
        objects = [b"\xaf\x10\x10" + bytes([k + 1]) * 16 for k in range(9)] + [b"\x08"]
        self.assertRefused("a.velvane", objects_binary(objects))

    def test_entities_that_expand_to_billions_are_refused(self):
        entities = "".join(f'<!ENTITY e{k} "{f"&e{k - 1};" * 10 if k else "x" * 10}">'
                           for k in range(10))
        self.assertRefused("a.velvane", f"<!DOCTYPE plist [{entities}]><plist><dict><key>version"
                                        f"</key><string>&e9;</string></dict></plist>".encode())

    def spared(self):
        # Far more than what is asserted: only so that a fault does not take all of the machine.
        resource.setrlimit(resource.RLIMIT_AS, (4 * 2**30, 4 * 2**30))

    def assertBounded(self, path, reason):
        result = Result(["inspect", path], limits=None if SANITIZED else self.spared)
        self.assertOneLine(result)
        self.assertIn(reason, result.err)

    def sparse(self, name, start, size, end=b""):
        path = self.write(name, start)
        os.truncate(path, size - len(end))
        with open(path, "ab") as file:
            file.write(end)
        return path

    def test_large_files_are_refused_within_bounds(self):
        large = 2**30
        for start, reason in ((b"bplist00", "too large, "), (b"<plist><string>", "too large, "),
                              (b"hello", "too large, ")):
            self.assertBounded(self.sparse("a.velvane", start, large), reason)
        most = 192 * 2**20
        self.assertBounded(self.sparse("a.velvane", b"bplist00", most), "trailer at byte ")
        start, end = large_binary(most)
        self.assertBounded(self.sparse("a.velvane", start, most, end), "not a dictionary")
        self.assertBounded(self.write("a.velvane", many_texts_binary(4_000_000)),
                           "takes too much memory")

    def test_large_xml_files_are_refused_within_bounds(self):
        most = 72 * 2**20
        for start, part, end, reason in (
                (b"<plist><string>", b"x", b"", "Premature end of document"),
                (b"<plist><string>", b"x", b"</string></plist>", "a text that is too long"),
                (b"<plist><data>", b"AAAA", b"</data></plist>", "not a dictionary"),
                (b"<plist><!--", b"x", b"", "Premature end of document"),
                (b"<plist><string><![CDATA[", b"x", b"", "Premature end of document"),
                (b"<plist><?x ", b"x", b"", "Premature end of document"),
                (b"<plist a='", b"x", b"", "Premature end of document"),
                (b"<plist><array>", b"<string>abc</string>", b"", "too much for the memory"),
                (b"<plist><array>", b"<true/>", b"", "too m"),
                (b"<plist><array>", b"<array><true/></array>", b"", "too much for the memory"),
                (b"<plist><array>", b"<dict><key>k</key><true/></dict>", b"",
                 "too much for the memory"),
                (b"<plist><dict><key>steps</key><array>",
                 b"<dict><key>kind</key><string>wait</string></dict>", b"",
                 "too much for the memory")):
            with self.subTest(start=start, part=part, end=end):
                content = start + part * ((most - len(start) - len(end)) // len(part)) + end
                self.assertBounded(self.write("a.velvane", content), reason)

    def test_more_steps_than_any_demo_has_are_refused(self):
        path = self.write("a.velvane", demo(steps=[{"kind": "wait"}] * 150_001))
        self.assertBounded(path, "more than 150000 steps")

    def test_the_largest_honest_demos_open(self):
        def picture(width, height):
            return png(width, height, 8, zlib.compress(bytes((1 + 3 * width) * height), 0))
        root = demo(steps=[
            {"kind": "move", "point": [k * 0.7, k * 0.3], "text": f"step {k}", "duration": 1.25,
             "pauseAfter": 0.5, "keyCode": 0, "modifiers": 0, "centerWindow": False,
             "collapsed": False, "recordedOffset": k * 2.0,
             "id": f"{k:08X}-0123-4567-89AB-0123456789AB"} for k in range(10_000)])
        for form, height, size in ((plistlib.FMT_BINARY, 5600, 100_000_000),
                                   (plistlib.FMT_XML, 2300, 40_000_000)):
            root["background"] = picture(6000, height)
            self.assertGreater(len(root["background"]), size)
            path = self.write("a.velvane", plistlib.dumps(root, fmt=form))
            result = Result(["inspect", path, "--json"])
            self.assertEqual((result.status, result.err), (0, ""))
            found = json.loads(result.out)
            self.assertEqual((len(found["steps"]), found["hasBackground"]), (10_000, True))

    @unittest.skipIf(SANITIZED or FREE_MEMORY < 2**32, "the picture takes 2 GiB of memory")
    def test_the_largest_picture_of_16_bits_is_not_lost(self):
        side = 16_384
        picture = png(side, side, 16, compressed_zeros(side * (1 + 6 * side)))
        path = self.write("a.velvane", demo(background=picture))
        found = json.loads(Result(["inspect", path, "--json"]).out)
        self.assertTrue(found["hasBackground"])

    def test_a_truncated_demo_is_refused(self):
        whole = plistlib.dumps(demo(), fmt=plistlib.FMT_BINARY)
        for length in range(0, len(whole), 37):
            path = self.write("a.velvane", whole[:length])
            self.assertOneLine(Result(["inspect", path]))

    def test_numbers_that_are_not_finite_are_refused(self):
        for number in (float("nan"), float("inf")):
            self.assertRefused("a.velvane", demo(startPoint=[number, 0.0]))
            self.assertRefused("a.velvane", demo(steps=[{"kind": "wait", "pauseAfter": number}]))

    def test_faults_say_which_step_and_what(self):
        path = self.write("a.velvane", demo(steps=[{"kind": "wait"}] * 11 + [{"kind": "jump"}]))
        self.assertEqual(Result(["inspect", path]).err, f"{path}: step 12: unknown kind “jump”\n")

    def test_texts_that_steer_a_terminal_stay_harmless(self):
        path = self.write("a.velvane", demo(steps=[{"kind": "\x1b[2J\n\x07" * 1000}]))
        result = Result(["inspect", path])
        self.assertOneLine(result)
        self.assertNotIn("\x1b", result.err)

    def test_absurd_canvases_are_refused_and_nothing_is_removed(self):
        for size in ([1e6, 1e6], [1e6, 1.0], [0.5, 100.0], [0.0, 0.0], [-100.0, 100.0],
                     [1e300, 1e300], [16385.0, 16.0]):
            path = self.write("a.velvane", demo(canvasSize=size))
            movie = self.write("keep.mp4", b"precious")
            self.assertOneLine(Result(["export", path, movie]))
            self.assertOneLine(Result(["frame", path, "--at", "0", "-o", self.path("x.png")]))
            with open(movie, "rb") as file:
                self.assertEqual(file.read(), b"precious")
            self.assertFalse(os.path.exists(self.path("x.png")))
            self.assertEqual(Result(["inspect", path]).status, 0)

    def test_absurd_lengths_are_refused_and_nothing_is_removed(self):
        for changes in ({"steps": [{"kind": "wait", "pauseAfter": 1e12}]},
                        {"steps": [{"kind": "wait", "pauseAfter": 1e308}] * 2},
                        {"fps": 2**31 - 1}):
            path = self.write("a.velvane", demo(**changes))
            movie = self.write("keep.mp4", b"precious")
            self.assertOneLine(Result(["export", path, movie]))
            with open(movie, "rb") as file:
                self.assertEqual(file.read(), b"precious")

    def test_numbers_stay_numbers_however_large(self):
        path = self.write("a.velvane", demo(startPoint=[-1.7e308, 1.7e308], steps=[
            {"kind": "move", "point": [1.7e308, -1.7e308], "duration": 1e308, "pauseAfter": 1e308,
             "recordedOffset": -1.7e308},
            {"kind": "wait", "pauseAfter": 1e308, "recordedOffset": 1.7e308}]))
        found = json.loads(Result(["inspect", "--json", path]).out)
        self.assertEqual(found["total"], sys.float_info.max)
        self.assertEqual(found["segments"][1]["end"], sys.float_info.max)
        states = json.loads(Result(["state", path, "--at", "0", "--at", "3e307", "--at", "6e307",
                                    "--at", "1.5e308", "--at", "1.7e308", "--video-duration",
                                    "1.7e308"]).out)
        for state in states:
            for number in (*state["cursor"], state["videoTime"]):
                self.assertIsInstance(number, float)

    def test_an_empty_demo_is_a_movie_of_one_frame(self):
        path = self.write("a.velvane", demo(steps=[], fps=0))
        self.assertEqual(Result(["export", path, self.path("a.mp4")]).status, 0)
        self.assertEqual(self.probe(self.path("a.mp4"))[1], [0.0])

    def test_paths_that_lead_nowhere_are_one_line(self):
        path = self.write("a.velvane", demo())
        os.mkfifo(self.path("fifo"))
        for arguments in (["inspect", self.path("missing")], ["inspect", self.folder.name],
                          ["inspect", "/dev/null"], ["inspect", self.path("fifo")],
                          ["inspect", ""], ["new", self.path("no/where")],
                          ["new", self.folder.name, "--force"],
                          ["convert", path, self.folder.name], ["convert", path, ""],
                          ["export", path, self.folder.name], ["export", path, ""],
                          ["export", path, self.path("no/where")],
                          ["frame", path, "--at", "0", "-o", self.folder.name]):
            with self.subTest(arguments=arguments):
                self.assertOneLine(Result(arguments))

    @unittest.skipIf(os.geteuid() == 0, "root may write everywhere")
    def test_a_folder_without_permission_is_one_line(self):
        path = self.write("a.velvane", demo())
        os.mkdir(self.path("locked"), 0o500)
        for arguments in (["new", self.path("locked/a")],
                          ["export", path, self.path("locked/a.mp4")]):
            self.assertOneLine(Result(arguments))

    def test_wrong_usage_is_status_two(self):
        for arguments in (["inspect"], ["--bogus"], ["state", "x", "--at", "later"],
                          ["state", "x", "--at", "nan"], ["frame", "x"], ["export", "a"]):
            self.assertOneLine(Result(arguments), status=2)

    def test_the_language_is_the_users_or_the_one_asked_for(self):
        cases = [({"LANGUAGE": "de"}, [], "Eine Demo als Film rendern"),
                 ({"LANGUAGE": "nl:fr"}, [], "Rendre une démo en film"),
                 ({"LANGUAGE": "", "LC_ALL": "es_ES.UTF-8"}, [], "Convertir una demo en película"),
                 ({"LANGUAGE": "de"}, ["--lang", "ja"], "デモをムービーにする"),
                 ({"LANGUAGE": "de"}, ["--lang=zh_CN"], "将演示渲染为影片"),
                 ({"LANGUAGE": "de"}, ["--lang", "en"], "Render a demo to a movie")]
        for environment, arguments, text in cases:
            result = Result([*arguments, "--help"], env=environment)
            self.assertEqual((result.status, result.err), (0, ""))
            self.assertIn(text, result.out)

    def test_an_unknown_language_is_wrong_usage(self):
        result = Result(["--lang", "tlh", "doctor"])
        self.assertEqual((result.status, result.out), (2, ""))
        self.assertIn("there are no texts in “tlh”, only in de, en, es, fr, ja, zh_CN", result.err)

    def test_what_programs_read_is_the_same_in_every_language(self):
        path = self.write("a.velvane", demo(steps=[
            {"kind": "wait", "pauseAfter": 1.5, "id": "0123ABCD-0123-ABCD-4567-0123456789AB"},
            {"kind": "switchApp", "text": "", "id": "1123ABCD-0123-ABCD-4567-0123456789AB"}]))
        for arguments in (["inspect", path, "--json"],
                          ["state", path, "--at", "0.5", "--at", "1.6"]):
            outputs = [Result(["--lang", code, *arguments]).out for code in ("en", "de", "ja")]
            self.assertEqual(outputs[0], outputs[1])
            self.assertEqual(outputs[0], outputs[2])
            self.assertTrue("Wait 1.5s" in outputs[0] or "→ app" in outputs[0], outputs[0])
        pictures = []
        for code in ("en", "de", "ja"):
            result = Result(["--lang", code, "frame", path, "--at", "1.6", "-o",
                             self.path("app.png")])
            self.assertEqual((result.status, result.err), (0, ""))
            with open(self.path("app.png"), "rb") as file:
                pictures.append(file.read())
        self.assertEqual(pictures[0], pictures[1])
        self.assertEqual(pictures[0], pictures[2])
        self.assertEqual(Result(["--lang", "de", "new", self.path("de.velvane")]).status, 0)
        self.assertEqual(Result(["--lang", "en", "new", self.path("en.velvane")]).status, 0)
        made = []
        for name in ("de.velvane", "en.velvane"):
            with open(self.path(name), "rb") as file:
                root = plistlib.load(file)
            for step in root["steps"]:
                step.pop("id")
            made.append(root)
        self.assertEqual(made[0], made[1])

    def test_tables_and_faults_are_in_the_users_language(self):
        path = self.write("a.velvane", demo(steps=[{"kind": "wait", "pauseAfter": 1.5}]))
        self.assertIn("1,5\u00a0s warten", Result(["--lang", "de", "inspect", path]).out)
        path = self.write("a.velvane", demo(steps=[{"kind": "wait", "pauseAfter": "long"}]))
        self.assertEqual(Result(["--lang", "de", "inspect", path]).err,
                         f"{path}: Schritt 1: „pauseAfter“ ist keine Zahl\n")
        path = self.write("a.velvane", b"bplist00")
        self.assertIn("beschädigte Eigenschaftsliste: ",
                      Result(["--lang", "de", "inspect", path]).err)

    def test_any_locale_will_do(self):
        path = self.write("Démo 한.velvane", demo())
        for locale in ("C", "C.UTF-8", "de_DE.UTF-8", ""):
            result = Result(["inspect", path, "--json"], env={"LC_ALL": locale, "LANG": locale})
            self.assertEqual((result.status, result.err), (0, ""))
            self.assertEqual(json.loads(result.out)["fps"], 30)

    def limited(self):
        resource.setrlimit(resource.RLIMIT_FSIZE, (20_000, 20_000))
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)

    def test_a_full_disk_loses_nothing(self):
        steps = [{"kind": "type", "text": f"step {k} " * 20} for k in range(500)]
        path = self.write("a.velvane", demo(steps=steps))
        with open(path, "rb") as file:
            before = file.read()
        self.assertOneLine(Result(["convert", path, path], limits=self.limited))
        with open(path, "rb") as file:
            self.assertEqual(file.read(), before)
        self.assertEqual(os.listdir(self.folder.name), ["a.velvane"])

    def test_a_full_disk_keeps_the_picture_that_was_there(self):
        noise = os.urandom(3 * 100 * 100)
        rows = b"".join(b"\0" + noise[300 * y:300 * (y + 1)] for y in range(100))
        path = self.write("a.velvane", demo(background=png(100, 100, 8, zlib.compress(rows))))
        picture = self.write("a.png", b"precious")
        result = Result(["frame", path, "--at", "0", "-o", picture], limits=self.limited)
        self.assertOneLine(result)
        self.assertTrue(result.err.startswith(picture + ": "), result.err)
        with open(picture, "rb") as file:
            self.assertEqual(file.read(), b"precious")
        self.assertEqual(sorted(os.listdir(self.folder.name)), ["a.png", "a.velvane"])

    def test_results_that_find_no_room_are_a_failure(self):
        path = self.write("a.velvane", demo())
        for arguments in (["inspect", path], ["inspect", "--json", path],
                          ["state", path, "--at", "0"], ["doctor"], ["--help"], ["--version"],
                          ["export", path, self.path("a.mp4")]):
            with self.subTest(arguments=arguments), open("/dev/full", "w") as full:
                run = subprocess.run([VELVANE, *arguments], stdout=full, stderr=subprocess.PIPE,
                                     timeout=PATIENCE)
                self.assertEqual(run.returncode, 1)
                lines = [line for line in run.stderr.decode().splitlines()
                         if not line.endswith(" %")]
                self.assertEqual(lines, ["velvane: standard output cannot be written to"])

    def test_an_export_onto_a_full_disk_fails_and_says_why_when_asked(self):
        steps = [{"kind": "move", "point": [k * 37.0 % 1280, k * 91.0 % 800]} for k in range(9)]
        path = self.write("a.velvane", demo(steps=steps, canvasSize=[1280.0, 800.0]))
        for flags, lines in ([], 1), (["--verbose"], 2):
            result = Result(["export", path, self.path("a.mp4"), *flags], limits=self.limited)
            self.assertEqual(result.status, 1)
            failure = [line for line in result.err.splitlines() if not line.endswith(" %")]
            self.assertEqual(len(failure), lines, result.err)
            self.assertEqual(failure[0], "Export failed: The operation couldn’t be completed. "
                                         "(Velvane.ExportError error 0.)")
        self.assertLessEqual(os.path.getsize(self.path("a.mp4")), 20_000)

    def test_ctrl_c_closes_a_movie_that_plays(self):
        steps = [{"kind": "move", "point": [k * 337.0 % 1900, k * 191.0 % 1000], "duration": 5.0}
                 for k in range(200)]
        path = self.write("a.velvane", demo(steps=steps, canvasSize=[1920.0, 1080.0]))
        process = subprocess.Popen([VELVANE, "export", path, self.path("a.mp4")],
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        with Patience(process):
            # The end of the file is b"", again and again.
            self.assertIn(b" 10 %\n", iter(process.stderr.readline, b""))
            process.send_signal(signal.SIGINT)
            out, _ = process.communicate()
        self.assertEqual((process.returncode, out), (130, b""))
        times = self.probe(self.path("a.mp4"))[1]
        self.assertGreater(len(times), 3000)
        self.assertLess(len(times), 31_800)

    def test_a_reader_that_goes_away_is_no_crash(self):
        path = self.write("a.velvane", demo(steps=[{"kind": "wait"}] * 20_000))
        process = subprocess.Popen([VELVANE, "inspect", "--json", path], stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE)
        with Patience(process):
            self.assertEqual(len(process.stdout.read(10)), 10)
            process.stdout.close()
            process.stderr.read()
            self.assertIn(process.wait(), (0, 1, -signal.SIGPIPE))

    def test_all_commands_agree(self):
        path = self.write("a.velvane", demo())
        state = json.loads(Result(["state", path, "--at", "0.5"]).out)[0]
        segment = json.loads(Result(["inspect", path, "--json"]).out)["segments"][0]
        middle = [(a + b) / 2 for a, b in zip(segment["startPos"], segment["endPos"])]
        self.assertEqual(state["cursor"], middle)
        self.assertEqual(Result(["frame", path, "--at", "0.5", "-o", self.path("f.png")]).status, 0)
        self.assertEqual(Result(["export", path, self.path("a.mp4")]).status, 0)
        compared = subprocess.run(
            ["ffmpeg", "-v", "info", "-nostats", "-i", self.path("a.mp4"), "-i",
             self.path("f.png"), "-lavfi",
             "[0]select=eq(n\\,15),setpts=0,scale=in_color_matrix=bt709:in_range=tv,format=gbrp[a];"
             "[1]format=gbrp[b];[a][b]psnr", "-frames:v", "1", "-f", "null", "-"],
            capture_output=True, text=True, check=True).stderr
        psnr = float(compared.split("average:")[1].split()[0])
        self.assertGreater(psnr, 40)


if __name__ == "__main__":
    unittest.main()
