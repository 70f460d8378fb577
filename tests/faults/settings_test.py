# SPDX-License-Identifier: GPL-3.0-or-later
"""Kills and hinders a program at each point where it writes settings: they are the old or the new ones, nothing else
is lost, and the next run leaves nothing lying about."""
import json
import os
import shutil
import subprocess
import tempfile
import unittest

from places import fast_place
from points import Tracer, points, thin

PATIENCE = float(os.environ.get("QUORVANE_PATIENCE", "10"))
WRITER = os.environ.get("QUORVANE_SETTINGS_WRITER", "")
STRIDE = max(1, int(os.environ.get("QUORVANE_STRIDE", "61")) // 10)
DAMAGED = b'{"quorvane-settings": 1, "val'


def text(values):
    return json.dumps({"quorvane-settings": 1, "values": values}).encode()


class SettingsTest(unittest.TestCase):
    def setUp(self):
        self.place = tempfile.mkdtemp(prefix="quorvane-settings-", dir=fast_place())
        self.addCleanup(shutil.rmtree, self.place, ignore_errors=True)
        self.root = os.path.join(self.place, "root")
        self.folder = os.path.join(self.root, "config", "quorvane")
        self.file = os.path.join(self.folder, "settings.json")
        self.arguments = [self.file, "key", "5"]
        self.tracer = Tracer(WRITER, {"PATH": os.environ["PATH"], "LANG": "C.UTF-8"}, 6 * PATIENCE)
        if not WRITER or shutil.which("strace") is None or not self.tracer.works():
            self.skipTest("nothing can be traced here")

    def lay(self, content, elsewhere):
        shutil.rmtree(self.root, ignore_errors=True)
        os.makedirs(self.root)
        if content is not None:
            os.makedirs(self.folder)
            target = os.path.join(self.root, "dotfiles", "q.json") if elsewhere else self.file
            os.makedirs(os.path.dirname(target), exist_ok=True)
            with open(target, "wb") as file:
                file.write(content)
            if elsewhere:
                os.symlink(target, self.file)

    def read(self):
        """The settings, nothing when there is no file, or the bytes of what is no settings file."""
        try:
            with open(self.file, "rb") as file:
                content = file.read()
            return json.loads(content)["values"]
        except FileNotFoundError:
            return {}
        except ValueError:
            return content

    def around(self):
        return sorted(os.path.relpath(os.path.join(folder, name), self.root)
                      for folder, folders, names in os.walk(self.root) for name in folders + names)

    def each_point(self, content, elsewhere=False):
        self.lay(content, elsewhere)
        old = self.read()
        done, calls = self.tracer.calls(self.arguments, self.root, self.root)
        self.assertEqual(done.returncode, 0, done.stderr)
        new, around = self.read(), self.around()
        self.assertGreater(len(calls), 15)
        count = new["count"]
        half = {**new, "count": count - 1}
        if count == 1:
            del half["count"]
        for point in thin(points(calls, ("kill", "fail", "stuck")), STRIDE):
            with self.subTest(point=str(point)):
                self.lay(content, elsewhere)
                done = self.tracer.run(point.options(), self.arguments, self.root)
                after = self.read()
                if content == DAMAGED and after != DAMAGED:
                    with open(self.file + ".kept-1", "rb") as kept:
                        self.assertEqual(kept.read(), DAMAGED)
                self.assertIn(after, (old, {}, half, new) if content == DAMAGED else (old, half, new))
                self.assertIn(done.returncode, (-9, 137) if point.kind == "kill" else (0, 1), done.stderr)
                if done.returncode == 0:
                    self.assertEqual(after, new)
                again = subprocess.run([WRITER, *self.arguments], check=False, timeout=6 * PATIENCE)
                self.assertEqual(again.returncode, 0)
                before = after if isinstance(after, dict) else {}
                self.assertEqual(self.read(), {**new, "count": before.get("count", 0) + 1})
                self.assertEqual(self.around(), around)

    def test_the_first_settings(self):
        self.each_point(None)

    def test_other_settings(self):
        self.each_point(text({"key": 1, "count": 3, "theirs": "x"}))

    def test_settings_elsewhere(self):
        self.each_point(text({"count": 3}), elsewhere=True)

    def test_damaged_settings(self):
        self.each_point(DAMAGED)


if __name__ == "__main__":
    unittest.main(verbosity=2)
