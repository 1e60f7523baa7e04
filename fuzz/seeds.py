#!/usr/bin/env python3
"""Writes the first files of the fuzzers' corpus, which fuzz/run --grow then adds to."""
import base64
import datetime
import pathlib
import plistlib
import subprocess

KINDS = ["move", "click", "rightClick", "hold", "release", "type", "shortcut", "wait", "switchApp",
         "section"]
FULL_STEP = {"id": "0123ABCD-0123-ABCD-4567-0123456789AB", "kind": "type", "point": [1.5, -2.0],
             "text": "né 日本 👍", "duration": 1.6, "pauseAfter": 0.3, "keyCode": 65535,
             "modifiers": 2**64 - 1, "centerWindow": True, "collapsed": False,
             "recordedOffset": 0.0}


def demo(steps, **more):
    return {"version": 1, "steps": steps, "startPoint": [640.0, 400], "canvasSize": [1280, 800.0],
            "fps": 60, **more}


VALUES = {
    "numbers": [0, 255, 256, 65536, 2**32, -1, -2**63, 2**63 - 1, 2**63, 2**64 - 1, 0.5, -0.0],
    "texts": ["", "a", "é", "日本", "👍🏽", "x" * 300],
    "data": [b"", b"\x00\x01", b"z" * 20],
    "dates": [datetime.datetime(2001, 1, 1), datetime.datetime(1970, 1, 1, 1, 2, 3)],
    "nested": [[[[[{"a": {"b": {}}}]]]]],
    "truths": {"yes": True, "no": False},
    "kinds": demo([{"kind": kind} for kind in KINDS]),
    "full": demo([FULL_STEP], background=b"no picture", recordingBookmark=b"\x00mark"),
    "empty": demo([]),
}
DEMOS = ["kinds", "full", "empty"]

ENCLOSURE = ('<enclosure url="https://a.b/v.deb" length="1" sparkle:edSignature="%s"/>'
             % base64.b64encode(bytes(64)).decode())
FEED = ("""<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle" version="2.0">
<channel><link>https://a.b</link><lastBuildDate>Sat, 21 Nov 2026 12:00:00 +0000</lastBuildDate>
%s</channel></rss>
""")
FEEDS = {
    "nothing": FEED % "",
    "item": FEED % f"<item><sparkle:version>1.0</sparkle:version>{ENCLOSURE}</item>",
    "items": FEED % "".join(
        f"<item><sparkle:version>{version}</sparkle:version>{ENCLOSURE}</item>"
        for version in ("0.9", "1.0-rc.1", "1.0-rc.10+x", "1.0")),
    "signed": FEED % "" + "<!-- sparkle-signatures:\nedSignature: %s\nlength: %d\n-->\n"
    % (base64.b64encode(bytes(64)).decode(), len(FEED % "")),
}


# The smallest movies of each kind that is read, and how ffmpeg makes them.
MOVIES = {
    "plain.mp4": "-c:v libx264 -g 2",
    "fragmented.mp4": "-c:v libx264 -g 2 -movflags +frag_keyframe+empty_moov",
    "turned.mov": "-c:v mpeg4 -metadata:s:v rotate=90",
    "h264.mkv": "-c:v libx264 -g 2",
    "vp8.webm": "-c:v libvpx",
    "vp9.webm": "-c:v libvpx-vp9",
    "motion.mov": "-c:v mjpeg",
}
# FOLDER becomes the one where the fuzzer has a movie of that name.
BOOKMARKS = {
    "place": "velvane recording\n1\n1\n5\nFOLDER/run.mp4",
    "renamed": "velvane recording\n1\n2\n5\nFOLDER/before.mp4",
    "lines": "velvane recording\n-1\n9223372036854775808\nx\n/a\nb.webm",
    "device": "velvane recording\n0\n0\n0\n/dev/zero.mov",
    "relative": "velvane recording\n0\n0\n0\n../run.mkv",
    "empty": "",
}

