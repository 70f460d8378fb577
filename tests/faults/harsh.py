# SPDX-License-Identifier: GPL-3.0-or-later
"""What the tests of harsh places share: a folder in a place, commands run on it under hard conditions with every
promise checked after each, and the way back once the conditions are good again."""
import ctypes
import json
import os
import subprocess
import tempfile

import promises
from places import fast_place
from promises import Picture
from scenarios import NEW, OLD, plain
from support import PATIENCE, PROGRAM, EndToEndTest, write

APPLY, APPLY_OLD = ("apply", *NEW), ("apply", *OLD)
REVERT, RESET = ("revert", "--json"), ("reset", "--json")
INSIDE = os.path.join("above", "Invoices")

_libc = ctypes.CDLL(None, use_errno=True)
_NEW_MOUNTS = 0x00020000
READ_ONLY, REMOUNT, BIND, WITH_ALL_BELOW, PRIVATE = 1, 32, 4096, 16384, 1 << 18


def mount(source, target, kind="", flags=0, options=""):
    if _libc.mount(os.fsencode(source), os.fsencode(target), kind.encode(), flags, options.encode()) != 0:
        code = ctypes.get_errno()
        raise OSError(code, os.strerror(code), target)


def unmount(target):
    _libc.umount2(os.fsencode(target), 2)  # even while it is in use


class Work:
    """One folder in a place `root`, with the user's files and neighbours."""

    def __init__(self, test, root, kind=plain, commands=()):
        self.test, self.root, self.path = test, root, os.path.join(root, INSIDE)
        os.makedirs(os.path.join(root, "home"), exist_ok=True)
        os.chmod(root, 0o755)
        kind(self.path)
        write(os.path.join(root, "above", "neighbour"), b"not ours", seconds=1_200_000_000)
        self.pristine = self.picture()
        for command in commands:
            code, out, err = self.run(command)
            test.assertEqual(code, 0, (command, out, err))
        self.old = self.picture()

    def picture(self):
        return Picture(self.root, [INSIDE])

    def run(self, command, before=None, **options):
        """Exit code, output, complaints. `before` is called in the new process."""
        arguments = command if self.path in command else [*command, self.path]
        done = subprocess.run([PROGRAM, *arguments], capture_output=True, timeout=6 * PATIENCE, cwd="/",
                              env={**self.test.environment(), "HOME": os.path.join(self.root, "home")},
                              preexec_fn=before, check=False, **options)
        return done.returncode, done.stdout.decode("utf-8", "replace"), done.stderr.decode("utf-8", "replace")

    def wished(self, command):
        """The picture that the command makes in an ordinary place."""
        with tempfile.TemporaryDirectory(dir=self.test.place) as place:
            copy = os.path.join(place, "copy")
            subprocess.run(["cp", "-a", self.root, copy], check=True)
            twin = object.__new__(Work)
            twin.test, twin.root, twin.path = self.test, copy, os.path.join(copy, INSIDE)
            code, out, err = twin.run(command)
            self.test.assertEqual(code, 0, (command, out, err))
            return twin.picture()

    def attempt(self, command, wished, *, before=None, **options):
        """Runs it under hard conditions and checks all that must hold even then; its exit code and complaints."""
        old = self.picture()
        code, out, err = self.run(command, before, **options)
        now = self.picture()
        broken = promises.check_code(code, killed=False) + promises.check_others(old, now)
        _code, status, _err = self.run(("status", "--json"))
        broken += promises.check_whole(INSIDE, now, old, wished, json.loads(status)["results"][0].get("faults"))
        if code == 0:
            broken += promises.check_success(INSIDE, now, wished, json.loads(out)["results"][0].get("notes", ()))
        else:
            broken += promises.check_failure(INSIDE, now, old, wished)
            self.test.assertGreater(len(err.strip()), 10, "no reason given")
        self.test.assertEqual(broken, [], (command, code, out, err))
        return code, err

    def way_back(self):
        """Resets in good conditions; what was there before the first apply is there again."""
        code, out, err = self.run(RESET)
        now = self.picture()
        self.test.assertEqual(promises.check_strays(now) + promises.check_way_back(self.pristine, now, code, out + err),
                              [])


class HarshTest(EndToEndTest):
    """Mounts made by a test are for its process alone."""

    fast = True
    _mounts_are_ours = False

    @classmethod
    def setUpClass(cls):
        tempfile.tempdir = fast_place() if cls.fast else None

    def lay(self, name="place", kind=plain, commands=(), place=None):
        return Work(self, os.path.join(place or self.place, name), kind, commands)

    def mounted(self, kind, options="", flags=0, source="none"):
        """An empty file system, or what is bound there; skips the test where that is not allowed."""
        place = tempfile.mkdtemp(dir=self.place)
        try:
            if not HarshTest._mounts_are_ours:
                if _libc.unshare(_NEW_MOUNTS) != 0:
                    raise OSError(ctypes.get_errno(), "cannot leave the other mounts")
                mount("none", "/", flags=WITH_ALL_BELOW | PRIVATE)
                HarshTest._mounts_are_ours = True
            mount(source, place, kind, flags, options)
        except OSError as error:
            self.skipTest(f"may not mount: {error}")
        self.addCleanup(unmount, place)
        return place