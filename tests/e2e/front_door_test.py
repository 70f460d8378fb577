# SPDX-License-Identifier: GPL-3.0-or-later
"""./run as people call it: from anywhere, with any arguments, in any environment. All is built already."""
import os
import re
import subprocess
import time
import unittest

from support import ROOT, EndToEndTest, read

RUN = os.path.join(ROOT, "run")


class FrontDoorTest(EndToEndTest):
    def run_script(self, *arguments, env=None, cwd=None, script=RUN):
        return subprocess.run([script, *arguments], capture_output=True, timeout=60, stdin=subprocess.DEVNULL,
                              cwd=cwd or self.work, env=self.environment() if env is None else env)

    def test_arguments_arrive_whole_and_relative_to_the_callers_folder(self):
        for name in ("plain", "a b", "two\nlines", "*", "$HOME", "caf\udce9", "'\"", "-x", ""):
            with self.subTest(name=name):
                if name:
                    self.folder(name)
                done = self.run_script("apply", "--label", "a  b", "--", name)
                self.assertEqual(done.returncode, 0 if name else 1, done.stderr)
                if name:
                    self.assert_branded(os.path.join(self.work, name))

    def test_exit_codes_and_streams_are_the_programs_own(self):
        done = self.run_script("--nonsense")
        self.assertEqual((done.returncode, done.stdout), (2, b""))
        done = self.run_script("--version")
        self.assertRegex(done.stdout, rb"^[Qq]uorvane ")
        self.assertEqual(done.stderr, b"", "nothing is told when there is nothing to do")

    def test_it_can_be_called_through_a_link_and_with_an_empty_environment(self):
        link = os.path.join(self.work, "linked run")
        os.symlink(RUN, link)
        for env in ({}, {"HOME": "/nowhere", "CDPATH": self.place, "LC_ALL": "xx"}):
            with self.subTest(env=env):
                done = self.run_script("--version", env=env, script=link)
                self.assertEqual((done.returncode, done.stderr), (0, b""))

    def test_a_second_start_is_quick(self):
        self.run_script("--version")
        best = min(self.seconds("--version") for _try in range(3))
        self.assertLess(best, 1.0)

    def seconds(self, *arguments):
        start = time.monotonic()
        self.run_script(*arguments)
        return time.monotonic() - start

    def test_alone_and_without_a_display_it_brands_a_sample_and_tells_the_way_back(self):
        env = {**self.environment(), "TMPDIR": self.place}
        done = self.run_script(env=env)
        self.assertEqual(done.returncode, 0, done.stderr)
        told = done.stdout.decode()
        folder = re.search(r"^ +(/.*/Invoices 2026)$", told, re.M).group(1)
        self.assertTrue(folder.startswith(self.place))
        self.assert_branded(folder)
        picture = re.search(r"^ +(/.*\.png)$", told, re.M).group(1)
        self.assertEqual(read(picture)[:8], b"\x89PNG\r\n\x1a\n")
        back = re.search(r"take every trace out of it: +(.*)$", told, re.M).group(1)
        subprocess.run(["sh", "-c", back], check=True, timeout=60, env=env)
        self.assertEqual(os.listdir(folder), ["README.txt"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
