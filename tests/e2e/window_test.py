# SPDX-License-Identifier: GPL-3.0-or-later
"""The window program as it is started and ended from outside. What happens in the window is tested in tests/app."""
import os
import signal
import subprocess
import time
import unittest

from support import BUILD, PATIENCE, PROGRAM, EndToEndTest

WINDOW = os.path.join(BUILD, "src/app/quorvane-window")


@unittest.skipUnless(os.path.exists(WINDOW), "there is no window in this build")
class WindowTest(EndToEndTest):
    def environment(self):
        runtime = os.path.join(self.place, "runtime")
        os.makedirs(runtime, mode=0o700, exist_ok=True)
        return {**super().environment(), "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": runtime}

    def settings(self):
        try:
            with open(os.path.join(self.home, "config/quorvane/settings.json"), encoding="utf-8") as file:
                return file.read()
        except FileNotFoundError:
            return ""

    def start(self, *arguments):
        process = subprocess.Popen([PROGRAM, *arguments], env=self.environment(), cwd=self.work,
                                   stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: process.poll() is None and (process.kill(), process.wait()))
        return process

    def wait_for(self, text, process):
        end = time.monotonic() + PATIENCE
        while text not in self.settings():
            self.assertIsNone(process.poll(), "the window has ended")
            self.assertLess(time.monotonic(), end, self.settings())
            time.sleep(0.05)

    def test_it_opens_a_folder_without_a_bus_and_ends_cleanly_on_a_signal(self):
        folder = self.folder()
        before = sorted(os.listdir(folder))
        for ending in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            process = self.start("./Invoices")
            self.wait_for("RecentFolders", process)
            process.send_signal(ending)
            self.assertEqual(process.wait(PATIENCE), 0)
            self.assertIn("MainWindowAutosave", self.settings())
            os.remove(os.path.join(self.home, "config/quorvane/settings.json"))
        self.assertEqual(sorted(os.listdir(folder)), before)

    def test_options_and_faults(self):
        for arguments, code, words in ((["--help"], 0, "Use: quorvane-window"), (["--version"], 0, "quorvane-window "),
                                       (["--nonsense"], 2, "unknown option")):
            done = subprocess.run([WINDOW, *arguments], env=self.environment(), capture_output=True, text=True,
                                  timeout=PATIENCE)
            self.assertEqual(done.returncode, code)
            self.assertIn(words, done.stdout + done.stderr)
        plain = super().environment()
        done = subprocess.run([PROGRAM], env=plain, capture_output=True, text=True, timeout=PATIENCE)
        self.assertEqual((done.returncode, done.stdout), (1, ""))
        self.assertIn("no display", done.stderr)
        # A single word that names nothing is no folder for the window.
        self.assertIn("did you mean 'apply'", self.expect(2, "aply").err)


if __name__ == "__main__":
    unittest.main()
