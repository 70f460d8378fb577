# SPDX-License-Identifier: GPL-3.0-or-later
"""Many folders in one call: tables and lists, several at a time, interrupted, repeated."""
import base64
import csv
import json
import os
import pty
import re
import select
import signal
import subprocess
import time
import unittest

from support import PATIENCE, PROGRAM, EndToEndTest, read, tree, write

# How many folders "many" are; the thousand are a test of their own, which takes longer (label "thousand").
MANY = int(os.environ.get("QUORVANE_MANY", "100"))
BAD = 10


class BatchTest(EndToEndTest):
    def start(self, *arguments, **options):
        # Unbuffered: lines read one by one must not take others with them.
        return subprocess.Popen([PROGRAM, *arguments], stdout=subprocess.PIPE, stderr=subprocess.PIPE, bufsize=0,
                                env=self.environment(), cwd=self.work, **options)

    def folders(self, count):
        names = [f"f{number:04}" for number in range(count)]
        for name in names:
            os.mkdir(os.path.join(self.work, name))
        return names

    def table(self, rows, header=("folder", "label", "effect"), name="table.csv"):
        path = os.path.join(self.place, name)
        with open(path, "w", newline="", encoding="utf-8", errors="surrogateescape") as file:
            csv.writer(file).writerows([header, *rows])
        return path

    def many(self):
        """A table of MANY rows, the last column of ten of which nobody can read, and the lines of those."""
        names = self.folders(MANY)
        bad = range(MANY // BAD - 1, MANY, MANY // BAD)
        rows = [(name, "A\nB" if number % 2 else "C", "sparkling" if number in bad else "soft")
                for number, name in enumerate(names)]
        # The labels of every second row have two lines.
        lines = [2 + number + number // 2 for number in bad]
        return self.table(rows), [names[number] for number in bad], lines

    def test_a_table_with_bad_rows_then_again(self):
        table, bad, lines = self.many()
        outcome = self.run_program("apply", "--json-lines", "--size", "20", "--from", table)
        self.assertEqual(outcome.code, 1, outcome.err)
        items = [json.loads(line) for line in outcome.out.splitlines()]
        self.assertEqual([item["path"] for item in items], sorted(os.listdir(self.work)), "the order of the table")
        failed = [item for item in items if item["outcome"] == "failed"]
        self.assertEqual([item["path"] for item in failed], bad)
        self.assertEqual([item["line"] for item in failed], lines)
        self.assertEqual(sum(item["outcome"] == "applied" for item in items), MANY - BAD)
        self.assertRegex(outcome.err, rf"{MANY - BAD} branded, {BAD} failed, 0 unchanged in [0-9.]+ (s|min)")
        for line, name in zip(lines, bad):
            self.assertIn(f"line {line}: {name}: there is no effect", outcome.err)
            self.assertEqual(os.listdir(os.path.join(self.work, name)), [])
        self.assert_branded(os.path.join(self.work, "f0000"))

        before = tree(self.work)
        again = self.run_program("apply", "--size", "20", "--from", table)
        self.assertIn(f"0 branded, {BAD} failed, {MANY - BAD} unchanged", again.err)
        self.assertEqual(tree(self.work), before)

    def test_killed_in_the_middle_it_completes_the_next_time(self):
        table, _bad, _lines = self.many()
        program = self.start("apply", "--size", "20", "--from", table)
        for _ in range(MANY // 4):
            program.stdout.readline()
        program.kill()
        program.communicate()
        done = re.search(r"(\d+) branded, \d+ failed, (\d+) unchanged",
                         self.run_program("apply", "--size", "20", "--from", table).err)
        self.assertEqual(int(done[1]) + int(done[2]), MANY - BAD)
        self.assertGreater(int(done[1]), 0)
        self.assertGreaterEqual(int(done[2]), MANY // 4 - BAD)
        self.assertFalse([name for _path, _folders, files in os.walk(self.work) for name in files if ".tmp" in name])

    def test_interrupted_it_finishes_what_is_in_hand_and_says_so(self):
        names = self.folders(2000)
        listing = "".join(name + "\n" for name in names).encode()
        for number, code in ((signal.SIGINT, 130), (signal.SIGTERM, 143)):
            for jobs in ("1", "3"):
                with self.subTest(signal=number, jobs=jobs):
                    program = self.start("apply", "--jobs", jobs, "--label", f"{number} {jobs}", "--files-from", "-",
                                         stdin=subprocess.PIPE)
                    program.stdin.write(listing)
                    program.stdin.flush()
                    seen = [program.stdout.readline() for _ in range(3)]
                    program.send_signal(number)
                    begun = time.monotonic()
                    out, err = program.communicate(timeout=PATIENCE)
                    # A loaded machine is given more.
                    self.assertLess(time.monotonic() - begun, PATIENCE / 2)
                    self.assertEqual(program.returncode, code, err)
                    done = len(seen) + out.count(b"\n")
                    self.assertIn(f"interrupted; {done} branded, 0 failed, 0 unchanged".encode(), err)
                    self.assertLess(done, 1000)
                    self.expect(0, "verify", *names[:done])
                    self.expect(0, "reset", "--quiet", *names[:done])

    def _wait_until_it_listens(self, program):
        """Until it has taken the signal for its own: before that it would be killed by it."""
        for _ in range(int(PATIENCE * 20)):
            caught = re.search(r"^SigCgt:\s*(\w+)", read(f"/proc/{program.pid}/status").decode(), re.MULTILINE)
            if int(caught[1], 16) & 1 << signal.SIGINT - 1:
                return
            time.sleep(0.05)
        self.fail("it does not listen to signals")

    def test_interrupted_while_it_waits_for_its_list(self):
        for waiting in (["apply", "--label", "x", "--from", "-"], ["status", "--files-from", "-"]):
            with self.subTest(command=waiting[0]):
                program = self.start(*waiting, stdin=subprocess.PIPE)
                program.stdin.write(b"folder\nha" if "--from" in waiting else b"ha")
                program.stdin.flush()
                self._wait_until_it_listens(program)
                time.sleep(0.5)
                program.send_signal(signal.SIGINT)
                self.assertEqual(program.wait(timeout=PATIENCE), 130)
                self.assertNotIn(b"ha:", program.stderr.read())
                program.communicate()

    def test_lists_carry_any_name(self):
        names = ["new\nline", " spaces ", "-dash", "caf\udce9", "esc\x1b]0;", "return\r"]
        for name in names:
            os.mkdir(os.path.join(self.work, name))
        listing = b"".join(os.fsencode(name) + b"\0" for name in names)
        outcome = self.expect(0, "apply", "--label", "x", "--null", "--files-from", "-", "--json-lines", stdin=listing)
        paths = [json.loads(line) for line in outcome.out.splitlines()]
        told = [base64.b64decode(item["path_base64"]) if "path_base64" in item else None for item in paths]
        self.assertEqual(told[3], b"caf\xe9")
        found = self.expect(0, "list", "--null", ".")
        self.assertEqual(sorted(found.out.split("\0")), sorted(["", *("./" + name for name in names)]))
        self.assertNotIn("\x1b", self.expect(0, "verify", "--null", "--files-from", "-", stdin=found.out.encode(
            "utf-8", "surrogateescape")).out)
        lines = b"".join(os.fsencode(name) + b"\n" for name in names if "\n" not in name)
        self.expect(0, "reset", "--files-from", "-", names[0], stdin=lines)
        self.assertEqual([name for name in names if os.listdir(os.path.join(self.work, name))], [])
        # What is reported for a name that is no text is understood as one.
        row = json.dumps({"folder": paths[3]["path"], "folder_base64": paths[3]["path_base64"], "label": "x"})
        self.expect(0, "apply", "--from", "-", stdin=row.encode())
        self.assert_branded(os.path.join(self.work, names[3]))

    def test_rows_change_what_the_options_say(self):
        rows = [("a", "", ""), ("b", "B", ""), ("c", "", "red-glow")]
        for name, *_values in rows:
            os.mkdir(os.path.join(self.work, name))
        options = ("--label", "A", "--effect", "soft")
        self.expect(0, "apply", *options, "--from", self.table(rows))
        for name, *values in (("a", *options), ("b", "--label", "B", "--effect", "soft"),
                              ("c", "--label", "A", "--effect", "red-glow")):
            self.assertEqual(json.loads(self.expect(0, "apply", "--json", *values, name).out)["results"][0]["outcome"],
                             "unchanged")

    def test_what_cannot_be_read_is_told_before_anything_is_done(self):
        folder, missing = self.folder(), os.path.join(self.place, "missing.csv")
        self.assert_says(self.expect(1, "apply", "--label", "x", "--from", missing), "missing.csv")
        wrong = self.table([(folder, "x", "")], header=("folder", "lable", "effect"))
        self.assert_says(self.expect(1, "apply", "--from", wrong), "lable", "did you mean 'label'", "table.csv")
        self.assert_says(self.expect(1, "status", "--files-from", self.work), "folder")
        self.assertEqual(self.expect(3, "status", folder).code, 3)
        self.assert_says(self.expect(1, "apply", "--from", self.table([(folder, "", "")])), "nothing to apply", "line 2")

    def test_the_first_failure_can_be_the_end(self):
        names = self.folders(30)
        os.rmdir(os.path.join(self.work, names[2]))
        outcome = self.expect(1, "apply", "--label", "x", "--fail-fast", "--jobs", "1", *names)
        self.assertIn("2 branded, 1 failed, 0 unchanged", outcome.err)
        outcome = self.expect(1, "apply", "--label", "y", "--fail-fast", "--jobs", "2", *names)
        self.assertLess(len(outcome.out.splitlines()), 29)

    def test_a_folder_that_comes_twice_is_done_in_order(self):
        folder = self.folder("one")
        os.symlink(folder, os.path.join(self.work, "link"))
        rows = [(("one", "./one/", "link")[number % 3], f"label {number}", "") for number in range(24)]
        outcome = self.expect(0, "apply", "--jobs", "4", "--size", "20", "--from", self.table(rows))
        self.assertIn("24 branded, 0 failed", outcome.err)
        outcome = self.expect(0, "apply", "--json", "--size", "20", "--label", "label 23", folder)
        self.assertEqual(json.loads(outcome.out)["results"][0]["outcome"], "unchanged")
        self.expect(0, "reset", "--jobs", "3", "one", "link", folder)
        self.assertEqual(sorted(os.listdir(folder)), ["empty", "letter.txt"])

    def test_looks_are_kept_and_used_again(self):
        self.expect(0, "render", "--label", "box", "--pixels", "64", "box.png")
        os.mkdir(os.path.join(self.work, "looks"))
        os.rename(os.path.join(self.work, "box.png"), os.path.join(self.work, "looks", "box.png"))
        look = ("--label-from-name", "--base", "looks/box.png", "--color", "#b00020", "--rotate", "12.5")
        self.expect(0, "render", *look, "--save-look", "looks/mine.look", "first.icns")
        self.expect(0, "render", "--look", "looks/mine.look", "looks/first.icns")
        self.assertEqual(read(os.path.join(self.work, "first.icns")), read(os.path.join(self.work, "looks/first.icns")))
        saved = json.loads(read(os.path.join(self.work, "looks/mine.look")))
        self.assertEqual((saved["label"], saved["base"], saved["rotate"]), ("{name}", "box.png", 12.5))
        folder = self.folder("first")
        self.expect(0, "apply", "--look", "looks/mine.look", folder)
        self.assertEqual(self.assert_branded(folder), read(os.path.join(self.work, "first.icns")))
        self.assertIn("unchanged", self.expect(0, "apply", *look, folder).out)
        # Options change a look, and keys that are not ours stay in it.
        saved["theirs"] = [1]
        write(os.path.join(self.work, "looks/mine.look"), json.dumps(saved).encode())
        self.expect(0, "render", "--look", "looks/mine.look", "--label=", "--rotate", "0", "--save-look",
                    "looks/other.look", "x.png")
        other = json.loads(read(os.path.join(self.work, "looks/other.look")))
        self.assertEqual((other.get("label"), other["rotate"], other["color"], other["theirs"]),
                         (None, 0, "#b00020", [1]))
        # A look refers to nothing outside its folder.
        outcome = self.expect(1, "render", "--base", "looks/box.png", "--save-look", self.home + "/x.look", "y.png")
        self.assert_says(outcome, "its own folder or below")
        self.assertFalse(os.path.exists(os.path.join(self.work, "y.png")))
        write(os.path.join(self.work, "bad.look"), b'{"quorvane-look": 1, "base": "../home/x.png"}')
        self.assert_says(self.expect(1, "apply", "--look", "bad.look", folder), "bad.look", "leads out of the folder")

    def test_progress_stands_on_terminals_only(self):
        names = self.folders(25)
        for terminal, options, shown in (("xterm", (), True), ("dumb", (), False), ("xterm", ("--quiet",), False)):
            with self.subTest(terminal=terminal, options=options):
                out, screen = self.on_terminal("apply", *options, "--label", f"{terminal}{options}", *names,
                                               TERM=terminal)
                self.assertEqual("\r\x1b[K" in screen, shown, repr(screen))
                self.assertEqual("/25" in screen, shown, repr(screen))
                self.assertEqual("25 branded" in screen, not options)
                self.assertNotIn("\x1b", out)
                if shown:
                    # Nothing of the bar is left below the notices and the summary.
                    self.assertRegex(screen.split("\x1b[K")[-1], r"^(quorvane: [^\r]*\r\n)*quorvane: 25 branded[^\r]*\r\n$")
        # A failure is coloured where nobody objects.
        for options, environment, coloured in (((), {}, True), (("--no-color",), {}, False), ((), {"NO_COLOR": "1"}, False)):
            _out, screen = self.on_terminal("apply", *options, "--label", f"x{options}{environment}", "missing", *names,
                                            TERM="xterm", **environment)
            self.assertEqual("\x1b[31m" in screen, coloured, repr(screen))

    def test_a_terminal_is_no_list(self):
        for arguments in (("apply", "--label", "x", "--from", "-"), ("reset", "--files-from", "-")):
            _out, screen = self.on_terminal(*arguments, code=2)
            self.assertIn("is a terminal", screen)

    def on_terminal(self, *arguments, code=None, **environment):
        """Runs the program with its errors and its input on a terminal; gives back its output and what was on it."""
        ours, theirs = pty.openpty()
        with open(os.path.join(self.place, "out"), "w+b") as out:
            program = subprocess.Popen([PROGRAM, *arguments], stdin=theirs, stdout=out, stderr=theirs, cwd=self.work,
                                       env={**self.environment(), **environment})
            os.close(theirs)
            screen = b""
            while select.select([ours], [], [], PATIENCE)[0]:
                try:
                    piece = os.read(ours, 65536)
                except OSError:
                    break
                screen += piece
            os.close(ours)
            result = program.wait(timeout=PATIENCE)
            if code is not None:
                self.assertEqual(result, code)
            out.seek(0)
            return out.read().decode(), screen.decode("utf-8", "replace")


if __name__ == "__main__":
    unittest.main(verbosity=2)
