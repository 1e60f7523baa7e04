#!/usr/bin/python3
"""The manual page and the completions know the program's subcommands and options, and no others."""

import re
import subprocess

from staging import SOURCE, Staged, main, run

EVERYWHERE = {"--help"}


class Documented(Staged):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.commands = cls.subcommands()
        cls.options = {name: cls.options_of(name) for name in cls.commands}

    @classmethod
    def subcommands(cls):
        told = run(cls.program, "--help").split("Subcommands:\n")[1]
        return re.findall(r"^  (\w+) ", told.split("\n\n")[0], re.MULTILINE)

    @classmethod
    def options_of(cls, name):
        told = run(cls.program, name, "--help").split("Options:\n")[1].split("\n\n")[0]
        return set(re.findall(r"(?<!\w)--[a-z-]+", told)) - EVERYWHERE

    def all_options(self):
        top = run(self.program, "--help").split("Options:\n")[1].split("\n\n")[0]
        return set(re.findall(r"(?<!\w)--[a-z-]+", top)).union(*self.options.values())

    def test_the_manual_page(self):
        page = (SOURCE / "data" / "velvane.1").read_text().replace("\\-", "-")
        sections = dict(re.findall(r"^\.TP\n\.B velvane (\w+)(.*?)(?=^\.TP\n\.B velvane |^\.SH)", page,
                                   re.MULTILINE | re.DOTALL))
        self.assertEqual(sorted(sections), sorted(self.commands))
        for name, text in sections.items():
            options = set(re.findall(r"(?<![\w-])--[a-z-]+", text))
            self.assertEqual(options, self.options[name], name)

    def test_the_manual_page_reads_without_a_warning(self):
        told = subprocess.run(["man", "--warnings", "--local-file", SOURCE / "data" / "velvane.1"],
                              capture_output=True, text=True, env={"LC_ALL": "C.UTF-8",
                              "PATH": "/usr/bin:/bin", "MANROFFSEQ": "", "MANWIDTH": "80"},
                              check=True, timeout=60)
        self.assertEqual(told.stderr, "")
        self.assertIn("SYNOPSIS", told.stdout)

    def test_zsh_and_fish_know_what_there_is(self):
        folder = SOURCE / "data" / "completions"
        zsh, fish = (folder / "_velvane").read_text(), (folder / "velvane.fish").read_text()
        named = re.findall(r"^        '([a-z]+):", zsh, re.MULTILINE)
        self.assertEqual(sorted(named), sorted(self.commands))
        self.assertEqual(set(re.findall(r"--[a-z][a-z-]+", zsh)), self.all_options())
        named = re.search(r"^set -l commands (.*)$", fish, re.MULTILINE)[1].split()
        self.assertEqual(sorted(named), sorted(self.commands))
        self.assertEqual({f"--{name}" for name in re.findall(r" -l ([a-z-]+)", fish)
                          if name != "commands"}, self.all_options())

    def test_the_shells_can_read_them(self):
        folder = SOURCE / "data" / "completions"
        for command in (["bash", "-n", folder / "velvane"], ["zsh", "-n", folder / "_velvane"],
                        ["fish", "--no-execute", folder / "velvane.fish"]):
            run(*command)

    def completed_by_bash(self, *words):
        line = " ".join(words)
        script = (f"source /usr/share/bash-completion/bash_completion\n"
                  f"source {SOURCE}/data/completions/velvane\n"
                  f"COMP_WORDS=({line} '') COMP_CWORD={len(words)} COMP_LINE='{line} '\n"
                  f"COMP_POINT=${{#COMP_LINE}}\n"
                  f"[ -n \"$1\" ] && COMP_WORDS[COMP_CWORD]=$1 && COMP_LINE+=$1 "
                  f"&& COMP_POINT=${{#COMP_LINE}}\n"
                  f"_velvane_complete\n"
                  f"printf '%s\\n' \"${{COMPREPLY[@]}}\"\n")
        return lambda word: set(run("bash", "-c", script, "bash", word,
                                    cwd=SOURCE / "examples").split())

    def test_bash_completes_subcommands_options_values_and_demos(self):
        first = self.completed_by_bash("velvane")("")
        self.assertEqual(first, {*self.commands, "tour", "tour.velvane", "tour-1080p.velvane"})
        for name in self.commands:
            with self.subTest(command=name):
                options = self.completed_by_bash("velvane", name)("-")
                self.assertEqual(options, self.options[name] | EVERYWHERE)
        self.assertEqual(self.completed_by_bash("velvane", "run", "--record")(""),
                         {"off", "screen", "window"})
        self.assertEqual(self.completed_by_bash("velvane", "export")("tour-"),
                         {"tour-1080p.velvane"})

    def test_fish_completes_subcommands_and_options(self):
        def completed(line):
            script = f"source {SOURCE}/data/completions/velvane.fish; complete -C '{line}'"
            told = run("fish", "--no-config", "-c", script, cwd=self.scratch())
            return {line.split("\t")[0] for line in told.splitlines()}

        self.assertLessEqual(set(self.commands), completed("velvane "))
        for name in self.commands:
            with self.subTest(command=name):
                self.assertEqual({each for each in completed(f"velvane {name} --")
                                  if each.startswith("--")}, self.options[name] | EVERYWHERE)


if __name__ == "__main__":
    main()
