# SPDX-License-Identifier: GPL-3.0-or-later
"""docs/what-it-writes.md says all that is written and nothing else: its tables are compared with what runs really leave
in and on a folder, beside it, and in the user's own folders.

A row's second column is the name of a scenario below, or of one that needs what a plain test machine does not have.
A new kind of file needs a row; a new condition needs a row and a scenario."""
import fnmatch
import hashlib
import os
import re
import shutil
import signal
import subprocess
import unittest
import urllib.parse

from support import (BACKUP, FINDER_INFO, FOREIGN, ICON, ICON_COMPANION, LABEL, PROGRAM, ROOT, EndToEndTest,
                     can_store_finder_info, plant_custom_icon, read, tree, write)

PLACES = {"Inside the folder": "folder/", "On the folder": "attribute ", "Beside the folder": "beside/",
          "Elsewhere": "home/"}
# Needs a session with its daemons, a disk of its own, or a machine whose list of fonts is stale. names_test.py plays
# the names.
NOT_PLAYED = {"in a desktop session", "fonts were installed since the last run", "there was none, and no session",
              "names take no carriage return",
              "a file system without attributes whose topmost folder this is"}


def declared():
    """(pattern, conditions, with all below) of each row."""
    place, rows = None, []
    for line in read(os.path.join(ROOT, "docs/what-it-writes.md")).decode().splitlines():
        if line.startswith("## "):
            place = PLACES.get(line[3:])
        row = re.match(r"\| `([^`]+)`(?: \+ (CR|U\+F00D))?( and all below)? \| ([^|]+) \|", line)
        if not row or place is None:
            continue
        name = re.sub(r"HASH|XXXXXXXX|SIZE", "*", row[1]).replace("._NAME", "._Invoices")
        name = name.replace("$XDG_CACHE_HOME", "cache") + {"CR": "\r", "U+F00D": "\uf00d", None: ""}[row[2]]
        rows.append((place + name, row[4].split("; "), bool(row[3])))
    return rows


def covers(row, seen):
    pattern, _conditions, below = row
    same = fnmatch.fnmatchcase(seen, pattern) and seen.count("/") == pattern.count("/")
    return same or (below and fnmatch.fnmatchcase(seen, pattern.rstrip("/") + "/*"))


