# SPDX-License-Identifier: GPL-3.0-or-later
"""What `cmake --install` puts where, and that the program runs from there, wherever there is moved to."""
import os
import subprocess
import unittest

import support
from support import APP_ID, BUILD, CMAKE, LABEL, EndToEndTest

SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)


class InstallTest(EndToEndTest):
    def install(self, *arguments, **environment):
        done = subprocess.run([CMAKE, "--install", BUILD, *arguments], capture_output=True, text=True, timeout=120,
                              env={**os.environ, **environment})
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)

    def expected(self):
        files = {"bin/quorvane", "share/man/man1/quorvane.1.gz", "share/bash-completion/completions/quorvane",
                 "share/zsh/site-functions/_quorvane", "share/fish/vendor_completions.d/quorvane.fish",
                 f"share/metainfo/{APP_ID}.metainfo.xml", f"share/icons/hicolor/scalable/apps/{APP_ID}.svg",
                 f"share/icons/hicolor/symbolic/apps/{APP_ID}-symbolic.svg"}
        files |= {f"share/icons/hicolor/{size}x{size}/apps/{APP_ID}.png" for size in SIZES}
        files |= {"share/doc/quorvane/" + text for text in ("LICENSE", "copyright", "changelog.gz", "what-it-writes.md", "updates.md",
                                                            "thunar.md", "examples/quorvane-folder.thumbnailer")}
        if os.path.exists(os.path.join(BUILD, "src/app/quorvane-window")):
            files |= {"bin/quorvane-window", f"share/applications/{APP_ID}.desktop",
                      "share/man/man1/quorvane-window.1.gz"}
        if os.path.exists(os.path.join(BUILD, "src/libexec/quorvane/quorvane-feed")):
            files.add("libexec/quorvane/quorvane-feed")
        library = os.path.join(BUILD, "share/quorvane/BaseIcons")
        files |= {"share/quorvane/BaseIcons/" + path for path in self.listed(library)}
        return files

    def listed(self, top):
        return {os.path.relpath(os.path.join(folder, name), top)
                for folder, _folders, names in os.walk(top) for name in names}

    def test_the_installed_program_works_and_can_be_moved(self):
        prefix, moved = os.path.join(self.place, "prefix"), os.path.join(self.place, "moved away")
        self.install("--prefix", prefix, "--strip")
        self.assertEqual(self.listed(prefix), self.expected())
        for path in self.listed(prefix):
            mode = os.stat(os.path.join(prefix, path)).st_mode & 0o7777
            self.assertEqual(mode, 0o755 if path.startswith(("bin/", "libexec/")) else 0o644, path)
        original = support.PROGRAM
        self.addCleanup(setattr, support, "PROGRAM", original)
        for place in (prefix, moved):
            if place is moved:
                os.rename(prefix, moved)
            support.PROGRAM = os.path.join(place, "bin/quorvane")
            folder = self.folder("Invoices " + os.path.basename(place))
            self.expect(0, "apply", *LABEL, folder)
            self.assert_branded(folder)
            self.expect(0, "render", *LABEL, folder + "/label.png")
        support.PROGRAM = original
        self.assertIn("Invoices moved away", self.expect(0, "status", folder).out)

    def test_a_staged_installation_writes_below_the_stage_only(self):
        stage = os.path.join(self.place, "stage")
        self.install("--prefix", "/opt/quorvane", DESTDIR=stage)
        self.assertEqual(self.listed(stage), {"opt/quorvane/" + path for path in self.expected()})
        self.assertFalse(os.path.exists("/opt/quorvane"))


if __name__ == "__main__":
    unittest.main()
