#!/usr/bin/python3
"""The help is whole by itself, and names what the program has."""

import re
import xml.etree.ElementTree as ElementTree
from html.parser import HTMLParser

from staging import SOURCE, Staged, main, run


class Page(HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.anchors, self.links, self.resources, self.pictures = set(), [], set(), []
        self.text = ""
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        self.anchors.add(given.get("id"))
        if tag == "a":
            self.links.append(given["href"])
        if tag == "img":
            self.pictures.append(given)
        for name in ("src", "srcset"):
            if name in given:
                self.resources.add(given[name])
        if tag in ("script", "link", "iframe", "object"):
            self.resources.add(f"<{tag}>")

    def handle_data(self, data):
        self.text += data


class Help(Staged):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.folder = cls.share / "velvane" / "help"
        cls.source = (cls.folder / "docs.html").read_text()
        cls.page = Page(cls.source)

    def test_all_that_it_shows_is_installed_with_it(self):
        self.assertGreaterEqual(len(self.page.resources), 6)
        installed = {path.name for path in self.folder.iterdir() if path.suffix != ".html"}
        self.assertEqual(installed, self.page.resources)
        self.assertNotRegex(self.source, r"url\(|@import")

    def test_each_link_leads_to_a_place_in_it(self):
        for link in self.page.links:
            self.assertTrue(link.startswith("#"), link)
            self.assertIn(link[1:], self.page.anchors)

    def test_its_pictures_are_described_and_there_in_dark_and_light(self):
        for picture in self.page.pictures:
            self.assertTrue(picture["alt"])
            light = picture["src"]
            self.assertIn(light.replace("-light", "-dark"), self.page.resources - {light})

    def test_it_names_each_kind_of_step(self):
        kinds = (SOURCE / "src" / "model" / "StepKind.cpp").read_text()
        names = ["Move to", "Click", "Right-click", "Hold (mouse down)", "Release (mouse up)",
                 "Type", "Keyboard shortcut", "Wait", "Switch app", "Section"]
        for name in names:
            self.assertIn(name, kinds)
            self.assertIn(f"<td>{name}</td>", self.source)

    def test_it_names_each_subcommand(self):
        told = run(self.program, "--help").split("Subcommands:\n")[1].split("\n\n")[0]
        commands = re.findall(r"^  (\w+) ", told, re.MULTILINE)
        self.assertGreater(len(commands), 5)
        named = re.findall(r"<tr><td><code>velvane (\w+)", self.source)
        self.assertLessEqual(set(commands), set(named))

    def test_it_is_well_formed(self):
        # It is XML too, as its translators need it.
        self.assertEqual(ElementTree.fromstring(self.source).tag, "html")


if __name__ == "__main__":
    main()
