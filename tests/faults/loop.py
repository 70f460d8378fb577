# SPDX-License-Identifier: GPL-3.0-or-later
"""Kills and hinders a command at its points and checks every promise after each."""
import json
import os
import shutil
import subprocess
import tempfile
from concurrent.futures import ThreadPoolExecutor

from points import Tracer, points, thin
from promises import (Picture, check_code, check_failure, check_finished, check_others, check_strays, check_success,
                      check_way_back, check_whole)

KINDS = ("kill", "fail", "stuck")
# A failure of these after the new icon stands means that it may not last: then "failed" is true.
MAKES_IT_LAST = ("fsync", "fdatasync", "close")


class Run:
    """The program run without strace."""

    def __init__(self, program, environment, patience):
        self.program, self.environment, self.patience = program, environment, patience

    def __call__(self, arguments, cwd):
        done = subprocess.run([self.program, *arguments], capture_output=True, timeout=self.patience,
                              env=self.environment, cwd=cwd, check=False)
        return done.returncode, done.stdout.decode("utf-8", "replace"), done.stderr.decode("utf-8", "replace")


class Scenario:
    """A command on folders in a place. `prepare(root, run)` fills the place and returns (folders, pristine): the
    folders' paths below it and the picture from before the first apply."""

    def __init__(self, name, command, prepare):
        self.name, self.command, self.prepare = name, command, prepare


class Loop:
    def __init__(self, program, place, environment, patience=60, jobs=2):
        self.place, self.jobs, self.patience = place, jobs, patience
        self.program, self.environment = program, environment

    def check(self, scenario, kinds=KINDS, stride=1, every_error=False, report=None):
        """The number of calls, {kind: [points, points that broke a promise]} and the broken promises in words."""
        root = tempfile.mkdtemp(prefix="loop-", dir=self.place)
        try:
            return self._check(scenario, root, kinds, stride, every_error, report)
        finally:
            shutil.rmtree(root, ignore_errors=True)

    def _check(self, scenario, root, kinds, stride, every_error, report):
        start = os.path.join(root, "start")
        os.mkdir(start)
        folders, pristine = scenario.prepare(start, self._run(start))
        old = Picture(start, folders)
        unhindered = self._copy(start, os.path.join(root, "unhindered"))
        tracer = Tracer(self.program, self._environment(unhindered), self.patience)
        done, calls = tracer.calls([*scenario.command, *self._paths(unhindered, folders)], unhindered,
                                   os.path.join(unhindered, os.path.dirname(folders[0])))
        if done.returncode != 0:
            raise AssertionError(f"{scenario.name} fails unhindered: {done.stderr[-2000:]!r}")
        new = Picture(unhindered, folders)
        chosen = thin(points(calls, kinds, every_error), stride)
        counts, broken = {kind: [0, 0] for kind in kinds}, []

        def one(numbered):
            number, point = numbered
            own = os.path.join(root, str(number))
            try:
                faults = self._one(scenario, point, number, start, own, folders, pristine, old, new)
            except subprocess.TimeoutExpired as error:
                faults = [f"hangs: {error}"]
            finally:
                shutil.rmtree(own, ignore_errors=True)
            return point, faults

        with ThreadPoolExecutor(self.jobs) as pool:
            for point, faults in pool.map(one, enumerate(chosen)):
                counts[point.kind][0] += 1
                counts[point.kind][1] += bool(faults)
                broken += [f"{scenario.name}: {point}: {fault}" for fault in faults]
                for fault in faults if report else ():
                    report(f"{scenario.name}: {point}: {fault}")
        return len(calls), counts, broken

    def _one(self, scenario, point, number, start, root, folders, pristine, old, new):
        self._copy(start, root)
        run = self._run(root)
        paths = self._paths(root, folders)
        tracer = Tracer(self.program, self._environment(root), self.patience)
        before = Picture(root, folders)
        done = tracer.run(point.options(), [*scenario.command, *paths], root)
        killed = point.kind == "kill"
        after = Picture(root, folders)
        broken = check_code(done.returncode, killed) + check_others(before, after)
        outcomes = self._outcomes(done, root, folders)
        _code, out, _err = run(["status", "--json", *paths], root)
        status = {os.path.relpath(each["path"], root): each for each in json.loads(out)["results"]}
        for path in folders:
            state = status.get(path, {})
            broken += check_whole(path, after, old, new, state.get("faults") or state.get("outcome") == "failed")
            outcome = None if killed else outcomes.get(path)
            if outcome == "done":
                broken += check_success(path, after, new)
            if outcome == "failed" and point.call not in MAKES_IT_LAST:
                broken += check_failure(path, after, old, new)
        if not killed and (done.returncode == 0) != (set(outcomes.values()) == {"done"}):
            broken.append(f"exit code {done.returncode}, but the verdicts are {outcomes}")
        if number % 2 == 0:
            # At every other point the user tries again; at the others he goes straight back.
            code, out, err = run([*scenario.command, *paths], root)
            again = Picture(root, folders)
            for path in folders:
                broken += check_finished(path, code, again, new, out + err)
            broken += check_others(before, again)
        code, out, err = run(["reset", *paths], root)
        back = Picture(root, folders)
        return broken + check_strays(back) + check_way_back(pristine, back, code, out + err)

    @staticmethod
    def _outcomes(done, root, folders):
        """path -> "done" or "failed", as the program says it."""
        try:
            return {os.path.relpath(each["path"], root): "failed" if each["outcome"] == "failed" else "done"
                    for each in json.loads(done.stdout)["results"]}
        except (ValueError, KeyError):
            return {}  # standard output was hindered too; that alone is a failure

    def _copy(self, start, root):
        subprocess.run(["cp", "-a", start, root], check=True)
        return root

    @staticmethod
    def _paths(root, folders):
        return [os.path.join(root, path) for path in folders]

    def _environment(self, root):
        return {**self.environment, "HOME": os.path.join(root, "home")}

    def _run(self, root):
        return Run(self.program, self._environment(root), self.patience)
