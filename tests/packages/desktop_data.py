#!/usr/bin/python3
"""What desktops read of the installed program: entry, types, icons, thumbnails, metadata."""

import configparser
import os
import plistlib
import re
import shlex
import struct
import subprocess
import xml.etree.ElementTree as Xml

from staging import APPLICATION, MIME_TYPE, SOURCE, Staged, main, run

DEMO = {"version": 1, "steps": [{"kind": "click"}], "startPoint": [1.0, 2.0],
        "canvasSize": [640.0, 400.0], "fps": 30}
FOREIGN = {"CFBundleName": "Other", "steps": [1, 2, 3]}
FORMS = {"binary": plistlib.FMT_BINARY, "XML": plistlib.FMT_XML}


def entry(path):
    parser = configparser.ConfigParser(interpolation=None, delimiters="=")
    parser.optionxform = str
    parser.read(path, encoding="utf-8")
    return parser


class Entries(Staged):
    def test_the_desktop_entry_is_valid(self):
        told = subprocess.run(["desktop-file-validate", self.entry_path], capture_output=True,
                              text=True, check=False)
        self.assertEqual((told.returncode, told.stdout + told.stderr), (0, ""))

    @property
    def entry_path(self):
        return self.share / "applications" / f"{APPLICATION}.desktop"

    def test_it_opens_demos_with_the_program(self):
        group = entry(self.entry_path)["Desktop Entry"]
        self.assertEqual(group["Exec"], "velvane %F")
        self.assertEqual(group["MimeType"], f"{MIME_TYPE};")
        self.assertEqual(group["Icon"], APPLICATION)
        # A window's class tells the desktop whose entry and icon are its.
        self.assertEqual(group["StartupWMClass"], self.program.name)

    def test_the_bus_starts_the_program_that_was_installed(self):
        path = self.share / "dbus-1" / "services" / f"{APPLICATION}.service"
        group = entry(path)["D-BUS Service"]
        self.assertEqual(group["Name"], APPLICATION)
        self.assertEqual(group["Exec"], f"{self.program} --service")

    def test_all_its_actions_are_there(self):
        entries = entry(self.entry_path)
        actions = entries["Desktop Entry"]["Actions"].rstrip(";").split(";")
        groups = [name for name in entries.sections() if name.startswith("Desktop Action ")]
        self.assertEqual(groups, [f"Desktop Action {action}" for action in actions])

    def test_what_desktops_show_of_it_is_in_every_language(self):
        languages = [path.stem.removeprefix("velvane_")
                     for path in sorted((SOURCE / "translations").glob("*.ts"))]
        self.assertTrue(languages)
        entries = entry(self.entry_path)
        shown = {"Desktop Entry": ["GenericName", "Comment", "Keywords"],
                 "Desktop Action new-demo": ["Name"]}
        for group, keys in shown.items():
            for key in keys:
                for language in languages:
                    text = entries[group].get(f"{key}[{language}]")
                    self.assertTrue(text, f"{key} in {language}")
                    self.assertNotEqual(text, entries[group][key])
        path = self.share / "metainfo" / f"{APPLICATION}.metainfo.xml"
        told = [summary.get("{http://www.w3.org/XML/1998/namespace}lang")
                for summary in Xml.parse(path).getroot().findall("summary")]
        self.assertEqual(told, [None, *languages])

    def test_the_metadata_is_valid_and_names_what_is_installed(self):
        path = self.share / "metainfo" / f"{APPLICATION}.metainfo.xml"
        run("appstreamcli", "validate", "--no-net", path)
        root = Xml.parse(path).getroot()
        self.assertEqual(root.findtext("id"), APPLICATION)
        self.assertEqual(root.findtext("launchable"), self.entry_path.name)
        self.assertEqual(root.findtext("provides/mediatype"), MIME_TYPE)
        version = run(self.program, "--version").split()[-1]
        self.assertEqual(root.find("releases/release").get("version"), version)

    def test_its_screenshots_are_kept_with_the_source(self):
        path = self.share / "metainfo" / f"{APPLICATION}.metainfo.xml"
        images = Xml.parse(path).getroot().findall("screenshots/screenshot/image")
        self.assertGreaterEqual(len(images), 2)
        for image in images:
            picture = SOURCE / "help" / os.path.basename(image.text)
            size = struct.unpack(">II", picture.read_bytes()[16:24])
            self.assertEqual(size, (int(image.get("width")), int(image.get("height"))), picture)


