# SPDX-License-Identifier: GPL-3.0-or-later
"""Kills and hinders a command at its points and checks every promise after each."""
import json
import os
import queue
import shutil
import subprocess
import tempfile
from concurrent.futures import ThreadPoolExecutor

from points import Tracer, points, thin
from promises import (Picture, check_code, check_failure, check_finished, check_others, check_sound, check_strays,
                      check_success, check_way_back, check_whole)

KINDS = ("kill", "fail", "stuck")
# A failure of these after the new icon stands means that it may not last: then "failed" is true.
MAKES_IT_LAST = ("fsync", "fdatasync", "close")


class Scenario:
    """A command on folders in a place. `prepare(root, run)` fills the place and returns (folders, pristine): the
    folders' paths below it and the picture from before the first apply. Of long ones only every `every`-th point is
    tried."""

    def __init__(self, name, command, prepare, every=1):
        self.name, self.command, self.prepare, self.every = name, command, prepare, every


class Bench:
    """A place in which one scenario is tried again and again, always under the same path."""

    def __init__(self, loop, scenario, root):
        self.loop, self.scenario = loop, scenario
        self.root, self.start = os.path.join(root, "place"), os.path.join(root, "start")
        os.makedirs(self.root)
        self.environment = {**loop.environment, "HOME": os.path.join(self.root, "home")}
        self.tracer = Tracer(loop.program, self.environment, loop.patience)
        self.folders, self.pristine = scenario.prepare(self.root, self.run)
        self.paths = [os.path.join(self.root, path) for path in self.folders]
        self.command = [*scenario.command, *self.paths]
        self.old = self.picture()
        subprocess.run(["cp", "-a", self.root, self.start], check=True)
        above = os.path.join(self.root, os.path.dirname(self.folders[0]))
        done, self.calls = self.tracer.calls(self.command, self.root, above)
        if done.returncode != 0:
            raise AssertionError(f"{scenario.name} fails unhindered: {done.stderr[-2000:]!r}")
        self.new = self.picture()

    def picture(self):
        return Picture(self.root, self.folders)

    def run(self, arguments, cwd):
        done = subprocess.run([self.loop.program, *arguments], capture_output=True, timeout=self.loop.patience,
                              env=self.environment, cwd=cwd, check=False)
        return done.returncode, done.stdout.decode("utf-8", "replace"), done.stderr.decode("utf-8", "replace")

    def check(self, point, number):
        """The promises broken after this point."""
        shutil.rmtree(self.root)
        subprocess.run(["cp", "-a", self.start, self.root], check=True)
        try:
            done = self.tracer.run(point.options(), self.command, self.root)
            return self._check_run(point, done) + self._check_rest(number)
        except subprocess.TimeoutExpired as error:
            return [f"hangs: {error}"]

    def _check_run(self, point, done):
        killed = point.kind == "kill"
        after = self.picture()
        broken = check_code(done.returncode, killed) + check_others(self.old, after)
        verdicts = {} if killed else self._verdicts(done.stdout)
        _code, out, _err = self.run(["status", "--json", *self.paths], self.root)
        status = {os.path.relpath(each["path"], self.root): each for each in json.loads(out)["results"]}
        for path in self.folders:
            told = status[path].get("faults") or status[path]["outcome"] == "failed"
            broken += check_whole(path, after, self.old, self.new, told)
            outcome, notes = verdicts.get(path, (None, ()))
            # A repair looks again at the end; it may not call well what it could not see.
            if outcome == "failed" and point.call not in MAKES_IT_LAST and self.command[0] != "repair":
                broken += check_failure(path, after, self.old, self.new)
            if outcome not in ("failed", None):
                broken += check_success(path, after, self.new, notes)
        all_done = {outcome != "failed" for outcome, _notes in verdicts.values()} == {True}
        if not killed and (done.returncode == 0) != all_done:
            broken.append(f"exit code {done.returncode}, but the verdicts are {verdicts}")
        return broken

    def _verdicts(self, out):
        """path -> (outcome, notes); nothing when standard output was hindered too, which alone is a failure."""
        try:
            return {os.path.relpath(each["path"], self.root): (each["outcome"], each.get("notes", ()))
                    for each in json.loads(out)["results"]}
        except (ValueError, KeyError):
            return {}

    def _check_rest(self, number):
        """What people do next, in turn: try again, have it mended, or go straight back."""
        broken = []
        if number % 3 == 0:
            code, out, err = self.run(self.command, self.root)
            again = self.picture()
            for path in self.folders:
                # What is made anew from a picture twice differs in the last bit of some pixels.
                wished = again if self.command[0] == "repair" and again.shown[path][1] else self.new
                broken += check_finished(path, code, again, wished, out + err) + check_sound(path, again)
        elif number % 3 == 1:
            code, out, err = self.run(["repair", *self.paths], self.root)
            broken += [] if code == 0 else [f"cannot be mended ({code}): {out + err}"]
            code, out, err = self.run(["verify", *self.paths], self.root)
            broken += [] if code == 0 else [f"was mended, but is not sound ({code}): {out + err}"]
            mended = self.picture()
            for path in self.folders:
                broken += check_sound(path, mended)
        after = self.picture()
        broken += check_others(self.old, after)
        code, out, err = self.run(["reset", *self.paths], self.root)
        back = self.picture()
        return broken + check_strays(back) + check_way_back(self.pristine, back, code, out + err)


class Loop:
    def __init__(self, program, place, environment, patience=60, jobs=2):
        self.place, self.jobs, self.patience = place, jobs, patience
        self.program, self.environment = program, environment

    def check(self, scenario, kinds=KINDS, stride=1, every_error=False, report=None):
        """The number of calls, {kind: [points, points that broke a promise]} and the broken promises in words."""
        root = tempfile.mkdtemp(prefix="loop-", dir=self.place)
        try:
            benches = queue.Queue()
            for number in range(self.jobs):
                bench = Bench(self, scenario, os.path.join(root, str(number)))
                benches.put(bench)

            def one(numbered):
                number, point = numbered
                own = benches.get()
                try:
                    return point, own.check(point, number)
                finally:
                    benches.put(own)

            counts, broken = {kind: [0, 0] for kind in kinds}, []
            with ThreadPoolExecutor(self.jobs) as pool:
                chosen = thin(points(bench.calls, kinds, every_error), stride * scenario.every)
                for point, faults in pool.map(one, enumerate(chosen)):
                    counts[point.kind][0] += 1
                    counts[point.kind][1] += bool(faults)
                    broken += [f"{scenario.name}: {point}: {fault}" for fault in faults]
                    for fault in faults if report else ():
                        report(f"{scenario.name}: {point}: {fault}")
            return len(bench.calls), counts, broken
        finally:
            shutil.rmtree(root, ignore_errors=True)
