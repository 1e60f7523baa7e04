#!/usr/bin/python3
"""The Debian package: what its checker says, what it holds, and that what it holds works.

Works in folders of its own; nothing is installed on this system.
"""

import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

from staging import BUILD, SOURCE, main, run


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="velvane-package.")
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        run("cpack", "-G", "DEB", "-B", cls.folder, cwd=BUILD)
        cls.file, = cls.folder.glob("*.deb")
        cls.root = cls.folder / "root"
        run("dpkg-deb", "--extract", cls.file, cls.root)
        run("dpkg-deb", "--control", cls.file, cls.folder / "control")

    def field(self, name):
        return run("dpkg-deb", "--field", self.file, name).strip()

    def test_lintian_finds_nothing(self):
        told = subprocess.run(["lintian", "--fail-on", "error,warning", self.file],
                              capture_output=True, text=True, timeout=300, check=False)
        self.assertEqual((told.returncode, told.stdout), (0, ""), told.stderr)

    def test_it_depends_on_the_libraries_that_its_programs_link(self):
        depends = self.field("Depends")
        for library in ("libqt6widgets6", "libx264-", "libxcb-xtest0", "libavformat", "libc6"):
            self.assertIn(library, depends)

    def test_what_it_holds_is_as_it_was_packed(self):
        sums = (self.folder / "control" / "md5sums").read_text()
        run("md5sum", "--check", "--quiet", self.folder / "control" / "md5sums", cwd=self.root)
        files = [path for path in self.root.rglob("*") if path.is_file()]
        self.assertEqual(len(sums.splitlines()), len(files))

    def test_it_says_who_may_copy_it_and_what_has_changed(self):
        documents = self.root / "usr" / "share" / "doc" / "velvane"
        self.assertIn("GPL-3.0-or-later", (documents / "copyright").read_text())
        changelog = run("zcat", documents / "changelog.gz")
        version = re.match(r"velvane \((.*)\)", changelog)[1]
        self.assertEqual(version, self.field("Version"))

    def test_the_bus_starts_its_program(self):
        services = self.root / "usr" / "share" / "dbus-1" / "services"
        service, = services.iterdir()
        self.assertIn("\nExec=/usr/bin/velvane --service\n", service.read_text())

    def test_its_program_renders_a_demo_and_finds_its_watchdog(self):
        program = self.root / "usr" / "bin" / "velvane"
        movie = self.folder / "tour.mp4"
        demo = self.folder / "new.velvane"
        run(program, "new", demo)
        run(program, "export", demo, movie)
        self.assertGreater(movie.stat().st_size, 0)
        told = run(program, "doctor", env={**os.environ, "HOME": str(self.folder)})
        self.assertRegex(told, "(?m)^✓ Watchdog")

    def test_its_program_does_not_need_the_source(self):
        strings = run("strings", "-n", "8", self.root / "usr" / "bin" / "velvane")
        self.assertNotIn(str(SOURCE), strings)
        self.assertNotIn(str(BUILD), strings)


if __name__ == "__main__":
    main()
