# SPDX-License-Identifier: GPL-3.0-or-later
"""The completions and the manual page say what `--help` says, on every level, and do what a shell expects of them."""
import os
import re
import shutil
import subprocess
import unittest

from support import BUILD, EndToEndTest, read

DOCS = os.path.join(BUILD, "docs")
BASH, ZSH, FISH = (os.path.join(DOCS, name) for name in ("bash/quorvane", "zsh/_quorvane", "fish/quorvane.fish"))
MANUAL = os.path.join(DOCS, "quorvane.1")
WINDOW_MANUAL = os.path.join(DOCS, "quorvane-window.1")
CALL = r"""
compopt() { printf '%s\n' "$*"; }
source "$1" || exit 9
shift
COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
_quorvane
printf '%s\n' "${COMPREPLY[@]}"
"""


class CompletionTest(EndToEndTest):
    def levels(self, *command):
        """(command words, options, sub-commands) of this level of the help and all below it."""
        options, commands, section = set(), [], ""
        for line in self.expect(0, *command, "--help").out.splitlines():
            section = line if line.endswith(":") and not line.startswith(" ") else section
            word = re.match(r"  (\S+)", line)
            if word and section == "Options:":
                options.update(word[1].split(","))
            elif word and section == "Commands:":
                commands.append(word[1])
        self.assertIn("--help", options, command)
        yield command, options, commands
        for name in commands:
            yield from self.levels(*command, name)

    def run_shell(self, *arguments, path=None):
        environment = {**self.environment(), **({"PATH": path} if path else {})}
        done = subprocess.run(arguments, capture_output=True, text=True, env=environment, cwd=self.work, timeout=60)
        self.assertEqual((done.returncode, done.stderr), (0, ""), arguments)
        return set(done.stdout.split("\n")) - {""}

    def bash(self, *words, path=None):
        return self.run_shell("bash", "--norc", "-c", CALL, "bash", BASH, "quorvane", *words, path=path)

    def test_bash_offers_what_the_help_tells(self):
        seen = 0
        for command, options, commands in self.levels():
            self.assertEqual(self.bash(*command, "-"), options, command)
            if commands:
                self.assertEqual(self.bash(*command, ""), set(commands), command)
            seen += 1
        self.assertGreater(seen, 8)

    def test_bash_completes_values_files_and_folders(self):
        soft = {"soft"}
        for words, offered in (
                (("apply", "--effect", "so"), soft),
                (("apply", "--effect", "=", "so"), soft),
                (("apply", "--effect", "="), self.bash("render", "--effect", "")),
                (("render", "--color", "darkr"), {"darkred"}),
                (("apply", "--label", ""), set()),
                (("apply", "--base", "x"), {"-o default"}),
                (("apply", ""), {"-o dirnames"}),
                (("apply", "--", "--eff"), {"-o dirnames"}),
                (("icns", "make", ""), {"-o default"}),
                (("icns", "l"), {"list"}),
                (("nonsense", ""), set()),
                (("/tm",), set())):
            self.assertEqual(self.bash(*words), offered, words)
        self.assertLess(soft, self.bash("apply", "--effect", ""))
        tools = os.path.join(self.place, "bin")
        os.mkdir(tools)
        os.symlink("/bin/true", os.path.join(tools, "quorvane-window"))
        self.assertEqual(self.bash("/tm", path=tools + os.pathsep + os.environ["PATH"]), {"-o dirnames"})

    def test_fish_offers_what_the_help_tells(self):
        if not shutil.which("fish"):
            self.skipTest("there is no fish here")
        self.run_shell("fish", "--no-execute", FISH)
        os.mkdir(os.path.join(self.work, "Folder"))
        for command, options, commands in self.levels():
            line = " ".join(("quorvane",) + command)
            script = f"source {FISH}; complete -C '{line} -'; complete -C '{line} --'"
            self.assertEqual({row.split("\t")[0] for row in self.run_shell("fish", "-N", "-c", script)}, options, line)
            offered = self.run_shell("fish", "-N", "-c", f"source {FISH}; complete -C '{line} '")
            takes_names = command in (("sets", "new"), ("sets", "rename"), ("sets", "remove"))
            files = set() if takes_names else {"Folder/"}
            self.assertEqual({row.split("\t")[0] for row in offered} - {""}, set(commands) or files, line)

    def test_zsh_reads_its_completion(self):
        if not shutil.which("zsh"):
            self.skipTest("there is no zsh here")
        self.run_shell("zsh", "-f", "-n", ZSH)

    def test_zsh_and_the_manual_name_every_command_and_option(self):
        zsh, manual = read(ZSH).decode(), read(MANUAL).decode()
        self.assertTrue(zsh.startswith("#compdef quorvane\n"))
        for command, options, commands in self.levels():
            name = "_".join(("_quorvane",) + (("command",) + command if command else ()))
            function = zsh.split(f"\n{name}() {{\n")[1].split("\n}\n")[0]
            self.assertEqual(set(re.findall(r"\)(--?[\w-]+)[=+]?\[", function)), options, command)
            for word in commands:
                self.assertIn(f"'{word}:", function)
            for option in options:
                self.assertRegex(manual, r"\\fB" + re.escape(option.replace("-", r"\-")) + r"\\fR", command)
            if command and not commands:
                self.assertIn('\n.SS "\\fB' + " ".join(command), manual)

    def test_the_manuals_are_clean_roff(self):
        for program, arguments in (("man", ("-l", "--warnings", "-Tutf8")), ("groff", ("-ww", "-man", "-Tutf8"))):
            for manual, words in ((MANUAL, "Wrong use."), (WINDOW_MANUAL, "no display")):
                with self.subTest(program, manual=manual):
                    if not shutil.which(program):
                        self.skipTest(f"there is no {program} here")
                    lines = self.run_shell(program, *arguments, manual)
                    self.assertTrue(any(words in line for line in lines), f"{program} shows another page")


if __name__ == "__main__":
    unittest.main()
