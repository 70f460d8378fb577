# SPDX-License-Identifier: GPL-3.0-or-later
"""The command that makes thumbnails of folders, called as tumblerd calls it."""
import os
import subprocess
import sys
import unittest

from support import LABEL, PATIENCE, PROGRAM, EndToEndTest

PR_SET_NAME = 15  # <linux/prctl.h>
# A process of another name that starts the program.
CALLER = ("import ctypes, subprocess, sys; ctypes.CDLL(None).prctl(%d, sys.argv[1].encode(), 0, 0, 0);"
          "sys.exit(subprocess.call(sys.argv[2:]))" % PR_SET_NAME)


class ThumbnailTest(EndToEndTest):
    def thumbnail(self, folder, out, size="128", caller="tumblerd"):
        return subprocess.run([sys.executable, "-c", CALLER, caller, PROGRAM, "thumbnail", folder, out, size],
                              capture_output=True, timeout=PATIENCE, env=self.environment(), check=False).returncode

    def test_tumbler_gets_the_icon_in_its_size_and_nobody_else_anything(self):
        folder, out = self.folder(), os.path.join(self.work, "out.png")
        self.assertEqual(self.thumbnail(folder, out), 1, "a plain folder has none")
        self.expect(0, "apply", *LABEL, folder)
        self.assertEqual(self.thumbnail(folder, out, caller="bwrap"), 1)
        for size in ("0", "-1", "99999999999", "1e3", "", "2000"):
            self.assertEqual(self.thumbnail(folder, out, size), 1, size)
        self.assertFalse(os.path.exists(out))
        with open(out, "w+b") as held:  # as tumblerd holds it
            for size in (256, 128):
                self.assertEqual(self.thumbnail(folder, out, str(size)), 0)
                held.seek(0)
                picture = held.read()
                self.assertEqual((picture[:8], picture[16:24]), (b"\x89PNG\r\n\x1a\n", size.to_bytes(4, "big") * 2))
                self.assertEqual(picture[-8:-4], b"IEND", "what was longer is cut")
        link = os.path.join(self.work, "link.png")
        os.symlink(out, link)
        self.assertEqual(self.thumbnail(folder, link), 1)
        self.expect(0, "reset", folder)
        self.assertEqual(self.thumbnail(folder, out), 1)


if __name__ == "__main__":
    unittest.main()
