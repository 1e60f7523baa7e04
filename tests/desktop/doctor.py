#!/usr/bin/python3
"""What the doctor says of sessions that lack something: the line is bad and names the remedy."""

import os
import subprocess
import unittest

from fixture import PROGRAM, main
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

    def test_in_a_wayland_session_x11_is_the_remedy(self):
        findings = self.findings(WAYLAND_DISPLAY="wayland-0")
        for name in (*DRIVEN, "Window manager"):
            self.assert_bad(findings, name, "Log in with an X11 session")


if __name__ == "__main__":
    main()
