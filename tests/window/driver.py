# SPDX-License-Identifier: GPL-3.0-or-later
"""The window program on a throw-away desktop, driven with the mouse and the keyboard. Widgets are found as assistive
tools find them, by name and role; nothing in the program is there for the tests."""
import contextlib
import os
import re
import shutil
import signal
import subprocess
import sys
import time
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [os.path.join(os.path.dirname(HERE), name) for name in ("e2e", "desktop")]
sys.dont_write_bytecode = True

# pylint: disable=wrong-import-position
import accessible
import session
from support import BUILD, EndToEndTest

WINDOW = os.environ.get("QUORVANE_WINDOW", "")
PATIENCE = float(os.environ.get("QUORVANE_PATIENCE", "10"))
SIZE = (1680, 900)
MANAGER = "pcmanfm-qt"
TOOLS = {"Xvfb": "xvfb", "openbox": "openbox", "xdotool": "xdotool", "import": "imagemagick", "xclip": "xclip",
         "dbus-daemon": "dbus-daemon", MANAGER: MANAGER, "/usr/libexec/at-spi-bus-launcher": "at-spi2-core"}
RULES = """<openbox_config xmlns="http://openbox.org/3.4/rc"><focus><focusNew>yes</focusNew></focus><applications>
<application class="*" type="normal"><decor>no</decor></application>
<application class="pcmanfm-qt"><position force="yes"><x>0</x><y>0</y></position>
<size><width>470</width><height>880</height></size></application>
</applications></openbox_config>
"""
# Every label that always stands in the window.
QUIET = {"Notice", "Base Picture", "The folder’s own icon", "Original Icon", "Revert puts this icon back.", "Label",
         "Text", "Font", "Colour", "Size", "Line Spacing", "Effect", "Transform", "Shear", "Rotation", "Opacity",
         "No icons in this set", "Drop pictures, icon files or folders here.", "No built-in icons", "Nothing found",
         "They are not installed. Sets of your own can be made under My Icons.", "No icon and no set is called “”."}


def missing():
    return [package for program, package in TOOLS.items() if not shutil.which(program)]


class Program:
    """A running window."""

    def __init__(self, test, process, log):
        self.test, self.process, self.log, self._application = test, process, log, None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()

    @property
    def application(self):
        if not self._application:
            self._application = accessible.application(self.test.accessibility, self.process.pid, 2 * PATIENCE)
        return self._application

    def find(self, role, name=""):
        """The first widget of a role whose name matches the pattern, or None. Roles as AT-SPI spells them."""
        for widget in self.application.walk():
            with contextlib.suppress(accessible.Failure):
                if widget.role == role and re.search(name, widget.name):
                    return widget
        return None

    def get(self, role, name=""):
        return self.test.wait(lambda: self.find(role, name), f"a {role} named {name!r}")

    def is_enabled(self, role, name):
        return self.get(role, name).has(accessible.ENABLED)

    def move_aside(self):
        """So that nothing of the file manager is covered."""
        self.wait_title("")
        found = self.test.xdotool("search", "--onlyvisible", "--pid", self.process.pid, "--name", "Quorvane")
        self.test.xdotool("windowmove", found[0], 480, 60)
        self.test.wait(lambda: abs(self.get("frame").extents[0] - 480) < 9, "the window to move")

    def wait_title(self, part):
        self.test.wait(lambda: self.find("frame", re.escape(part)), f"{part!r} in the title")

    def notice(self):
        """What the words beside the path say, if anything."""
        names = [widget.name for widget in self.application.walk() if widget.role == "label"]
        return next((name for name in names if name and name not in QUIET and not name.startswith(("/", "~"))), None)

    def wait_open(self, folder):
        self.wait_title("– " + os.path.basename(folder))
        # While the folder is being looked at for long, the field takes nothing in.
        self.test.wait(lambda: self.find("filler", "^Preview$") and not self.find("progress bar", "Busy") and
                       self.get("text", "^Label$").has(accessible.FOCUSED), "the folder to be looked at")

    def end(self, with_signal=signal.SIGTERM):
        """Asks it to end; the exit code."""
        self.process.send_signal(with_signal)
        return self.wait_end()

    def wait_end(self):
        try:
            return self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            self.test.fail("the window does not end")

    def said(self):
        with open(self.log, encoding="utf-8", errors="replace") as file:
            return file.read()


