# SPDX-License-Identifier: GPL-3.0-or-later
"""The whole job with the keyboard alone: no mouse, and nothing asked of the widgets but to look at them."""
import io
import json
import os
import unittest

from accessible import FOCUSED
from driver import WindowTest
from support import BACKUP, elements, pictures, read


class KeyboardTest(WindowTest):
    def choose(self, program, path):
        """In a file chooser that is about to come up."""
        dialog = program.get("dialog")
        self.wait(lambda: any(widget.role == "text" and widget.has(FOCUSED) for widget in dialog.walk()),
                  "the chooser to have the keys")
        self.type(path)
        self.key("Return")
        self.wait(lambda: not program.find("dialog"), "the chooser to go")

    def setting(self, key):
        return json.loads(read(os.path.join(self.home, "config/quorvane/settings.json")))["values"].get(key)

    def test_a_folder_is_opened_labelled_applied_and_reverted_and_preferences_are_set(self):
        folder, picture = self.folder("Invoices 2026"), os.path.join(self.place, "red.png")
        pictures().new("RGBA", (256, 256), (200, 0, 0, 255)).save(picture)
        program = self.start()
        program.wait_title("Quorvane")
        # Away from the window: what the pointer is over is nobody's business here.
        self.xdotool("mousemove", 5, 5)
        self.key("ctrl+o")
        self.choose(program, folder)
        program.wait_open(folder)
        self.key("alt+u")
        self.choose(program, picture)
        self.wait(lambda: program.find("label", "^red.png$"), "the picture")
        self.key("alt+l")
        self.type("Tax")
        self.key("Return")
        self.type("2026")
        self.key("alt+r", "Right", "Right")
        self.wait(lambda: program.get("slider", "^Rotation$").value == 2, "the rotation")
        self.picture("keyboard-1-edited")
        self.key("ctrl+Return")
        self.wait(lambda: os.path.exists(os.path.join(folder, BACKUP)), "the icon")
        self.put_tip_away(program)
        backup, family = read(os.path.join(folder, BACKUP)), self.assert_branded(folder)
        corner = pictures().open(io.BytesIO(dict(elements(family))["ic09"])).convert("RGBA").getpixel((20, 20))
        self.assertEqual(corner[3], 255)
        self.assertGreater(corner[0], 150, "the chosen picture is the ground")
        self.key("ctrl+r")
        self.wait(lambda: not os.path.exists(os.path.join(folder, BACKUP)), "the former icon")
        self.assertEqual(self.assert_branded(folder), backup)

        self.key("ctrl+comma")
        program.get("frame", "^Preferences$")
        self.key("alt+l")  # the colour used last
        self.key("alt+h")  # the font
        program.get("push button", "^Done$")
        self.picture("keyboard-2-font")
        self.key("Escape")
        self.wait(lambda: not program.find("push button", "^Done$"), "the sheet to go")
        self.assertIsNone(self.setting("UseDefaultColor"))
        self.key("Return")
        self.wait(lambda: not program.find("frame", "^Preferences$"), "the preferences to go")
        self.wait(lambda: self.setting("UseDefaultColor") is False, "the setting")

        self.key("F10")
        self.wait(lambda: program.find("menu item", "Quit"), "the menu")
        self.picture("keyboard-3-menu")
        self.type("q")
        self.assertEqual(program.wait_end(), 0)
        self.assertEqual(program.said(), "")


if __name__ == "__main__":
    unittest.main(verbosity=2)
