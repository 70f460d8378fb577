# SPDX-License-Identifier: GPL-3.0-or-later
"""What goes wrong while the window is open: folders that change under it, things that are no folders, odd labels,
planted files. It says so, goes on, and nothing is lost."""
import json
import os
import shutil
import struct
import subprocess
import unittest

from driver import WindowTest
from support import BACKUP, FOREIGN, ICON, family_file, read, tree, write

LABEL = "^Label$"
BARE = (400, 700)  # a place without items in the file manager


class HostileTest(WindowTest):
    def opened(self, folder, **options):
        program = self.start(folder, **options)
        program.wait_open(folder)
        return program

    def locked(self, folder):
        """Makes a folder read-only, for the administrator too."""
        if os.geteuid() != 0:
            os.chmod(folder, 0o555)
        elif subprocess.run(["chattr", "+i", folder], capture_output=True, check=False).returncode == 0:
            self.addCleanup(subprocess.run, ["chattr", "-i", folder], check=False)
        else:
            return False
        return True

    def test_a_failed_apply_says_so_and_keeps_the_composition(self):
        def vanishes(folder):
            shutil.rmtree(folder)

        def becomes_a_file(folder):
            shutil.rmtree(folder)
            write(folder, b"not a folder")

        def becomes_a_link(folder):
            shutil.rmtree(folder)
            os.symlink(self.place + "/nowhere", folder)

        for arrange in (vanishes, becomes_a_file, becomes_a_link, self.locked):
            folder = self.folder(arrange.__name__)
            with self.subTest(arrange.__name__), self.opened(folder) as program:
                self.type("keep me")
                if arrange(folder) is False:
                    continue
                before = tree(self.work)
                self.click(program.get("push button", "^Apply$"))
                self.wait_for_sheet(program, "Unable to Set Icon")
                self.picture("sheet-" + arrange.__name__)
                self.key("Return")
                self.wait(lambda: not program.find("push button", "^OK$"), "the sheet to go")
                self.assertEqual(program.get("text", LABEL).text, "keep me")
                self.assertTrue(program.is_enabled("push button", "^Apply$"))
                self.assertEqual(tree(self.work), before)
                self.key("alt+v")  # nothing to put back: it goes on
                self.assertEqual(program.get("text", LABEL).text, "keep me")
                # The next folder is none the worse for it.
                good = self.folder("after " + arrange.__name__)
                self.start(good).wait_end()
                program.wait_open(good)
                self.type("fine")
                self.key("ctrl+Return")
                self.wait(lambda: os.path.exists(os.path.join(good, BACKUP)), "an icon")
                self.wait(lambda: program.get("text", LABEL).text == "", "the end of it")
                self.assert_branded(good)
                self.assertEqual(program.end(), 0)

    def test_what_is_dropped_is_a_folder_or_refused_with_a_reason(self):
        target, inside = self.folder("target"), self.folder("inside", self.place)
        for name in ("one", "two"):
            self.folder(name, inside)
        write(os.path.join(inside, "file.txt"), b"text")
        os.symlink(target, os.path.join(inside, "link"))
        os.symlink(self.place + "/nowhere", os.path.join(inside, "dangling"))
        item_of = self.open_manager(inside)
        program = self.opened(target)
        program.move_aside()
        before = tree(self.place + "/inside")
        canvas, label = program.get("canvas"), program.get("text", LABEL)
        for what, goal, reason in (("file.txt", canvas, "not a file"), ("all", canvas, "one folder"),
                                   ("file.txt", label, "not a file"), ("dangling", canvas, "not exist")):
            with self.subTest(what=what, on=goal.name):
                self.click(BARE)  # nothing is chosen any more
                if what == "all":
                    self.key("ctrl+a")
                self.drag(item_of("one" if what == "all" else what), goal,
                          before_drop=lambda: self.picture("refused-" + what))
                self.wait(lambda: reason in (program.notice() or ""), f"{reason!r} beside the path")
                program.wait_title("– target")
        for name, opened in (("link", "target"), ("one", "one"), ("link", "target")):
            self.drag(item_of(name), canvas if opened == "one" else program.get("push button", "Choose Picture"))
            program.wait_title("– " + opened)
        self.assertEqual(tree(self.place + "/inside"), before)
        self.assertEqual(program.end(), 0)

    def test_odd_labels(self):
        controls = bytes(range(1, 32)) + b"\x7f" + "\u202e\u2028\u200b\ufeff\U0001f3f4".encode() + b"\xff\xfe"
        for name, data in (("long", b"0123456789" * 10_000), ("breaks", b"\n" * 50), ("controls", controls),
                           ("wide", "﷽𒐫".encode() * 500), ("marks", "Z".encode() + "\u0335\u0321".encode() * 3000)):
            folder = self.folder(name)
            with self.subTest(name), self.opened(folder) as program:
                self.paste(data)
                self.wait(lambda: program.is_enabled("push button", "^Apply$"), "Apply", patience=30)
                self.key("ctrl+Return")
                self.wait(lambda: os.path.exists(os.path.join(folder, ICON)), "an icon", patience=60)
                self.wait(lambda: program.get("text", LABEL).text == "", "the end of it", patience=30)
                self.picture("label-" + name)
                self.assert_branded(folder)
                self.assertEqual(program.end(), 0)

    def test_planted_backups_harm_nobody(self):
        secret = os.path.join(self.place, "secret")
        write(secret, b"mine")
        huge = struct.pack(">4sI", b"icns", 0x7FFFFFFF) + struct.pack(">4sI", b"ic09", 0x7FFFFFF0)
        bomb = b"\x89PNG\r\n\x1a\n" + struct.pack(">I4sIIBBBBBI", 13, b"IHDR", 0x7FFFFFFF, 0x7FFFFFFF, 8, 6, 0, 0, 0, 0)
        plants = {"empty": b"", "huge": huge, "bomb": family_file(("ic09", bomb)), "rubbish": os.urandom(70_000),
                  "cut": FOREIGN[:200], "fifo": None, "link": None, "folder": None}
        for name, data in plants.items():
            folder = self.folder(name)
            backup = os.path.join(folder, BACKUP)
            if name == "fifo":
                os.mkfifo(backup)
            elif name == "link":
                os.symlink(secret, backup)
            elif name == "folder":
                os.mkdir(backup)
            else:
                write(backup, data)
            before = tree(folder)
            with self.subTest(name), self.opened(folder) as program:
                self.key("ctrl+r", "alt+v")
                # A letter that comes while the folder is worked on is for nobody.
                self.wait(lambda: program.get("text", LABEL).text.startswith("x") or self.type("x"), "the label")
                self.picture("backup-" + name)
                if os.path.lexists(backup):
                    self.assertEqual(tree(folder), before)
                else:  # what looks like a family is believed, and was put back
                    self.assert_branded(folder)
                self.key("ctrl+Return")
                self.wait(lambda: os.path.exists(os.path.join(folder, ICON)) or program.find("push button", "^OK$"),
                          "an icon or a reason")
                self.key("Return")
                self.assertEqual(program.end(), 0)
        self.assertEqual(read(secret), b"mine")

    def test_damaged_settings_are_not_lost_and_stop_nothing(self):
        folder = self.folder()
        settings = os.path.join(self.home, "config/quorvane/settings.json")
        os.makedirs(os.path.dirname(settings))
        keys = ["UseDefaultColor", "DefaultColor", "LastUsedColor", "UseDefaultFont", "DefaultFont", "LastUsedFont",
                "UsageCount", "R236", "BuiltinIconSetSelection", "CustomIconSetSelection", "SUFeedURL"]
        whole = lambda value: json.dumps({"quorvane-settings": 1, "values": {key: value for key in keys}, "own": 5})
        for name, text in (("texts", whole("text")), ("numbers", whole(-2**62)), ("lists", whole([1, "a", []])),
                           ("data", whole({"data": "AAAA"})), ("reals", whole({"real": "nan"})), ("null", whole(None)),
                           ("cut", whole("text")[:50]), ("deep", "[" * 100_000), ("newer", '{"quorvane-settings": 99}')):
            with self.subTest(name):
                write(settings, text.encode())
                with self.opened(folder) as program:
                    self.wait(lambda: program.get("text", LABEL).text.startswith("x") or self.type("x"), "the label")
                    self.key("ctrl+t", "ctrl+shift+c")
                    self.assertEqual(program.end(), 0)
                kept = [read(os.path.join(top, file)) for top, _folders, files in os.walk(self.home + "/config/quorvane")
                        for file in files]
                if name in ("cut", "deep", "newer"):
                    self.assertIn(text.encode(), kept, "what cannot be read is kept")
                else:
                    self.assertEqual(json.loads(read(settings))["own"], 5)
                shutil.rmtree(self.home + "/config/quorvane")
                os.makedirs(os.path.dirname(settings))


if __name__ == "__main__":
    unittest.main(verbosity=2)