class Icons(Staged):
    def test_each_size_is_there_and_has_its_size(self):
        icons = self.share / "icons" / "hicolor"
        types = (self.share / "mime" / "packages" / f"{APPLICATION}.xml").read_text()
        document = re.search('<icon name="(.*)"/>', types)[1]
        self.assertTrue(document.startswith(f"{APPLICATION}-"), "or a Flatpak keeps it to itself")
        for kind, name in (("apps", APPLICATION), ("mimetypes", document)):
            for size in (16, 22, 24, 32, 48, 64, 128, 256, 512):
                path = icons / f"{size}x{size}" / kind / f"{name}.png"
                self.assertEqual(struct.unpack(">II", path.read_bytes()[16:24]), (size, size))
            self.assertTrue((icons / "scalable" / kind / f"{name}.svg").is_file())
        self.assertTrue((icons / "symbolic" / "apps" / f"{APPLICATION}-symbolic.svg").is_file())


class Types(Staged):
    """Asks the desktop's own library for the type of files, by name and by content."""

    def types(self, **files):
        home = self.scratch()
        packages = home / "mime" / "packages"
        packages.mkdir(parents=True)
        data = (self.share / "mime" / "packages" / f"{APPLICATION}.xml").read_bytes()
        (packages / f"{APPLICATION}.xml").write_bytes(data)
        run("update-mime-database", home / "mime")
        ask = ("import sys; from gi.repository import Gio\n"
               "for name in sys.argv[1:]:\n"
               "  info = Gio.File.new_for_path(name).query_info('standard::content-type', 0, None)\n"
               "  print(info.get_content_type())\n")
        paths = []
        for name, content in files.items():
            path = home / name
            path.write_bytes(content)
            paths.append(path)
        told = run("/usr/bin/python3", "-c", ask, *paths,
                   env={**os.environ, "XDG_DATA_HOME": str(home)})
        return dict(zip(files, told.split()))

    def test_a_demo_is_known_by_its_name_in_both_forms(self):
        for form in FORMS.values():
            # Whatever it holds, since demos of later versions may hold other keys.
            content = plistlib.dumps(FOREIGN, fmt=form)
            self.assertEqual(self.types(**{"a.velvane": content}), {"a.velvane": MIME_TYPE})

    def test_a_demo_without_its_name_is_known_by_its_content_in_both_forms(self):
        for form in FORMS.values():
            self.assertEqual(self.types(demo=plistlib.dumps(DEMO, fmt=form)), {"demo": MIME_TYPE})

    def test_what_the_program_writes_is_known_by_its_content(self):
        demo = self.scratch() / "new.velvane"
        run(self.program, "new", demo)
        tour = SOURCE / "examples" / "tour.velvane"
        found = self.types(new=demo.read_bytes(), tour=tour.read_bytes())
        self.assertEqual(found, {"new": MIME_TYPE, "tour": MIME_TYPE})

    def test_property_lists_of_others_stay_theirs(self):
        for name, form in FORMS.items():
            with self.subTest(form=name):
                content = plistlib.dumps(FOREIGN, fmt=form)
                found = self.types(**{"Info": content, "Info.plist": content})
                self.assertNotIn(MIME_TYPE, found.values())


class Thumbnails(Staged):
    def test_the_thumbnailers_command_makes_a_picture_of_the_size_asked(self):
        path = self.share / "thumbnailers" / f"{APPLICATION}.thumbnailer"
        group = entry(path)["Thumbnailer Entry"]
        self.assertIn(MIME_TYPE, group["MimeType"].split(";"))
        folder = self.scratch()
        picture = folder / "picture.png"
        values = {"%i": str(SOURCE / "examples" / "tour.velvane"), "%o": str(picture), "%s": "128"}
        words = [values.get(word, word) for word in shlex.split(group["Exec"])]
        self.assertEqual(words[0], "velvane")
        # As file managers run it: in a sandbox without a display.
        bare = {key: value for key, value in os.environ.items()
                if key not in ("DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS")}
        run(self.program, *words[1:], env=bare)
        width, height = struct.unpack(">II", picture.read_bytes()[16:24])
        self.assertEqual((width, height), (128, 80))


if __name__ == "__main__":
    main()
