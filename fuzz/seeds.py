#!/usr/bin/env python3
"""Writes the first files of the fuzzers' corpus, which fuzz/run --grow then adds to."""
import base64
import datetime
import pathlib
import plistlib

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


def main():
    here = pathlib.Path(__file__).parent / "corpus"
    for folder in ("binary", "xml", "demo", "appcast"):
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


if __name__ == "__main__":
    main()
