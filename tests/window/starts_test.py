# SPDX-License-Identifier: GPL-3.0-or-later
"""Starting and ending: with every kind of name, once more, without a bus, with a signal in each state; and what the
program touches and speaks to meanwhile."""
import base64
import contextlib
import json
import os
import re
import shutil
import signal
import struct
import time
import unittest

from driver import SIZE, WindowTest, session
from support import BUILD, CUSTOM_ICON, ICON_COMPANION, folder_flags, read, tree, write

FEED = os.path.join(BUILD, "src/libexec/quorvane/quorvane-feed")
FRAME = "Window Frame MainWindowAutosave"
NO_BUS = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nowhere"}


class StartsTest(WindowTest):
    def windows(self):
        return self.xdotool("search", "--onlyvisible", "--class", "quorvane")

    def hand_over(self, *arguments):
        """A second start; it has to end by itself."""
        second = self.start(*arguments)
        self.assertEqual(second.wait_end(), 0, second.said())

    def test_a_second_start_hands_its_folder_to_the_first_and_brings_it_to_the_front(self):
        one, two = self.folder("one"), self.folder("two")
        self.open_manager(self.work)
        program = self.start(one)
        program.wait_open(one)
        window = self.windows()
        self.assertEqual(len(window), 1)
        self.click((200, 870))  # the file manager's
        self.wait(lambda: self.xdotool("getactivewindow") != window, "the file manager in front")
        self.hand_over(two)
        program.wait_open(two)
        self.wait(lambda: self.xdotool("getactivewindow") == window, "the window in front")
        self.xdotool("windowminimize", *window)
        self.wait(lambda: not self.windows(), "the window to go")
        self.hand_over()
        self.wait(lambda: self.windows() == window, "the one window")
        program.wait_title("– two")

        names = ["a space", "per%20cent", "hash # mark", "Übergrößenträger", "-dash", "sftp:name", "question?", "a&b",
                 "two\nlines", "日本語"]
        for name in names:
            folder = self.folder(name)
            address = "file://" + re.sub("[^A-Za-z0-9/._-]", lambda found: "".join(
                f"%{byte:02X}" for byte in found[0].encode()), folder)
            for argument in ([folder], [address], ["--", os.path.relpath(folder, self.work)]):
                with self.subTest(name=name, argument=argument):
                    self.hand_over(*argument)
                    shown = re.escape(name).replace("\\\n", ".*")
                    self.wait(lambda: program.find("frame", shown), "it in the title")
            self.hand_over(one)
            program.wait_open(one)

        for argument in ("sftp://host/folder", "smb://host/share", self.work + "/not there", one + "/letter.txt"):
            with self.subTest(argument=argument):
                self.hand_over(argument)
                self.wait(lambda: os.path.basename(argument) in (program.notice() or ""), "a word about it")
                program.wait_title("– one")
        self.assertEqual(program.end(), 0)

    def test_without_a_bus_it_works_and_ends(self):
        folder = self.folder("per%20cent #1")
        program = self.start(folder, env=NO_BUS)
        self._apply_blindly(folder)
        self.assert_branded(folder)
        other = self.start(folder, env=NO_BUS)
        self.wait(lambda: len(self.windows()) == 2, "a window of its own for each")
        self.assertEqual(other.end(), 0)
        self.assertEqual(program.end(), 0)

    def _apply_blindly(self, folder):
        """Where nobody can be asked what the window shows."""
        name = os.path.basename(folder)
        self.wait_front(name)
        begun = time.monotonic() - 10

        def is_written():
            nonlocal begun
            if time.monotonic() > begun + 10:  # once more if that was too early
                self.type("bus")
                self.key("ctrl+Return")
                begun = time.monotonic()
            return os.path.exists(os.path.join(folder, ICON_COMPANION)) and folder_flags(folder) & CUSTOM_ICON

        self.wait(is_written, "an icon", patience=60)

    def test_a_signal_ends_it_in_each_state(self):
        folder = self.folder()
        self.expect(0, "apply", "--label", "x", folder)
        states = {
            "nothing open": (False, lambda program: None),
            "a folder open": (True, lambda program: None),
            "being edited": (True, lambda program: self.type("half a la")),
            "a sheet": (False, lambda program: self.click(program.get("push button", "Choose Picture"))),
            "the chooser": (True, lambda program: self.key("ctrl+o")),
            "a menu": (True, lambda program: self.click(program.get("menu item", "File"))),
            "the effects": (True, lambda program: self.click(program.get("combo box"))),
            "the font panel": (True, lambda program: self.key("ctrl+t")),
            "the colour panel": (True, lambda program: self.key("ctrl+shift+c")),
            "the shortcuts": (True, lambda program: self.key("ctrl+question")),
            "the preferences": (True, lambda program: self.key("ctrl+comma")),
            "the default colour": (False, lambda program: self._sheet_of_preferences(program, "color chooser")),
            "the default font": (False, lambda program: self._sheet_of_preferences(program, "push button", "^Change")),
            "about": (True, lambda program: self._about(program)),
            "the licence": (False, lambda program: self._licence(program)),
            "a drag": (True, lambda program: self.xdotool("mousemove", *self.canvas(program), "mousedown", 1,
                                                         "mousemove_relative", "--", 30, 30)),
        }
        for number, (state, (with_folder, arrange)) in enumerate(states.items()):
            for kind in (signal.SIGTERM, signal.SIGINT) if number < 4 else (signal.SIGTERM,):
                with self.subTest(state=state, signal=kind), self.start(*([folder] if with_folder else [])) as program:
                    if with_folder:
                        program.wait_open(folder)
                    rows = len(list(program.application.walk()))
                    arrange(program)
                    if state not in ("nothing open", "a folder open", "being edited", "a drag"):
                        self.wait(lambda: len(list(program.application.walk())) != rows, state)
                    self.picture("signal-" + state.replace(" ", "-"))
                    self.assertEqual(program.end(kind), 0)
                    self.assertEqual(program.said(), "")
                    self.xdotool("mouseup", 1)

    def _sheet_of_preferences(self, program, role, name="^Default"):
        self.key("ctrl+comma")
        program.get("frame", "^Preferences$")
        self.click(program.get(role, name))
        program.get("push button", "^Done$")

    def _about(self, program):
        self.key("alt+h", "a")
        program.get("frame", "^About")

    def _licence(self, program):
        self._about(program)
        self.key("alt+l")
        program.get("text", "licence")

    @staticmethod
    def canvas(program):
        x, y, width, height = program.get("canvas").extents
        return x + width // 2, y + height // 2

    def titled(self, name):
        return self.xdotool("search", "--onlyvisible", "--name", name)

    def wait_front(self, name):
        self.wait(lambda: self.titled(name) and self.titled(name) == self.xdotool("getactivewindow"),
                  f"{name} in front", patience=60)

    def trace(self, *arguments, act):
        """The calls that lead out, of a run with the folder in which something is done, then quit by the keyboard."""
        if not shutil.which("strace"):
            self.skipTest("there is no strace")
        trace = os.path.join(self.place, "trace")
        program = self.start(*arguments, command=["strace", "-f", "-qq", "-s", "200", "-o", trace, "-e",
                                                  "trace=connect,sendto,bind,execve"],
                             env={"RES_OPTIONS": "timeout:1 attempts:1"})
        # What is traced outlives its tracer.
        self.addCleanup(lambda: [os.kill(pid, signal.SIGKILL) for pid in session.descendants(program.process.pid)])
        act()
        # Until a tip that is up is put away, the window stays.
        self.wait(lambda: self.key("Return", "ctrl+q") or program.process.poll() is not None, "the end", patience=60)
        self.assertEqual(program.wait_end(), 0)
        lines = read(trace).decode().splitlines()
        calls = [line for line in lines if "sa_family" in line]
        self.assertTrue(calls, "it speaks to the display at least")
        return ([line for line in calls if not re.search("sa_family=AF_(UNIX|NETLINK)", line)],
                [line for line in lines if "quorvane-feed" in line and "execve" in line])

    def test_it_touches_and_speaks_to_nothing_else(self):
        folder = self.folder()
        write(os.path.join(self.home, "mine"), b"mine")
        before = tree(self.home)

        def act():
            self.wait_front("Invoices")
            for keys, title in ((["ctrl+comma"], "^Preferences$"), (["alt+h", "a"], "^About Quorvane$")):
                self.key(*keys)
                self.wait_front(title)
                self.key("Escape")
                self.wait(lambda: not self.titled(title), title + " to go")
            self._apply_blindly(folder)

        self.assertEqual(self.trace(folder, act=act), ([], []))
        after = tree(self.home)
        new = {name.split("/")[1] for name in set(after) - set(before)}
        self.assertLessEqual(new, {"config", "data", "cache", "state"})
        self.assertEqual({name: after[name] for name in before if name != "."},
                         {name: before[name] for name in before if name != "."})

    def test_with_the_switch_on_it_asks_for_the_one_feed(self):
        if not os.path.exists(FEED):
            self.skipTest("this build has no updater")
        settings = os.path.join(self.home, "config/quorvane/settings.json")
        os.makedirs(os.path.dirname(settings))
        write(settings, b'{"quorvane-settings": 1, "values": {"HVCheckAtStartup": true}}')

        def is_asked():
            with contextlib.suppress(OSError, KeyError):
                return b"quorvane-feed" in read(os.path.join(self.place, "trace"))

        def act():
            self.wait_front("^Quorvane")
            self.wait(is_asked, "the feed to be asked for", patience=60)

        calls, feeds = self.trace(act=act)
        address = json.loads(read(settings))["values"]["SUFeedURL"]
        self.assertRegex(address, r"^https://[^/]+/.*appcast-\d+\.xml$")
        self.assertEqual(len(feeds), 1, feeds)
        self.assertIn(f'"{address}"', feeds[0])
        # The name leads nowhere: all that goes out asks for it.
        self.assertEqual([call for call in calls if not re.search(r"htons\((53|0)\)", call)], [])

    def test_a_window_that_cannot_be_seen_is_brought_back(self):
        with self.start() as program:
            program.wait_title("Quorvane")
            self.key("ctrl+q")
            self.assertEqual(program.wait_end(), 0)
        settings = os.path.join(self.home, "config/quorvane/settings.json")
        kept = json.loads(read(settings))
        frame = base64.b64decode(kept["values"][FRAME]["data"])
        # Frame, normal frame and inside, each as left, top, right, bottom, from bytes 8, 24 and 50 on.
        away = bytearray(frame)
        for place in (8, 24, 50):
            moved = [number + 5000 for number in struct.unpack(">4i", frame[place:place + 16])]
            away[place:place + 16] = struct.pack(">4i", *moved)
        for damage in ({"data": base64.b64encode(away).decode()}, {"data": base64.b64encode(frame[:20]).decode()},
                       {"data": "////" * 22}, {"data": 7}, "text", 7, [1, 2]):
            kept["values"][FRAME] = damage
            write(settings, json.dumps(kept).encode())
            with self.subTest(damage=damage), self.start() as program:
                program.wait_title("Quorvane")
                x, y, width, height = program.get("frame").extents
                self.assertTrue(0 <= x <= SIZE[0] - 200 and 0 <= y <= SIZE[1] - 100, (x, y, width, height))
                self.assertTrue(600 < width <= SIZE[0] and 400 < height <= SIZE[1], (x, y, width, height))
                self.assertEqual(program.end(), 0)


class SmallScreenTest(WindowTest):
    SIZE = (1024, 768)

    def test_the_first_window_lies_on_the_screen(self):
        program = self.start(self.folder("one"))
        program.wait_title("– one")
        x, y, width, height = program.get("frame").extents
        self.assertTrue(0 <= x and 0 <= y and x + width <= 1024 and y + height <= 768, (x, y, width, height))
        self.assertEqual(program.end(), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
