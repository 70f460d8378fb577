# SPDX-License-Identifier: GPL-3.0-or-later
"""The icon library: pictures are dragged into a set out of a file manager, put into another order, moved to another set
and chosen, all with the mouse; what comes of it is read by programs that are not ours."""
import io
import os
import plistlib
import subprocess
import unittest

from driver import WindowTest, middle
from support import APP_ID, elements, pictures, read

COLOURS = {"A": (200, 30, 30), "B": (30, 160, 30), "C": (30, 30, 200)}


class LibraryTest(WindowTest):
    def setUp(self):
        super().setUp()
        self.library = os.path.join(self.home, "data", APP_ID)
        for name in ("Blue", "Red"):
            os.makedirs(os.path.join(self.library, name))
        with open(os.path.join(self.library, "sets.plist"), "wb") as file:
            plistlib.dump(["Blue", "Red"], file, fmt=plistlib.FMT_BINARY)

    def listed(self, name):
        try:
            with open(os.path.join(self.library, name, "QVIcons.plist"), "rb") as file:
                return [entry.removesuffix(".icns") for entry in plistlib.load(file)]
        except FileNotFoundError:
            return []

    def wait_listed(self, name, entries):
        self.wait(lambda: self.listed(name) == entries, f"{entries} in {name}, not {self.listed(name)}")
        files = sorted(file for file in os.listdir(os.path.join(self.library, name)) if file.endswith(".icns"))
        self.assertEqual(files, sorted(entry + ".icns" for entry in entries))

    def test_pictures_become_icons_are_reordered_moved_and_chosen(self):
        source = os.path.join(self.work, "in")
        os.mkdir(source)
        for name, colour in COLOURS.items():
            pictures().new("RGB", (600, 600), colour).save(os.path.join(source, name + ".png"))
        before = {name: read(os.path.join(source, name + ".png")) for name in COLOURS}
        folder = self.folder("Target")
        item_of = self.open_manager(source)
        program = self.start(folder)
        program.wait_open(folder)
        program.move_aside()
        self.click(program.get("radio button", "My Icons"))
        table = program.get("table", "^My Icons$")
        self.wait(lambda: program.find("cell", "^Blue"), "the sets")

        first = item_of("A.png")
        self.click((middle(first)[0], 600))  # below the files: the focus
        self.key("ctrl+a")
        self.drag(first, table, before_drop=lambda: self.picture("library-1-drop"))
        self.wait_listed("Blue", ["C", "B", "A"])
        self.assertEqual({name: read(os.path.join(source, name + ".png")) for name in COLOURS}, before)

        cell = lambda name: program.get("cell", f"^{name}\\b")
        x, y, width, height = cell("A").extents
        self.drag(cell("C"), (x + width // 2, y + height - 4), before_drop=lambda: self.picture("library-2-order"))
        self.wait_listed("Blue", ["B", "A", "C"])
        self.drag(cell("A"), cell("Red"), before_drop=lambda: self.picture("library-3-move"))
        self.wait_listed("Red", ["A"])
        self.wait_listed("Blue", ["B", "C"])
        self.key("ctrl+z")
        self.wait_listed("Blue", ["B", "A", "C"])
        self.wait_listed("Red", [])

        self.click(cell("B"))
        self.wait(lambda: program.is_enabled("push button", "^Apply$"), "Apply")
        self.key("ctrl+Return")
        self.wait(lambda: os.path.exists(os.path.join(folder, "._Icon\r")), "the icon")
        self.put_tip_away(program)  # it comes when all is written
        family = self.assert_branded(folder)
        with pictures().open(io.BytesIO(dict(elements(family))["ic09"])) as shown:
            self.assertEqual(shown.convert("RGB").getpixel((256, 256)), COLOURS["B"])
        told = subprocess.run(["icns2png", "-l", os.path.join(self.library, "Blue", "C.icns")], capture_output=True,
                              text=True, check=True)
        self.assertIn("512x512", told.stdout)
        self.picture("library-4-chosen")
        self.key("ctrl+q")
        self.assertEqual(program.wait_end(), 0)
        self.assertEqual(program.said(), "")


if __name__ == "__main__":
    unittest.main(verbosity=2)
