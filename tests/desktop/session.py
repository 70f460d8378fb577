# SPDX-License-Identifier: GPL-3.0-or-later
"""A throw-away desktop: a virtual display, a bus, a window manager and a home of its own, and file managers in it.
Nothing of the user's own session is read, written or spoken to."""
import ctypes
import os
import shutil
import signal
import subprocess
import tempfile
import time

PR_SET_CHILD_SUBREAPER = 36  # <linux/prctl.h>

# How each one is started on a folder, and the class of its windows.
COMMANDS = {
    "nautilus": (["nautilus", "--new-window"], "nautilus"),
    "nemo": (["nemo", "--no-desktop"], "nemo"),
    "caja": (["caja", "--no-desktop"], "caja"),
    "thunar": (["thunar"], "thunar"),
    "thunar-thumbnails": (["thunar"], "thunar"),  # with the optional thumbnailer, see docs/thunar.md
    "pcmanfm-qt": (["pcmanfm-qt", "--new-window"], "pcmanfm-qt"),
    "dolphin": (["dolphin", "--new-window"], "dolphin"),
}
OPENBOX = """<openbox_config xmlns="http://openbox.org/3.4/rc"><applications>
<application class="*" type="normal"><decor>no</decor><maximized>yes</maximized></application>
</applications></openbox_config>
"""
GTK = ("nautilus", "nemo", "caja", "thunar", "thunar-thumbnails")
WIDTH, HEIGHT = 900, 640
ACCESSIBILITY = ("at-spi-bus-laun", "at-spi2-registr")
TOOLS = {"Xvfb": "xvfb", "dbus-daemon": "dbus-daemon", "openbox": "openbox", "xdotool": "xdotool",
         "import": "imagemagick", "gio": "libglib2.0-bin"}


class Trouble(Exception):
    """The desktop itself failed, so nothing can be said about what was to be shown."""


def missing(managers):
    """Debian packages of what is not installed."""
    wanted = {**TOOLS, **{COMMANDS[name][0][0]: COMMANDS[name][0][0] for name in managers}}
    packages = [package for program, package in wanted.items() if not shutil.which(program)]
    if not os.path.exists("/usr/libexec/gvfsd-metadata"):
        packages.append("gvfs-daemons")
    if "thunar" in wanted and not os.path.exists("/usr/share/dbus-1/services/org.xfce.Tumbler.Thumbnailer1.service"):
        packages.append("tumbler")
    if "pcmanfm-qt" in managers or "dolphin" in managers:
        if not os.path.isdir("/usr/share/icons/breeze"):
            packages.append("breeze-icon-theme")
    if not os.path.isdir("/usr/share/icons/Adwaita"):
        packages.append("adwaita-icon-theme")
    return packages


def descendants(pid):
    """Every process below one, the nearest first. Orphans come to us, as we are their reaper."""
    try:
        with open(f"/proc/{pid}/task/{pid}/children", encoding="ascii") as file:
            children = [int(word) for word in file.read().split()]
    except OSError:
        return []
    return children + [below for child in children for below in descendants(child)]


