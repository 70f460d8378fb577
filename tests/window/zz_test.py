# SPDX-License-Identifier: GPL-3.0-or-later
"""The same job as somebody does it with assistive tools: every control is found by its name and acted upon through the
accessibility bus, without mouse and keyboard. And all that is in sight says what it is."""
import os
import unittest

from accessible import ACTION, CHECKED, ENABLED, FOCUSABLE, VALUE, Failure
from driver import WindowTest
from support import BACKUP, pictures, read

# What only holds others. All else that can have the focus is for somebody.
CONTAINERS = {"frame", "filler", "panel", "layered pane", "application", "menu bar", "dialog", "alert", "viewport",
              "scroll pane", "splitter", "grip"}
WITH_VALUE = {"slider", "spin box", "scroll bar", "progress bar"}
WITH_ACTION = {"push button", "check box", "radio button", "menu item", "color chooser", "combo box"}


class AccessibleTest(WindowTest):
    def assert_told(self, program):
        """Of everything in sight: a role, a name, a value where there is one to tell, something to do, and a place."""
        for window in program.application.children:
            for widget in window.walk():
                try:
                    role, name, known = widget.role, widget.name, widget.interfaces
                    if role in CONTAINERS and not widget.has(FOCUSABLE):
                        continue
                    where = f"{role} {name!r} in {window.name!r}"
                    self.assertNotIn(role, ("unknown", "invalid"), where)
                    self.assertTrue(name or role in ("scroll bar", "label", "list item"), where + str(widget.extents) + str([p for p in getattr(widget,"description","")]))
                    if role in WITH_VALUE:
                        self.assertIn(VALUE, known, where)
                        self.assertIsInstance(widget.value, float, where)
                    if role in WITH_ACTION and widget.has(ENABLED):
                        self.assertIn(ACTION, known, where)
                        self.assertTrue(widget.actions, where)
                    _x, _y, width, height = widget.extents
                    self.assertTrue(width > 0 and height > 0, where)
                except Failure:
                    continue  # gone meanwhile

    def choose(self, program, path):
        dialog = program.get("dialog")
        next(widget for widget in dialog.walk() if widget.role == "text").set_text(path)
        # Named by what it does: choose a folder, open a file.
        next(widget for widget in dialog.walk() if widget.name in ("Choose", "Open") and
             widget.role == "push button").press()
        self.wait(lambda: not program.find("dialog"), "the chooser to go")

    def from_menu(self, program, menu, item):
        program.get("menu item", f"^{menu}$").act("ShowMenu")
        program.get("menu item", item).press()

    def test_the_whole_job(self):
        folder, picture = self.folder("Invoices 2026"), os.path.join(self.place, "red.png")
        pictures().new("RGBA", (256, 256), (200, 0, 0, 255)).save(picture)
        program = self.start()
        self.assert_told(program)
        program.get("push button", "^Open").press()
        self.choose(program, folder)
        program.wait_open(folder)
        program.get("push button", "^Choose Picture").press()
        self.choose(program, picture)
        self.wait(lambda: program.find("label", "^red.png$"), "the picture")
        program.get("text", "^Label$").set_text("Tax\n2026")
        program.get("slider", "^Rotation$").set_value(12)
        self.assertEqual(program.get("spin box", "^Rotation$").value, 12)
        self.assert_told(program)
        self.wait(lambda: program.is_enabled("push button", "^Apply$"), "Apply")
        program.get("push button", "^Apply$").press()
        self.wait_for_sheet(program, "Important Dock Tip")
        backup = read(os.path.join(folder, BACKUP))
        self.assertNotEqual(self.assert_branded(folder), backup)
        self.assert_told(program)
        program.get("push button", "^OK$").press()
        self.wait(lambda: not program.find("push button", "^OK$"), "the tip to go")
        program.get("push button", "^Revert$").press()
        self.wait(lambda: not os.path.exists(os.path.join(folder, BACKUP)), "the former icon")
        self.assertEqual(self.assert_branded(folder), backup)

        self.from_menu(program, "Edit", "^Preferences")
        program.get("frame", "^Preferences$")
        self.assert_told(program)
        program.get("radio button", "^The colour used last$").act("Toggle")
        self.assertFalse(program.get("radio button", "^Always this colour$").has(CHECKED))
        program.get("color chooser", "^Default colour$").press()
        program.get("push button", "^Done$").press()
        self.wait(lambda: not program.find("push button", "^Done$"), "the sheet to go")
        program.get("push button", "^OK$").press()
        self.wait(lambda: not program.find("frame", "^Preferences$"), "the preferences to go")

        self.from_menu(program, "Help", "^About")
        about = program.get("frame", "^About")
        self.assert_told(program)
        next(widget for widget in about.walk() if widget.name == "Close").press()
        self.wait(lambda: not program.find("frame", "^About"), "it to go")
        self.from_menu(program, "File", "^Quit")
        self.assertEqual(program.wait_end(), 0)
        self.assertEqual(program.said(), "")


if __name__ == "__main__":
    unittest.main(verbosity=2)