class WindowTest(EndToEndTest):
    """One desktop for a class of tests; a home of its own for each."""

    SIZE = SIZE

    @classmethod
    def setUpClass(cls):
        if not os.access(WINDOW, os.X_OK):
            raise unittest.SkipTest("there is no window program in this build")
        if missing():
            raise unittest.SkipTest("these packages are missing: " + ", ".join(missing()))
        cls.desktop = session.Session(cls.SIZE, RULES)
        cls.addClassCleanup(cls.desktop.close)
        cls.desktop.environment.pop("NO_AT_BRIDGE")
        cls.desktop.environment.pop("GTK_A11Y")
        cls.desktop.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        bus = accessible.Bus(cls.desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        cls.addClassCleanup(bus.close)
        cls.accessibility = accessible.Bus(bus.call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")[0])
        cls.addClassCleanup(cls.accessibility.close)
        cls.pictures = os.path.join(BUILD or cls.desktop.place, "window")
        os.makedirs(cls.pictures, exist_ok=True)

    def environment(self):
        runtime = os.path.join(self.place, "run")
        os.makedirs(runtime, 0o700, exist_ok=True)
        return {**self.desktop.environment, **super().environment(), "XDG_RUNTIME_DIR": runtime}

    def start(self, *arguments, env=None, command=()):
        log = os.path.join(self.place, "window.log")
        with open(log, "ab") as file:
            process = subprocess.Popen([*command, WINDOW, *arguments], env={**self.environment(), **(env or {})},
                                       cwd=self.work, stdin=subprocess.DEVNULL, stdout=file, stderr=file)
        program = Program(self, process, log)
        self.addCleanup(program.__exit__)
        return program

    def wait(self, condition, what, patience=PATIENCE):
        end = time.monotonic() + patience
        while True:
            found = condition()
            if found:
                return found
            if time.monotonic() > end:
                self.picture("failed-" + self.id().rpartition(".")[2])
                self.fail(f"waited in vain for {what}")
            time.sleep(0.05)

    def xdotool(self, *words):
        return self.desktop.run("xdotool", *map(str, words), check=False).stdout.decode().split()

    def key(self, *keys):
        self.xdotool("key", "--clearmodifiers", "--delay", 20, *keys)

    def type(self, text):
        self.xdotool("type", "--clearmodifiers", "--delay", 15, text)

    def click(self, place, *modifiers):
        """On a widget's middle, or on a point."""
        x, y = middle(place)
        downs = [word for key in modifiers for word in ("keydown", key)]
        ups = [word for key in modifiers for word in ("keyup", key)]
        self.xdotool("mousemove", x, y, *downs, "click", 1, *ups)

    def drag(self, start, end, before_drop=lambda: None):
        """Slowly enough for every toolkit to notice that it is a drag, and where it is."""
        (x, y), (to_x, to_y) = middle(start), middle(end)
        self.xdotool("mousemove", x, y, "sleep", 0.1, "mousedown", 1, "sleep", 0.3,
                     "mousemove_relative", "--", 8, 4, "mousemove_relative", "--", 12, 6,
                     "mousemove", to_x - 20, to_y - 20, "sleep", 0.3, "mousemove", to_x, to_y,
                     "mousemove_relative", "--", 2, 2, "sleep", 0.5)
        before_drop()
        self.xdotool("mouseup", 1)

    def paste(self, data):
        """Puts bytes on the clipboard and presses the keys for it."""
        subprocess.run(["xclip", "-selection", "clipboard"], input=data, env=self.environment(), check=True,
                       timeout=PATIENCE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.key("ctrl+v")

    def picture(self, name):
        self.desktop.run("import", "-window", "root", os.path.join(self.pictures, name + ".png"))

    def open_manager(self, folder):
        """A file manager beside the window; what gives its items' places."""
        self.desktop.open(MANAGER, folder)
        self.addCleanup(self.desktop.end_manager, MANAGER)
        pids = [pid for pid in session.descendants(os.getpid()) if session.name_of(pid) == MANAGER]
        shown = accessible.application(self.accessibility, pids[0])
        return lambda name: self.wait(lambda: next((w for w in shown.walk() if w.name == name), None), name).extents

    def put_tip_away(self, program):
        """What the first icon of all leads to."""
        self.wait_for_sheet(program, "Important Dock Tip")
        self.key("Return")
        self.wait(lambda: not program.find("push button", "^OK$"), "the tip to go")

    def wait_for_sheet(self, program, title):
        self.wait(lambda: any(title in widget.name for widget in program.application.walk()), f"the sheet {title!r}")


def middle(place):
    if isinstance(place, accessible.Widget):
        place = place.extents
    return place if len(place) == 2 else (place[0] + place[2] // 2, place[1] + place[3] // 2)
