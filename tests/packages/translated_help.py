#!/usr/bin/python3
"""The help and the manual page in every language of the program: the same as the English ones, and
in the words that the program shows."""

import gzip
import re
import subprocess
import xml.etree.ElementTree as ET
from collections import Counter
from unicodedata import east_asian_width

from staging import SOURCE, Staged, main, run

INLINE = {"a", "b", "code", "kbd", "strong"}
TRANSLATED_ATTRIBUTES = {"alt", "aria-label", "lang"}
QUOTES = {"de": "„“", "es": "«»", "fr": "«\N{NO-BREAK SPACE}\N{NO-BREAK SPACE}»", "ja": "「」",
          "zh_CN": "“”"}
QT_CATALOGUES = "/usr/share/qt6/translations"
# What is wrong beside a letter of the language or a word.
MISPRINTS = {"de": r"[”«»]", "es": r"[“”„]", "fr": r"\w [:;?!»]|\w[;?!»]|\w: |« |[“”„]",
             "ja": r"[ぁ-ヿ一-鿿][,.;!?]|[、。」] ", "zh_CN": r"[一-鿿][,.:;!?()]|[，。：；”] "}


def plain(text):
    """A text of the program without the accelerators: "&File" and "文件(&F)"."""
    return re.sub(r"\(&\w\)$", "", text).replace("&", "")


def texts(catalogue):
    """A Qt catalogue's texts by their English."""
    return {plain(message.findtext("source")): plain(message.findtext("translation") or "")
            for message in catalogue.iter("message")}


def text_of(element):
    return re.sub(r"[ \n]+", " ", "".join(element.itertext())).strip(" ")


def blocks(root):
    """All but what stands within a line of text."""
    return [element for element in root.find("body").iter() if element.tag not in INLINE]


def is_line(block):
    return all(child.tag in INLINE for child in block)


def kept(element):
    """What a translation leaves as it is; in a line the order may be another."""
    attributes = {name: value for name, value in element.attrib.items()
                  if name not in TRANSLATED_ATTRIBUTES}
    inline = Counter((child.tag, child.get("href"), text_of(child) if child.tag == "code" else "")
                     for child in element if child.tag in INLINE)
    return element.tag, attributes, inline


def columns(line):
    """How wide a terminal shows it."""
    return sum(2 if east_asian_width(sign) in "WF" else 1 for sign in line)


class Translated(Staged):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.folder = cls.share / "velvane" / "help"
        cls.program_texts = {path.stem.split("_", 1)[1]: texts(ET.parse(path))
                             for path in (SOURCE / "translations").glob("*.ts")}
        cls.languages = sorted(cls.program_texts)