APPLICATIONS = {
    "plain": "[Desktop Entry]\nType=Application\nName=Notes\nExec=notes %U\nIcon=notes\n",
    "full": "# one\n[Desktop Entry]\r\nType = Application\nName=a\\sb\\\\c\nName[de]=Zettel\n"
            "Name[de_DE]=Notizen\nName[de@euro]=Geld\nExec=env A=b \"/opt/my app\" %i %c %k 100%%\n"
            "TryExec=/usr/bin/notes\nPath=/opt\nStartupWMClass=Notes\nOnlyShowIn=GNOME;a\\;b;\n"
            "NotShowIn=ubuntu;\nDBusActivatable=true\nTerminal=1\n[Desktop Action a]\nName=A\n",
    "hidden": "[Desktop Entry]\nHidden=true\n",
    "shown": "[Desktop Entry]\nType=Application\nName=N\nOnlyShowIn=\nNoDisplay=true\n",
    "open": "[Desktop Entry]\nType=Application\nName=é\nExec=\"open\n",
}

USED = """<?xml version="1.0" encoding="UTF-8"?>
<xbel version="1.0" xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks"
 xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info">%s</xbel>
"""
FILE = """<bookmark href="file:///%s" added="2026-01-02T03:04:05Z" visited="2026-01-02T03:04:07Z">
<title>Notes &amp; more</title><desc>d</desc><info><metadata owner="http://freedesktop.org">
<mime:mime-type type="text/plain"/><bookmark:groups><bookmark:group>G</bookmark:group>
</bookmark:groups><bookmark:applications><bookmark:application name="Writer"
 exec="&apos;writer %%u&apos;" modified="2026-01-02T03:04:06Z" count="7"/></bookmark:applications>
<bookmark:private/></metadata></info></bookmark>
"""
RECENT = {
    "none": USED % "",
    "other": USED % (FILE % "notes%20a.txt"),
    "both": USED % (FILE % "b" + FILE % "demos/a.velvane"),
    "bare": '<xbel version="1.0"><bookmark href="a:b"/></xbel>',
    "cut": (USED % (FILE % "a"))[:400],
}

RECORD = {"id": "0123abcd-0123-abcd-4567-0123456789ab", "path": "/d/a.velvane", "title": "a",
          "kept": 1790000000000}
KEPT = {
    "unnamed": {**RECORD, "path": "", "demo": demo([FULL_STEP])},
    "named": {**RECORD, "device": 1, "inode": 2**64 - 1, "size": 300, "modified": -1},
    "both": {**RECORD, "inode": 7, "demo": demo([{"kind": kind} for kind in KINDS])},
    "least": {"id": RECORD["id"]},
    "late": {**RECORD, "kept": 2**63 - 1},
}


def make_movie(path, options):
    command = ["ffmpeg", "-nostdin", "-v", "error", "-y", "-f", "lavfi",
               "-i", "testsrc=s=16x16:r=5:d=1", "-pix_fmt", "yuv420p",
               "-fflags", "+bitexact", "-flags:v", "+bitexact", *options.split(), str(path)]
    subprocess.run(command, check=True)


def main():
    here = pathlib.Path(__file__).parent / "corpus"
    for folder in ("binary", "xml", "demo", "kept", "appcast", "movie", "bookmark", "desktop",
                   "recent"):
        (here / folder).mkdir(parents=True, exist_ok=True)
    for name, value in VALUES.items():
        binary = plistlib.dumps(value, fmt=plistlib.FMT_BINARY, sort_keys=False)
        xml = plistlib.dumps(value, sort_keys=False)
        (here / "binary" / name).write_bytes(binary)
        (here / "xml" / name).write_bytes(xml)
        if name in DEMOS:
            (here / "demo" / f"{name}.binary").write_bytes(binary)
            (here / "demo" / f"{name}.xml").write_bytes(xml)
    uids = plistlib.dumps([plistlib.UID(1), plistlib.UID(70000)], fmt=plistlib.FMT_BINARY)
    (here / "binary" / "uids").write_bytes(uids)
    for name, feed in FEEDS.items():
        (here / "appcast" / name).write_text(feed, encoding="utf-8")
    for name, options in MOVIES.items():
        make_movie(here / "movie" / name, options)
    for folder, texts in (("bookmark", BOOKMARKS), ("desktop", APPLICATIONS), ("recent", RECENT)):
        for name, text in texts.items():
            (here / folder / name).write_text(text, encoding="utf-8", newline="")
    for name, record in KEPT.items():
        data = plistlib.dumps(record, fmt=plistlib.FMT_BINARY, sort_keys=False)
        (here / "kept" / name).write_bytes(data)


if __name__ == "__main__":
    main()