class WhatItWritesTest(EndToEndTest):
    def environment(self):
        # Where Qt and others would put what they keep for a session; everything else is below home already.
        environment = {**super().environment(), "TMPDIR": self.temporary}
        if self.prefix:  # leaks cannot be looked for while traced
            environment["ASAN_OPTIONS"] = environment.get("ASAN_OPTIONS", "") + ":detect_leaks=0"
        return environment

    def setUp(self):
        super().setUp()
        self.temporary = os.path.join(self.home, "tmp")
        os.mkdir(self.temporary)
        os.mkdir(self.home + "/cache")
        self.path = self.folder()
        if not can_store_finder_info(self.path):
            self.skipTest("no extended attributes here")
        self.prefix, self.options = (), ()

    def seen(self):
        """name -> content, of all that could be written to."""
        rows = {}
        for name, row in tree(self.path).items():
            if name == ".":
                rows.update({"attribute " + key: value for key, value in row[4].items()})
                rows["the folder's owner and mode"] = row[:3]
            else:
                is_folder = row[0].startswith("d")
                rows["folder" + name[1:] + "/" * is_folder] = row
        for top, place in ((self.work, "beside"), (self.home, "home")):
            for name, row in tree(top).items():
                if name != "." and not name.startswith("./Invoices"):
                    rows[place + name[1:] + "/" * row[0].startswith("d")] = row
        return rows

    def changed(self, before):
        after = self.seen()
        return {name for name in before.keys() | after.keys() if before.get(name) != after.get(name)}

    def run_to_the_end(self, *arguments, code=0):
        done = subprocess.run([*self.prefix, PROGRAM, *arguments], capture_output=True, timeout=60,
                              env=self.environment(), cwd=self.work)
        self.assertEqual(done.returncode, code, done.stderr)

    # The scenarios: what has to be there for a row to be true.

    def always(self):
        pass

    def custom_icon(self):
        plant_custom_icon(self.path, FOREIGN)

    def files_for_file_managers(self):
        write(self.path + "/.directory", b"[Desktop Entry]\nComment=mine\n")
        write(self.path + "/.hidden", b"secret\n")

    def backup(self):
        write(os.path.join(self.path, BACKUP), FOREIGN)

    def renamed_custom_icon(self):
        plant_custom_icon(self.path, FOREIGN)
        for name in (ICON, ICON_COMPANION):
            os.rename(os.path.join(self.path, name), os.path.join(self.path, name.replace("\r", "\uf00d")))

    def companions(self):
        plant_custom_icon(self.path, FOREIGN, flags=0)
        os.rename(os.path.join(self.path, ICON_COMPANION), os.path.join(self.work, "._Invoices"))
        os.remove(os.path.join(self.path, ICON))
        shutil.copy(os.path.join(self.work, "._Invoices"), os.path.join(self.path, "._."))

    def server_record(self):
        record = bytearray(read(ROOT + "/fuzz/corpus/AppleDoubleFuzz/server-record"))
        record[0x7a:0x9a] = bytes(32)  # the Finder info: no custom icon
        os.setxattr(self.path, "user.org.netatalk.Metadata", record)

    def no_attributes(self):
        self.inject("fsetxattr:error=EOPNOTSUPP")

    def killed(self):
        self.inject("renameat2:signal=KILL:when=1")

    def cached_picture(self):
        address = "file://" + urllib.parse.quote(self.path)
        thumbnails = self.home + "/cache/thumbnails/normal"
        os.makedirs(thumbnails)
        write(f"{thumbnails}/{hashlib.md5(address.encode()).hexdigest()}.png", b"a picture")
        write(f"{thumbnails}/{hashlib.md5(b'another').hexdigest()}.png", b"another's")

    def git_tree(self):
        if shutil.which("git") is None:
            self.skipTest("there is no git")
        subprocess.run(["git", "init", "-q", self.work], env=self.environment(), check=True)
        self.options = ("--git-exclude",)

    def inject(self, fault):
        if shutil.which("strace") is None:
            self.skipTest("there is no strace")
        self.prefix = ("strace", "-f", "-o", "/dev/null")
        try:
            self.run_to_the_end("--version")
        except AssertionError:
            self.skipTest("nothing can be traced here")
        self.prefix += ("-e", "trace=" + fault.split(":")[0], "-e", "inject=" + fault)

    SCENARIOS = {"always": always, "a custom icon of yours": custom_icon,
                 "a `.directory` and a `.hidden` of yours": files_for_file_managers,
                 "a `.BackupIcon.icns` of yours": backup, "companions of yours": companions,
                 "a custom icon that a file server renamed": renamed_custom_icon, "a file server's record": server_record,
                 "a file system without attributes": no_attributes, "while it writes": killed,
                 "a cached picture of the folder": cached_picture,
                 "`apply --git-exclude` in a git work tree": git_tree}

    def test_the_tables_tell_all_that_is_written_and_nothing_else(self):
        rows = declared()
        self.assertEqual({condition for row in rows for condition in row[1]}, set(self.SCENARIOS) | NOT_PLAYED)
        for condition, arrange in self.SCENARIOS.items():
            with self.subTest(condition):
                shutil.rmtree(self.work)
                shutil.rmtree(self.home)
                os.makedirs(self.temporary)
                os.mkdir(self.home + "/cache")
                self.folder()
                self.prefix, self.options = (), ()
                arrange(self)
                before = self.seen()
                if condition == "while it writes":
                    self.run_to_the_end("apply", *LABEL, self.path, code=-signal.SIGKILL)
                    self.prefix = ()
                else:
                    self.run_to_the_end("apply", *self.options, *LABEL, self.path)
                written = self.changed(before)
                allowed = [row for row in rows if {"always", condition, *NOT_PLAYED} & set(row[1])]
                for name in written:
                    self.assertTrue(any(covers(row, name) for row in allowed), f"{name!r} is not in the tables")
                for row in rows:
                    if condition in row[1]:
                        self.assertTrue(any(covers(row, name) for name in written), f"{row[0]!r} never appears")
                self.run_to_the_end("apply", *LABEL, self.path)
                self.run_to_the_end("reset", self.path)
                stays = ("home/cache/thumbnails/", "beside/.git/info/exclude")
                left = {name for name in self.changed(before) if not name.startswith(stays)}
                self.assertEqual(left, set(), "reset leaves something")

    def test_what_is_said_to_write_nothing_writes_nothing(self):
        self.expect(0, "apply", *LABEL, self.path)
        self.expect(0, "status", self.path)
        before = self.seen()
        self.expect(0, "status", "--json", self.path)
        for command in (("apply", "--label", "another"), ("revert",), ("reset",)):
            self.expect(0, *command, "--dry-run", self.path)
        self.expect(0, "apply", *LABEL, self.path)
        self.expect(0, "render", *LABEL, os.path.join(self.place, "label.png"))
        self.assertEqual(self.changed(before), set())

    def test_a_row_that_is_missing_or_too_many_would_be_seen(self):
        rows = declared()
        self.assertGreater(len(rows), 15)
        self.assertTrue(any(covers(row, "folder/Icon\r") for row in rows))
        self.assertTrue(any(covers(row, "attribute " + FINDER_INFO) for row in rows))
        for stranger in ("folder/Icon", "folder/.quorvane/other", "folder/letter.txt", "home/config/", "beside/other",
                         "folder/.quorvane/icon-a.png/deeper"):
            self.assertFalse(any(covers(row, stranger) for row in rows), stranger)


if __name__ == "__main__":
    unittest.main()
