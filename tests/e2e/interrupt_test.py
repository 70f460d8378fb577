# SPDX-License-Identifier: GPL-3.0-or-later
"""Killed at every step that changes the disk, or hindered there: whole old icon, whole new icon, or a status that says
what is wrong; and a reset leads back to what was there, bit for bit."""
import json
import os
import re
import shutil
import signal
import subprocess
import unittest

from support import FOREIGN, ICON, ICON_COMPANION, PROGRAM, EndToEndTest, folder_flags, plant_custom_icon, read, tree

STEPS = ("renameat", "renameat2", "linkat", "unlinkat", "fsetxattr", "fremovexattr", "mkdirat")


class InterruptTest(EndToEndTest):
    def setUp(self):
        super().setUp()
        if shutil.which("strace") is None:
            self.skipTest("there is no strace")
        if self.trace("--version", options=[]).returncode != 0:
            self.skipTest("nothing can be traced here")

    def trace(self, *arguments, options):
        sanitizers = os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0"  # leaks cannot be looked for while traced
        return subprocess.run(["strace", "-f", *options, PROGRAM, *arguments], capture_output=True, timeout=120,
                              env={**self.environment(), "ASAN_OPTIONS": sanitizers}, cwd=self.work, check=False)

    def shown(self, folder):
        """What the folder shows as its icon."""
        names = (os.path.join(folder, ICON), os.path.join(folder, ICON_COMPANION))
        return [read(name) if os.path.lexists(name) else None for name in names] + [folder_flags(folder)]

    def copy(self, folder, name):
        into = os.path.join(self.work, name)
        os.makedirs(into)
        subprocess.run(["cp", "-a", folder, into], check=True)
        return os.path.join(into, os.path.basename(folder))

    def check_every_step(self, start, original, *command):
        want = tree(original)
        old = self.shown(start)
        unhindered = self.copy(start, "unhindered " + command[0])
        done = self.trace(*command, unhindered, options=["-e", "trace=" + ",".join(STEPS)])
        self.assertEqual(done.returncode, 0, done.stderr)
        new = self.shown(unhindered)
        calls = re.findall(rb"^(?:\[pid +\d+\] )?(\w+)\(", done.stderr, re.MULTILINE)
        self.assertGreater(len(calls), 5)
        counts = {}
        for call in (name.decode() for name in calls):
            counts[call] = counts.get(call, 0) + 1
            for fault in ("signal=KILL", "error=EIO"):
                step = f"{command[0]} {call} {counts[call]} {fault}"
                with self.subTest(step=step):
                    folder = self.copy(start, step)
                    ended = self.trace(*command, folder, options=["-e", "trace=" + call, "-e",
                                                                  f"inject={call}:{fault}:when={counts[call]}"])
                    self.assertIn(ended.returncode, (0, 1, -signal.SIGKILL, 128 + signal.SIGKILL), ended.stderr)
                    self.check_outcome(folder, ended.returncode, old, new)
                    self.expect(0, "reset", folder)
                    self.assertEqual(tree(folder), want)
                    self.assertEqual(os.listdir(os.path.dirname(folder)), [os.path.basename(folder)])

    def check_outcome(self, folder, code, old, new):
        shown = self.shown(folder)
        if code == 0:
            # The flags may have found another place; what is seen is the same.
            self.assertEqual(shown[:2], new[:2])
        elif shown not in (old, new):
            status = json.loads(self.expect(0, "status", "--json", folder).out)
            self.assertTrue(status["results"][0]["faults"], "half an icon, and the status is silent")

    def test_a_first_apply(self):
        folder = self.folder()
        self.check_every_step(folder, folder, "apply", "--label", "new")

    def test_all_that_comes_after(self):
        folder = self.folder()
        plant_custom_icon(folder, FOREIGN)
        branded = self.copy(folder, "branded")
        self.expect(0, "apply", "--label", "old", branded)
        for command in (("apply", "--label", "new"), ("revert",), ("reset",)):
            self.check_every_step(branded, folder, *command)


if __name__ == "__main__":
    unittest.main(verbosity=2)
