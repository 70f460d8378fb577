# SPDX-License-Identifier: GPL-3.0-or-later
"""Kills and hinders the program at each point where it changes the icon library: no icon and no set is ever lost or
half there, the library can be listed afterwards, and the next run completes the work and leaves nothing lying about."""
import json
import os
import plistlib
import shutil
import subprocess
import tempfile
import unittest
import zipfile

from places import fast_place
from points import Tracer, points, thin

PATIENCE = float(os.environ.get("QUORVANE_PATIENCE", "10"))
QUORVANE = os.environ.get("QUORVANE", "")
WRITER = os.environ.get("QUORVANE_LIBRARY_WRITER", "")
STRIDE = max(1, int(os.environ.get("QUORVANE_STRIDE", "61")) // 10)
ICONS = ["b.icns", "a.icns", "c.icns"]


class LibraryTest(unittest.TestCase):
    def setUp(self):
        self.place = tempfile.mkdtemp(prefix="quorvane-library-", dir=fast_place())
        self.addCleanup(shutil.rmtree, self.place, ignore_errors=True)
        self.root = os.path.join(self.place, "home")
        self.library = os.path.join(self.root, "test.quorvane.Quorvane")
        self.environment = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "HOME": self.root,
                            "XDG_DATA_HOME": self.root, "QUORVANE_BASE_ICONS": os.path.join(self.place, "none")}
        self.tracer = Tracer(QUORVANE, self.environment, 6 * PATIENCE)
        if not QUORVANE or shutil.which("strace") is None or not self.tracer.works():
            self.skipTest("nothing can be traced here")
        self.icon, self.zip = os.path.join(self.place, "new.icns"), os.path.join(self.place, "In.zip")
        self.run_program("render", "--label", "x", self.icon)
        with open(self.icon, "rb") as file:
            self.content = file.read()
        with zipfile.ZipFile(self.zip, "w") as file:
            file.writestr("b.icns", self.content)

    def run_program(self, *arguments):
        done = subprocess.run([QUORVANE, *arguments], capture_output=True, check=False, timeout=6 * PATIENCE,
                              env=self.environment)
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stdout

    def lay(self):
        shutil.rmtree(self.root, ignore_errors=True)
        for name in ("Blue", "Red"):
            os.makedirs(os.path.join(self.library, name))
            for icon in ICONS:
                with open(os.path.join(self.library, name, icon), "wb") as file:
                    file.write(self.content)
            with open(os.path.join(self.library, name, "QVIcons.plist"), "wb") as file:
                plistlib.dump(ICONS, file)
        with open(os.path.join(self.library, "sets.plist"), "wb") as file:
            plistlib.dump(["Red", "Blue"], file)

    def state(self):
        """The sets as the program lists them, each with its icons in order; every one of them is whole."""
        items = json.loads(self.run_program("sets", "--json"))["results"]
        for item in items:
            for icon in item["icons"]:
                with open(os.path.join(self.library, item["set"], icon), "rb") as file:
                    content = file.read()
                self.assertEqual((content[:4], len(content)), (b"icns", int.from_bytes(content[4:8], "big")), icon)
        return [(item["set"], item["icons"]) for item in items]

    def leftovers(self):
        return [name for _folder, folders, names in os.walk(self.root) for name in folders + names
                if name.endswith(".tmp")]

    def trashed(self):
        """The names in the trash of files that are whole."""
        place = os.path.join(self.root, "Trash", "files")
        names = os.listdir(place) if os.path.isdir(place) else []
        for name in names:
            with open(os.path.join(place, name), "rb") as file:
                self.assertEqual(file.read(), self.content)
        return names

    def each_point(self, arguments, is_good, program=None):
        self.tracer.program = program or QUORVANE
        self.lay()
        old = self.state()
        done, calls = self.tracer.calls(arguments, self.root, self.root)
        self.assertEqual(done.returncode, 0, done.stderr)
        new = self.state()
        self.assertGreater(len(calls), 5)
        for point in thin(points(calls, ("kill", "fail", "stuck")), STRIDE):
            with self.subTest(point=str(point)):
                self.lay()
                done = self.tracer.run(point.options(), arguments, self.root)
                self.assertIn(done.returncode, (-9, 137) if point.kind == "kill" else (0, 1), done.stderr)
                after = self.state()
                if done.returncode == 0:
                    # A list that could not be read for a moment loses its order to the folder's, and no icon.
                    self.assertEqual({name: sorted(icons) for name, icons in after},
                                     {name: sorted(icons) for name, icons in new})
                elif after not in (old, new):
                    self.was_killed = point.kind == "kill"
                    is_good(dict(after))
                if self.leftovers():
                    # Whoever writes there next clears them away.
                    for name in dict(after):
                        self.run_program("sets", "add", name, self.icon)
                    self.run_program("sets", "new", "Last")
                    self.assertEqual(self.leftovers(), [])

    def test_adding(self):
        def is_good(after):
            self.assertEqual(after["Red"], ICONS)
            self.assertIn(after["Blue"], (ICONS, [*ICONS, "new.icns"]))
        self.each_point(["sets", "add", "Blue", self.icon], is_good)

    def test_renaming(self):
        def is_good(after):
            self.assertEqual(after["Red"], ICONS)
            self.assertIn(sorted(after), (["Blue", "Red"], ["Green", "Red"]))
            self.assertEqual(after.get("Blue", after.get("Green")), ICONS)
        self.each_point(["sets", "rename", "Blue", "Green"], is_good)

    def test_removing(self):
        def is_good(after):
            self.assertEqual(after["Red"], ICONS)
            self.assertEqual([name for name in after["Blue"] if name != "a.icns"], ["b.icns", "c.icns"])
        self.each_point(["sets", "remove", "Blue", "a"], is_good)

    def test_reordering_and_taking_it_back(self):
        def is_good(after):
            self.assertEqual(after["Red"], ICONS)
            self.assertIn(after["Blue"], (ICONS, ICONS[::-1]))
        for what in ("reorder", "undo-reorder"):
            self.each_point([what, "Blue", "a.icns"], is_good, WRITER)

    def test_bringing_a_removed_icon_back(self):
        def is_good(after):
            self.assertEqual(after["Red"], ICONS)
            self.assertEqual([name for name in after["Blue"] if name != "a.icns"], ["b.icns", "c.icns"])
            if self.was_killed and "a.icns" not in after["Blue"]:
                self.assertEqual(self.trashed(), ["a.icns"])
        self.each_point(["undo-remove", "Blue", "a.icns"], is_good, WRITER)

    def test_moving_to_another_set(self):
        def is_good(after):
            self.assertEqual([name for name in after["Blue"] if name != "a.icns"], ["b.icns", "c.icns"])
            self.assertIn(after["Red"], (ICONS, [*ICONS, "a-1.icns"]))
            self.assertTrue("a.icns" in after["Blue"] or "a-1.icns" in after["Red"])
        self.each_point(["move", "Blue", "a.icns", "Red"], is_good, WRITER)

    def test_importing(self):
        def is_good(after):
            self.assertEqual(after, {"Red": ICONS, "Blue": ICONS, "In": ["b.icns"]})
        self.each_point(["sets", "import", self.zip], is_good)


if __name__ == "__main__":
    unittest.main(verbosity=2)