class Help(Translated):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.english = ET.parse(cls.folder / "docs.html").getroot()
        cls.pages = {code: ET.parse(cls.folder / f"docs.{code}.html").getroot()
                     for code in cls.languages}

    def pairs(self, code):
        """Blocks of the English page beside those of a translated one."""
        return zip(blocks(self.english), blocks(self.pages[code]), strict=True)

    def lines(self, code):
        return [pair for pair in self.pairs(code) if is_line(pair[0])]

    def test_there_is_one_for_each_language(self):
        names = {path.name for path in self.folder.glob("*.html")}
        self.assertEqual(names, {"docs.html", *(f"docs.{code}.html" for code in self.languages)})
        self.assertEqual(len(names), 6)

    def test_each_says_which_language_it_is_in(self):
        self.assertEqual(self.english.get("lang"), "en")
        for code in self.languages:
            with self.subTest(language=code):
                self.assertEqual(self.pages[code].get("lang"), code.replace("_", "-"))

    def test_tags_anchors_links_pictures_and_code_are_those_of_the_english_one(self):
        for code in self.languages:
            with self.subTest(language=code):
                for english, translated in self.pairs(code):
                    self.assertEqual(kept(translated), kept(english))

    def test_the_headings_are_those_of_its_contents(self):
        for code in self.languages:
            with self.subTest(language=code):
                headings = {heading.get("id"): text_of(heading)
                            for heading in self.pages[code].iter("h2")}
                self.assertGreater(len(headings), 10)
                for link in self.pages[code].iter("a"):
                    self.assertEqual(text_of(link), headings[link.get("href")[1:]])

    def named(self, english):
        """What an English block names of the program, bare or to be quoted: (text, is quoted)."""
        text = text_of(english)
        yield from ((name, True) for name in re.findall("“([^”]+)”", text))
        yield from ((name, True) for name in re.findall(r"the (File|Step) menu", text))
        if english.tag in ("td", "th") and not len(english):
            yield text, False
        yield from ((text_of(child), False) for child in english if child.tag in ("b", "strong"))

    def test_what_it_names_of_the_program_is_called_as_there(self):
        for code in self.languages:
            with self.subTest(language=code):
                count = 0
                for english, translated in self.lines(code):
                    for name, quoted in self.named(english):
                        shown = self.program_texts[code].get(name)
                        self.assertTrue(shown or not quoted, f"the program has no “{name}”")
                        if not shown:
                            continue
                        half = len(QUOTES[code]) // 2
                        wanted = QUOTES[code][:half] + shown + QUOTES[code][half:] if quoted else shown
                        self.assertIn(wanted, text_of(translated))
                        count += 1
                self.assertGreater(count, 40)

    def test_keys_are_called_as_the_program_calls_them(self):
        def keys(block):
            return [text_of(child) for child in block if child.tag == "kbd"]

        for code in self.languages:
            with self.subTest(language=code):
                converted = run("/usr/lib/qt6/bin/lconvert", "-i", f"{QT_CATALOGUES}/qtbase_{code}.qm",
                                "-of", "ts")
                context, = (each for each in ET.fromstring(converted).iter("context")
                            if each.findtext("name") == "QShortcut")
                names = texts(context)
                names["Delete"] = names["Del"]
                # Menus do not show it; where the program names it, it does so itself.
                names["Esc"] = next(word for word in (names["Esc"], "Esc")
                                    if word in self.program_texts[code]["Press Esc to abort"])
                count = 0
                for english, translated in self.lines(code):
                    wanted = [names.get(key, key) for key in keys(english)]
                    self.assertEqual(sorted(keys(translated)), sorted(wanted))
                    count += len(wanted)
                self.assertGreater(count, 40)

    def test_its_signs_are_those_of_the_language(self):
        for code in self.languages:
            with self.subTest(language=code):
                for block in filter(is_line, blocks(self.pages[code])):
                    for text in (text_of(block), block.get("alt", "")):
                        self.assertNotRegex(text, MISPRINTS[code])


class Manual(Translated):
    def shown(self, code, width):
        """The page as "man" shows it in a language, and what it says about it."""
        told = subprocess.run(
            ["man", "--warnings=w", f"--locale={code}", "velvane"], capture_output=True, text=True,
            check=True, timeout=60, env={"LC_ALL": "C.UTF-8", "PATH": "/usr/bin:/bin",
                                         "MANPATH": self.share / "man", "MANWIDTH": str(width)})
        return told.stdout, told.stderr

    def test_there_is_one_for_each_language(self):
        found = {path.parts[-3] for path in (self.share / "man").glob("*/man1/velvane.1.gz")}
        self.assertEqual(found, set(self.languages))

    def test_each_reads_without_a_warning(self):
        for code in self.languages:
            with self.subTest(language=code):
                page, warnings = self.shown(code, 80)
                self.assertEqual(warnings, "")
                self.assertNotIn("DESCRIPTION\n       A demo", page)
                self.assertLessEqual(max(map(columns, page.splitlines())), 80)

    def test_subcommands_options_and_examples_are_those_of_the_english_one(self):
        def synopses(code):
            page, _ = self.shown(code, 400)
            return re.findall(r"(?m)^ +(velvane(?! -).*|-\S.*?(?: [A-Z]+)?(?= |$))", page)

        english = synopses("en")
        self.assertGreater(len(english), 25)
        for code in self.languages:
            with self.subTest(language=code):
                self.assertEqual(synopses(code), english)

    def test_whatis_knows_each(self):
        for code in self.languages:
            with self.subTest(language=code):
                told = run("lexgrog", self.share / "man" / code / "man1" / "velvane.1.gz")
                self.assertIn('"velvane - ', told)

    def test_its_signs_are_those_of_the_language(self):
        for code in self.languages:
            with self.subTest(language=code):
                path = self.share / "man" / code / "man1" / "velvane.1.gz"
                page = gzip.decompress(path.read_bytes()).decode()
                self.assertNotRegex(page.replace("\\ ", "\N{NO-BREAK SPACE}"), MISPRINTS[code])


if __name__ == "__main__":
    main()