class Session:
    def __init__(self, size=(WIDTH, HEIGHT), rules=OPENBOX):
        """The size of the screen; what the window manager does with windows, as it reads it."""
        self._size, self._rules = size, rules
        if ctypes.CDLL(None, use_errno=True).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0) != 0:
            raise Trouble("the kernel does not let us look after orphans")
        self.place = tempfile.mkdtemp(prefix="quorvane-desktop-")
        self.home = os.path.join(self.place, "home")
        self._launched = []  # kept, as _reap() learns of their end
        self._outside = set(descendants(os.getpid()))
        self._settings()
        kept = {key: value for key, value in os.environ.items() if key in ("PATH", "LOCPATH")}
        self.environment = {
            **kept, "HOME": self.home, "LC_ALL": os.environ.get("QUORVANE_DESKTOP_LOCALE", "C.UTF-8"),
            "XDG_RUNTIME_DIR": os.path.join(self.place, "run"), "GDK_BACKEND": "x11", "QT_QPA_PLATFORM": "xcb",
            "NO_AT_BRIDGE": "1", "GTK_A11Y": "none", "LIBGL_ALWAYS_SOFTWARE": "1",
        }
        self.environment["LANG"] = self.environment["LC_ALL"]
        try:
            self._start()
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def _settings(self):
        """One icon theme for each toolkit, so that the plain folder is a picture and not a matter of luck; and every
        window over the whole screen without a frame, so that a second one has everything in the same place."""
        files = {"gtk-3.0/settings.ini": "[Settings]\ngtk-icon-theme-name=Adwaita\ngtk-enable-animations=0\n",
                 "gtk-4.0/settings.ini": "[Settings]\ngtk-icon-theme-name=Adwaita\ngtk-enable-animations=0\n",
                 "kdeglobals": "[Icons]\nTheme=breeze\n[KDE]\nAnimationDurationFactor=0\n",
                 "pcmanfm-qt/default/settings.conf": "[System]\nFallbackIconThemeName=breeze\n",
                 "openbox/rc.xml": self._rules}
        for name, text in files.items():
            path = os.path.join(self.home, ".config", name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "w", encoding="utf-8") as file:
                file.write(text)
        os.mkdir(os.path.join(self.place, "run"), 0o700)

    def _start(self):
        # The server picks a free display and says which, so sessions can run side by side.
        self.environment["DISPLAY"] = ":" + self._announced(
            # -r: on a busy machine a key that is let go late would come several times.
            "Xvfb", ["Xvfb", "-r", "-displayfd", "{fd}", "-screen", "0", "{}x{}x24".format(*self._size), "-nolisten",
                     "tcp"])
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._announced(
            "bus", ["dbus-daemon", "--session", "--nofork", "--print-address={fd}"])
        self._launch("openbox", ["openbox"], self.environment)
        time.sleep(0.5)

    def _launch(self, name, command, environment, **options):
        with open(os.path.join(self.place, name + ".log"), "ab") as log:
            launched = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                        cwd=self.home, start_new_session=True, **options)
        self._launched.append(launched)
        return launched

    def _announced(self, name, command):
        """Starts a server and returns the line that it writes to the file descriptor {fd}."""
        reading, writing = os.pipe()
        try:
            self._launch(name, [word.format(fd=writing) for word in command], self.environment, pass_fds=[writing])
        finally:
            os.close(writing)
        with os.fdopen(reading, encoding="ascii") as announced:
            line = announced.readline().strip()
        if not line:
            raise Trouble(f"{name} did not start")
        return line

    def add_thumbnailer(self, text):
        """Before the first window, or tumblerd does not know it."""
        folder = os.path.join(self.home, ".local/share/thumbnailers")
        os.makedirs(folder)
        with open(os.path.join(folder, "under-test.thumbnailer"), "w", encoding="utf-8") as file:
            file.write(text)

    def run(self, *command, check=True):
        """Runs a program to its end inside the session and returns what it printed."""
        done = subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, capture_output=True, timeout=60,
                              cwd=self.home, check=False)
        if check and done.returncode != 0:
            raise Trouble(f"{' '.join(command)}: {done.stderr.decode(errors='replace').strip()}")
        return done

    def open(self, manager, folder):
        """Opens a window of a file manager on a folder and waits until it is there, not yet drawn."""
        command, window_class = COMMANDS[manager]
        environment = dict(self.environment)
        # Each believes to be on its own desktop; GTK managers misjudge things when told it is KDE.
        if manager in GTK:
            environment["XDG_CURRENT_DESKTOP"] = "X-Generic"
        else:
            environment.update(XDG_CURRENT_DESKTOP="KDE", KDE_SESSION_VERSION="5", KDE_FULL_SESSION="true")
        self._launch(manager, [*command, folder], environment)
        end = time.monotonic() + 40
        while True:
            found = self.run("xdotool", "search", "--onlyvisible", "--class", window_class, check=False).stdout.split()
            if found:
                break
            if time.monotonic() > end:
                raise Trouble(f"{manager} showed no window")
            time.sleep(0.2)
        self.run("xdotool", "mousemove", str(self._size[0] - 1), str(self._size[1] - 1))

    def screen(self):
        """The screen as a binary PPM file's bytes."""
        return self.run("import", "-window", "root", "-depth", "8", "ppm:-").stdout

    def end_manager(self, manager):
        """Ends a file manager with all that it started or that was started for it, but not the servers."""
        kept = ("Xvfb", "dbus-daemon", "openbox", "gvfsd", "gvfsd-metadata", "dconf-service", *ACCESSIBILITY)
        self._end(lambda name: name not in kept)
        time.sleep(0.3)

    def _end(self, chosen):
        for round_signal in (signal.SIGTERM, signal.SIGTERM, signal.SIGKILL):
            pids = [pid for pid in descendants(os.getpid()) if pid not in self._outside and chosen(name_of(pid))]
            for pid in pids:
                try:
                    os.kill(pid, round_signal)
                except ProcessLookupError:
                    pass
            end = time.monotonic() + 2
            while time.monotonic() < end and any(_is_running(pid) for pid in pids):
                _reap()
                time.sleep(0.05)
            _reap()

    def close(self):
        self._end(lambda _: True)
        shutil.rmtree(self.place, ignore_errors=True)


def name_of(pid):
    """The program's name; the kernel cuts it at 15 bytes."""
    try:
        with open(f"/proc/{pid}/comm", encoding="utf-8", errors="replace") as file:
            return file.read().strip()
    except OSError:
        return ""


def _is_running(pid):
    try:
        with open(f"/proc/{pid}/stat", encoding="utf-8", errors="replace") as file:
            return file.read().rpartition(")")[2].split()[0] != "Z"
    except OSError:
        return False


def _reap():
    try:
        while os.waitpid(-1, os.WNOHANG)[0] != 0:
            pass
    except ChildProcessError:
        pass
