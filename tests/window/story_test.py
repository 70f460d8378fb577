# SPDX-License-Identifier: GPL-3.0-or-later
"""A folder is dragged out of a file manager, gets an icon, and gets its former one back: all with mouse and keyboard,
the result read by programs that are not ours."""
import io
import os
import subprocess
import unittest

from driver import WindowTest, accessible, middle, session
from support import BACKUP, ELEMENTS, ICON_COMPANION, elements, folder_flags, pictures, read, tree

CHANGED = 24  # of 255: what differs less may be rounding


def bitmap(family):
    """The 512 pixel picture of an icon family."""
    return pictures().open(io.BytesIO(dict(elements(family))["ic09"])).convert("RGBA")


def where_they_differ(one, other):
    """The box (left, top, right, bottom) of the pixels that differ, as shares of the width."""
    from PIL import ImageChops
    box = ImageChops.difference(one, other).convert("RGB").point(lambda v: 255 if v > CHANGED else 0).getbbox()
    return [value / one.width for value in box] if box else None


class StoryTest(WindowTest):
    def test_a_folder_from_a_file_manager_gets_an_icon_and_its_former_one_back(self):
        folder = self.folder("Invoices 2026")
        before = tree(self.work)
        item_of = self.open_manager(self.work)
        program = self.start()
        program.move_aside()
        self.assertFalse(program.is_enabled("push button", "^Apply$"))
        self.picture("1-empty")

        canvas = program.get("canvas")
        item = item_of("Invoices 2026")
        self.drag(item, canvas, before_drop=lambda: self.picture("2-over-the-canvas"))
        program.wait_open(folder)
        self.assertEqual(tree(self.work), before, "looking changes nothing")

        self.type("Tax")
        self.key("Return")
        self.type("2026")
        label = program.get("text", "^Label$")
        self.wait(lambda: label.text == "Tax\n2026", "both lines")
        self.wait(lambda: program.is_enabled("push button", "^Apply$"), "Apply")
        self.click(program.get("combo box"))
        self.wait(lambda: program.find("list item", "Red glow"), "the effects")
        self.picture("3-effects")
        self.type("Red")
        self.key("Return")
        program.get("combo box", "Red glow")
        self.picture("4-edited")
        x, y = middle(canvas)
        self.drag((x, y), (x, y + 40))
        self.picture("5-label-dragged")

        shown = self._screen(item)
        self.click(program.get("push button", "^Apply$"))
        self.wait(lambda: os.path.exists(os.path.join(folder, BACKUP)) and label.text == "", "the end of Apply")
        family, backup = self.assert_branded(folder), read(os.path.join(folder, BACKUP))
        self.assertEqual(sorted(kind for kind, _data in elements(family)), sorted(ELEMENTS))
        self.assertEqual(self._independently_named(folder), elements(family)[0][0])
        left, top, right, bottom = where_they_differ(bitmap(backup), bitmap(family))
        self.assertAlmostEqual((left + right) / 2, 0.5, delta=0.05)
        self.assertGreater((top + bottom) / 2, 0.55, "the label was dragged down")
        red = [pixel for pixel in bitmap(family).getdata() if pixel[3] > 99 and pixel[0] > 2 * max(pixel[1:3])]
        self.assertGreater(len(red), 1000, "the glow")
        after = tree(self.work)
        for name in ("letter.txt", "empty"):
            self.assertEqual(after[f"./Invoices 2026/{name}"], before[f"./Invoices 2026/{name}"])
        program.get("filler", "^Original icon$")
        self.wait(lambda: self._screen(item) != shown, "the file manager to show it")
        self.picture("6-applied")
        self.put_tip_away(program)

        self.key("alt+v")
        self.wait(lambda: not os.path.exists(os.path.join(folder, BACKUP)), "Revert")
        self.wait(lambda: not program.find("filler", "^Original icon$"), "the drawer to close")
        self.assertEqual(self.assert_branded(folder), backup, "the former icon, now a custom one")
        self.picture("7-reverted")
        self.key("ctrl+q")
        self.assertEqual(program.wait_end(), 0)
        self.assertEqual(program.said(), "")

    def _screen(self, box):
        """What stands there on the screen."""
        x, y, width, height = box
        return self.desktop.run("import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "-depth", "8",
                                "ppm:-").stdout

    def _independently_named(self, folder):
        """The type of the first element, told by another program out of the companion's own fork."""
        told = subprocess.run(["lsar", "-L", os.path.join(folder, ICON_COMPANION)], capture_output=True, check=False)
        self.assertEqual(told.returncode, 0, told)
        family = os.path.join(self.place, "family.icns")
        with open(family, "wb") as file:
            file.write(self.assert_branded(folder))
        told = subprocess.run(["icns2png", "-l", family], capture_output=True, text=True, check=True)
        self.assertTrue(folder_flags(folder))
        return next(kind for kind in ELEMENTS if kind in told.stdout)


if __name__ == "__main__":
    unittest.main(verbosity=2)
