#!/usr/bin/python3
"""The programs are built so that a fault in them is hard to use."""

import json
import re

from staging import BUILD, Staged, main, run

PROGRAMS = ("bin/velvane", "libexec/velvane/velvane-watchdog")


class Hardening(Staged):
    def each(self, *options):
        for name in PROGRAMS:
            with self.subTest(program=name):
                yield run("readelf", "--wide", *options, self.prefix / name)

    def test_they_are_loaded_at_an_address_of_chance(self):
        for told in self.each("--file-header", "--dynamic"):
            self.assertRegex(told, r"Type:\s+DYN ")
            self.assertRegex(told, r"\(FLAGS_1\).*\bPIE\b")

    def test_what_the_loader_resolves_is_read_only_from_the_start(self):
        for told in self.each("--segments", "--dynamic"):
            self.assertRegex(told, r"GNU_RELRO")
            self.assertRegex(told, r"\(FLAGS\).*\bBIND_NOW\b")

    def test_their_stack_is_not_executable(self):
        for told in self.each("--segments"):
            flags = re.search(r"GNU_STACK\s+(?:0x[0-9a-f]+\s+){5}([RWE ]+?)\s+0x", told)[1]
            self.assertEqual(flags.strip(), "RW")

    def test_their_stack_is_guarded(self):
        for told in self.each("--dyn-syms"):
            self.assertIn("__stack_chk_fail", told)

    def test_library_calls_are_checked(self):
        told = run("readelf", "--wide", "--dyn-syms", self.prefix / PROGRAMS[0])
        self.assertRegex(told, r"__(?!stack)\w+_chk\b")

    def test_no_file_is_compiled_without(self):
        commands = json.loads((BUILD / "compile_commands.json").read_text())
        compiled = [each for each in commands if "/src/" in each["file"]]
        self.assertGreater(len(compiled), 100)
        for each in compiled:
            for flag in ("-D_FORTIFY_SOURCE=2", "-fstack-protector-strong", "-fPI"):
                self.assertIn(flag, each["command"], each["file"])
            self.assertRegex(each["command"], r" -O[23]\b", each["file"])

    def test_no_library_is_looked_for_beside_them(self):
        for told in self.each("--dynamic"):
            self.assertNotRegex(told, r"\((RPATH|RUNPATH)\)")


if __name__ == "__main__":
    main()
