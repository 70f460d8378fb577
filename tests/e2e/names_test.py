# SPDX-License-Identifier: GPL-3.0-or-later
"""Folder names of all kinds: branded as they are, and shown so that no terminal is driven by them."""
import base64
import json
import os
import re
import shutil
import subprocess
import unittest
import urllib.parse

from support import BACKUP, ICON, LABEL, PROGRAM, EndToEndTest, read

NAMES = (" ", "a b", "quote'\"`", "back\\slash", "$HOME", "*?[x]", "100%s%n", "#", "-rf", "--help", ".hidden", "...",
         "trailing ", "two\nlines", "carriage\rreturn", "tab\t", "\x1b]0;title\x07", "\x1b[31m", "\x7f", "b" * 255,
         "Icon", "\u00e4", "a\u0308",
         "\u202egnp.exe", "\u05d0\u05d1", "\U0001f4c1", "\udcff\udcfe", "caf\udce9", "a\udcff\x1b[2J")
CONTROL = re.compile("[\x00-\x09\x0b-\x1f\x7f\x80-\x9f\u202a-\u202e\u2066-\u2069]")


class NamesTest(EndToEndTest):
    def test_every_name_is_branded_shown_safely_and_taken_back(self):
        for name in NAMES:
            with self.subTest(name=name):
                folder = self.folder(name)
                for command in (("apply", *LABEL), ("status",), ("revert",), ("reset",)):
                    outcome = self.expect(0, *command, "--", folder)
                    shown = outcome.out + outcome.err
                    self.assertIsNone(CONTROL.search(shown), outcome)
                    if "\n" in name:
                        self.assertNotIn("two\nlines", shown)
                    if command[0] == "apply":
                        self.assert_branded(folder)
                        self.assertTrue(os.path.isfile(os.path.join(folder, BACKUP)))
                    for _path, folders, files in os.walk(os.fsencode(self.work)):
                        for entry in folders + files:
                            self.assertNotIn(b"\xef\xbf\xbd", entry, "a name was changed into replacement characters")

    def test_machine_output_names_every_folder_without_loss(self):
        for name in NAMES:
            with self.subTest(name=name):
                folder = self.folder(name)
                outcome = self.run_program("status", "--json", "--", folder)
                outcome.out.encode("utf-8")  # machine output is valid UTF-8 whatever the name
                text = json.dumps(json.loads(outcome.out))
                self.assertTrue(self.lossless(json.loads(outcome.out), folder), text)

    def test_where_a_name_may_hold_no_carriage_return_the_mapped_one_serves(self):
        if shutil.which("strace") is None:
            self.skipTest("there is no strace")
        mapped = "Icon\uf00d"
        for step in range(1, 12):
            # As such a file system does: the renaming to that very name fails, and it alone; the record is
            # the first that is renamed without the newer call.
            folder = self.folder(f"Refused {step}")
            done = subprocess.run(["strace", "-f", "-e", "trace=renameat,renameat2", "-e",
                                   f"inject=renameat2:error=EINVAL:when={step}", "-e",
                                   "inject=renameat:error=EINVAL:when=2", PROGRAM, "apply", "--label", "x", folder], capture_output=True, env=self.environment(), timeout=120, check=False)
            if os.path.exists(os.path.join(folder, mapped)):
                self.assertEqual(done.returncode, 0, done.stderr)
                self.assertFalse(os.path.exists(os.path.join(folder, ICON)))
                self.assertTrue(os.path.isfile(os.path.join(folder, "._" + mapped)))
                self.assertEqual(read(os.path.join(folder, ".hidden")), mapped.encode() + b"\n")
                self.expect(0, "verify", folder)
                self.expect(0, "reset", folder)
                self.assertEqual(sorted(os.listdir(folder)), ["empty", "letter.txt"])
                return
        self.fail("no step led to the mapped name")

    def lossless(self, value, folder):
        """Whether the path stands somewhere in this value: as text, or percent-escaped, or in base64."""
        raw = os.fsencode(folder)
        escaped = urllib.parse.quote_from_bytes(raw)
        forms = {escaped, "file://" + escaped, base64.b64encode(raw).decode()}
        try:
            forms.add(raw.decode("utf-8"))
        except UnicodeDecodeError:
            pass
        if isinstance(value, dict):
            return any(self.lossless(item, folder) for item in value.values())
        if isinstance(value, list):
            return any(self.lossless(item, folder) for item in value)
        return isinstance(value, str) and (value in forms or urllib.parse.unquote_to_bytes(value) == raw)

    def test_neighbours_that_look_alike_stay_apart(self):
        pairs = (("\u00e4", "a\u0308"), ("Twin", "twin"), ("x", "x "), ("caf\udce9", "caf\u00e9"))
        for left, right in pairs:
            with self.subTest(pair=(left, right)):
                first, second = self.folder(left), self.folder(right)
                self.expect(0, "apply", *LABEL, first)
                self.assert_branded(first)
                self.assertFalse(os.path.lexists(os.path.join(second, ICON)))
                self.assertEqual(sorted(os.listdir(second)), ["empty", "letter.txt"])

    def test_a_path_of_the_greatest_length_is_branded(self):
        # 4,095 bytes are the most that the system takes; what is inside is then reached from within only.
        for length in (4000, 4095, 4096):
            path, here = self.work, os.getcwd()
            while len(path) + 201 <= length - 60:
                path += "/" + "d" * 200
            os.makedirs(path, exist_ok=True)
            self.addCleanup(os.chdir, here)
            os.chdir(path)
            last = "e" * (length - len(path) - 1)
            os.mkdir(last)
            with self.subTest(length=length):
                if length > 4095:
                    outcome = self.expect(1, "apply", *LABEL, path + "/" + last)
                    self.assert_says(outcome, "too long")
                    self.assertEqual(os.listdir(last), [])
                    continue
                self.expect(0, "apply", *LABEL, path + "/" + last)
                os.chdir(last)
                self.assert_branded(".")
                self.assertGreater(len(read(BACKUP)), 8)
                self.expect(0, "reset", path + "/" + last)
                self.assertEqual(os.listdir("."), [])
        # A search says so where it cannot go on.
        self.assert_says(self.expect(1, "list", self.work), "too long")


if __name__ == "__main__":
    unittest.main(verbosity=2)
