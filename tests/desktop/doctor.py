#!/usr/bin/python3
"""What the doctor says of sessions that lack something: the line is bad and names the remedy."""

import json
import os
import shutil
import subprocess
import tempfile
import unittest

from accessible import wait_for
from fixture import PROGRAM, main
from portal import DARK, Portal
from server import Server

DRIVEN = ("Input posting", "Input listening", "Screen capture")


class Doctor(unittest.TestCase):
    def server(self, *options):
        server = Server(*options)
        self.addCleanup(server.stop)
        return server

    def findings(self, **environment):
        """Each line: (is it good, what follows its name, the remedy)."""
        told = subprocess.run([PROGRAM, "doctor"], check=True, capture_output=True, text=True,
                              env={**os.environ, **environment}).stdout
        found, name = {}, None
        for line in told.splitlines():
            if line[:1] in ("✓", "✗"):
                name = line[2:22].strip()
                found[name] = (line[0] == "✓", line[22:].strip(), "")
            elif line.startswith("  "):
                found[name] = (*found[name][:2], line.strip())
        return found

    def assert_bad(self, findings, name, *words):
        good, _, remedy = findings[name]
        self.assertFalse(good, name)
        for word in words:
            self.assertIn(word, remedy)

    def test_in_an_x11_session_everything_that_drives_the_desktop_works(self):
        findings = self.findings()
        for name in (*DRIVEN, "Display server", "Window manager"):
            self.assertTrue(findings[name][0], findings[name])

    def test_each_bad_line_and_no_other_has_a_remedy(self):
        for environment in ({}, {"DISPLAY": ""}, {"WAYLAND_DISPLAY": "wayland-0"}):
            for name, (good, state, remedy) in self.findings(**environment).items():
                self.assertTrue(state, name)
                self.assertEqual(good, not remedy, name)

    def test_without_a_display(self):
        findings = self.findings(DISPLAY="")
        self.assertEqual(findings["Display server"][1], "none")
        for name in DRIVEN:
            self.assert_bad(findings, name, "X server")
        self.assertTrue(findings["H.264 encoder"][0])

    def test_a_display_that_does_not_answer(self):
        server = self.server()
        server.stop()
        findings = self.findings(DISPLAY=server.display)
        self.assert_bad(findings, "Display server", "DISPLAY")
        self.assertIn(server.display, findings["Display server"][1])
        for name in DRIVEN:
            self.assert_bad(findings, name, "X server")

    def test_without_a_window_manager(self):
        findings = self.findings(DISPLAY=self.server().display)
        self.assert_bad(findings, "Window manager", "Start one")
        self.assertTrue(findings["Input posting"][0])

    def test_an_extension_that_is_missing_is_named(self):
        for extension, lacking in (("XTEST", DRIVEN[:2]), ("Composite", DRIVEN[2:])):
            findings = self.findings(DISPLAY=self.server("-extension", extension).display)
            for name in lacking:
                self.assert_bad(findings, name, "Enable it in the server")
            self.assert_bad(findings, lacking[0], extension)

    def test_each_thing_that_an_x_server_may_lack_has_its_line(self):
        lines = (("XTEST", "Posting"), ("RECORD", "Listening"), ("DAMAGE", "Pictures"),
                 ("MIT-SHM", "Fast pictures"), ("RANDR", "Displays"))
        findings = self.findings()
        for extension, name in lines:
            with self.subTest(extension=extension):
                self.assertIn(extension, findings[name][1])
                self.assertTrue(findings[name][0])
                lacking = self.findings(
                    DISPLAY=self.server("-extension", extension).display)
                self.assertEqual(lacking[name][1], f"lacks {extension}")
                self.assert_bad(lacking, name, f"Enable {extension}")

    def test_the_keyboards_layout_is_named(self):
        subprocess.run(["setxkbmap", "de"], check=True)
        self.addCleanup(subprocess.run, ["setxkbmap", "us"], check=True)
        self.assertEqual(self.findings()["Keyboard"], (True, "layout de", ""))

    def test_the_session_bus_and_what_is_reached_over_it(self):
        self.assertTrue(self.findings()["Session bus"][0])
        without = self.findings(DBUS_SESSION_BUS_ADDRESS="unix:path=/nowhere")
        self.assert_bad(without, "Session bus", "dbus-run-session")
        self.assert_bad(without, "Desktop portal", "xdg-desktop-portal")
        portal = Portal(DARK)
        self.addCleanup(portal.close)
        wait_for(lambda: self.findings()["Desktop portal"][0], "the portal to be noticed")

    def test_without_the_watchdog_the_remedy_is_to_install_again(self):
        with tempfile.TemporaryDirectory() as folder:
            alone = shutil.copy(PROGRAM, folder)
            told = subprocess.run([alone, "doctor"], check=True, capture_output=True, text=True)
        self.assertRegex(told.stdout, r"✗ Watchdog +missing\n  Install Velvane again")

    def test_json_says_the_same_as_the_lines(self):
        told = subprocess.run([PROGRAM, "doctor", "--json"], check=True, capture_output=True)
        rows = {row["what"]: (row["works"], row["remedy"] or "") for row in json.loads(told.stdout)}
        lines = {name: (good, remedy) for name, (good, _, remedy) in self.findings().items()}
        self.assertEqual(rows, lines)

    def test_in_a_wayland_session_x11_is_the_remedy(self):
        findings = self.findings(WAYLAND_DISPLAY="wayland-0")
        for name in (*DRIVEN, "Window manager"):
            self.assert_bad(findings, name, "Log in with an X11 session")


if __name__ == "__main__":
    main()
