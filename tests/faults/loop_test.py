# SPDX-License-Identifier: GPL-3.0-or-later
"""Some of the points at which `run` kills and hinders the program: always the same ones, spread over all commands."""
import os
import shutil
import tempfile
import unittest

from loop import Loop
from places import fast_place
from points import Tracer
from scenarios import SCENARIOS
from support import PATIENCE, PROGRAM

STRIDE = int(os.environ.get("QUORVANE_STRIDE", "61"))


class LoopTest(unittest.TestCase):
    def test_no_promise_is_broken_at_some_points_of_each_command(self):
        place = tempfile.mkdtemp(prefix="quorvane-faults-", dir=fast_place())
        self.addCleanup(shutil.rmtree, place, ignore_errors=True)
        environment = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "HOME": place}
        if shutil.which("strace") is None or not Tracer(PROGRAM, environment, PATIENCE).works():
            self.skipTest("nothing can be traced here")
        loop = Loop(PROGRAM, place, environment, patience=6 * PATIENCE)
        for scenario in SCENARIOS:
            with self.subTest(scenario=scenario.name):
                calls, counts, broken = loop.check(scenario, stride=STRIDE)
                self.assertGreater(calls, 20)
                for kind, (points, _wrong) in counts.items():
                    self.assertGreater(points, 0, kind)
                self.assertEqual(broken, [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
