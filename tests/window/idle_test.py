# SPDX-License-Identifier: GPL-3.0-or-later
"""A window that nobody uses lets the processor sleep."""
import os
import time
import unittest

from driver import WindowTest

SECONDS = float(os.environ.get("QUORVANE_IDLE_SECONDS", "20"))
# Past the animations, notices and the blinking caret.
SETTLED = 14


def processor_seconds(pid):
    with open(f"/proc/{pid}/stat", encoding="utf-8") as file:
        fields = file.read().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


class IdleTest(WindowTest):
    def test_a_window_with_a_folder_uses_no_processor_time_while_nobody_does_anything(self):
        folder = self.folder()
        program = self.start(folder)
        program.wait_open(folder)
        self.xdotool("mousemove", 5, 5)
        self.type("Tax")
        time.sleep(SETTLED)
        before = processor_seconds(program.process.pid)
        time.sleep(SECONDS)
        used = processor_seconds(program.process.pid) - before
        # One tick may be due to what others ask of it.
        self.assertLessEqual(used, 0.011, f"{used:.2f} s of {SECONDS:.0f} s")
        self.type("es")
        self.wait(lambda: program.get("text", "^Label$").text == "Taxes", "what is typed")
        self.assertEqual(program.end(), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
