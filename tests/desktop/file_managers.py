#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Shows that six file managers show a brand: brands, rebrands, renames, repairs and resets a folder while their windows
are open on the folder above, looks at the screen after each step, and compares with expected.py.

It needs, beside what the build needs: xvfb dbus-daemon openbox xdotool imagemagick libglib2.0-bin gvfs-daemons
adwaita-icon-theme breeze-icon-theme, and the file managers: nautilus nemo caja thunar (with tumbler) pcmanfm-qt dolphin.
It says what is missing. It ends with 0 only when all is as expected; its pictures are in build/desktop."""
import argparse
import os
import shutil
import signal
import subprocess
import sys
import time

sys.dont_write_bytecode = True

import pictures
from expected import EXPECTED, REASONS
from session import COMMANDS, Session, Trouble, missing

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
STEPS = ("before", "apply", "again", "reset", "anew", "renamed", "repair", "end")
FIRST, SECOND, WRONG = (208, 0, 208), (0, 168, 80), (240, 120, 0)
PATIENCE = 8.0  # for a picture to become what it is to be, on a busy machine
SETTLED = 1.5   # nothing is judged before, or "still plain" would be said of what comes a moment later


class Case:
    """One file manager and one way of renaming, in a session of its own."""

    def __init__(self, session, manager, way, options):
        self.session, self.manager, self.way, self.options = session, manager, way, options
        self.parent = os.path.join(session.place, "work")
        self.folder = os.path.join(self.parent, "Invoices")
        for name, colour in (("first", FIRST), ("second", SECOND), ("wrong", WRONG)):
            pictures.solid(self._base(name), 512, colour)
        os.mkdir(self.parent)
        if manager == "thunar-thumbnails":
            with open(os.path.join(ROOT, "resources/thumbnailer/quorvane-folder.thumbnailer"), encoding="utf-8") as file:
                session.add_thumbnailer(file.read().replace("=quorvane", "=" + options.program))
        self.region = self.plain = self.brand = None
        self.verdicts, self.figures = {}, {}

    def _base(self, name):
        return os.path.join(self.session.place, name + ".png")

    def _picture(self, quiet=0.25, limit=4.0):
        """The screen, once it has not changed for `quiet` seconds, or after `limit`."""
        end, last, since = time.monotonic() + limit, None, time.monotonic()
        while True:
            data, now = self.session.screen(), time.monotonic()
            if data != last:
                last, since = data, now
            if now - since >= quiet or now > end:
                return pictures.Picture.from_ppm(data)
            time.sleep(0.25)

    def _place_of_new(self, name, before):
        """Makes a folder and tells where it appears (None: nowhere), and the picture with it."""
        os.mkdir(os.path.join(self.parent, name))
        end = time.monotonic() + 10
        while True:
            picture = self._picture(quiet=2, limit=10)
            place = pictures.appeared(before, picture)
            if place or time.monotonic() > end:
                return place, picture

    def _find(self):
        """Learns the folder's place by watching it appear beside a neighbour, which comes first in every order: so it
        never changes its place, and a window that is drawn late is not taken for a folder."""
        self.session.open(self.manager, self.parent)
        _, without = self._place_of_new("Archive", self._picture(quiet=2, limit=20))
        self.region, self.plain = self._place_of_new("Invoices", without)
        if not self.region or not all(
                24 <= self.region[high] - self.region[high - 2] <= 200 for high in (2, 3)):
            self.plain.save(self._file("trouble"), self.region)
            raise Trouble(f"{self.manager} shows no new folder ({self.region})")
        if not pictures.is_blank(without, self.region):
            self.plain.save(self._file("trouble"), self.region)
            raise Trouble(f"{self.manager} went on drawing something else")
        with open(os.path.join(self.folder, "letter.txt"), "w", encoding="utf-8") as file:
            file.write("Dear reader\n")

    def _judge(self, picture):
        """shown, plain or broken, and the share of the brand's colour and of what differs from before."""
        colour = pictures.share_of_colour(picture, self.region, self.brand) if self.brand else 0.0
        changed = pictures.share_of_change(self.plain, picture, self.region)
        # A brand fills the icon but for its label; a theme may draw the plain folder a shade differently.
        verdict = "plain" if changed <= 0.01 else "shown" if colour >= 0.4 else "broken"
        return verdict, colour, changed

    def _look(self, step):
        wanted = EXPECTED[self.manager, self.way][step]
        begin = time.monotonic()
        time.sleep(SETTLED)
        while True:
            picture = self._picture()
            verdict, colour, changed = self._judge(picture)
            if verdict == wanted or time.monotonic() - begin > PATIENCE:
                break
        picture.save(self._file(f"{STEPS.index(step)}-{step}"), self.region)
        self.verdicts[step] = verdict
        self.figures[step] = f"brand {colour:.0%} changed {changed:.0%} {time.monotonic() - begin:.1f}s"

    def _file(self, name):
        return os.path.join(self.options.pictures, f"{self.manager}-{self.way}-{name}.png")

    def _quorvane(self, command, *arguments):
        program = self.options.replaced if command == "apply" and self.options.replaced else self.options.program
        done = self.session.run(program, command, *arguments, self.folder, check=False)
        if done.returncode != 0 or self.options.verbose:
            print(f"  {command}: exit code {done.returncode} {done.stdout.decode()}{done.stderr.decode()}", flush=True)

    def _apply(self, name, colour):
        self.brand = colour
        self._quorvane("apply", "--base", self._base("wrong" if self.options.wrong else name), "--label", "Brand")

    def _rename(self):
        name = "Invoicer"
        if self.way == "gio":
            self.session.run("gio", "rename", self.folder, name)
        else:
            self.session.run("mv", self.folder, os.path.join(self.parent, name))
        self.folder = os.path.join(self.parent, name)

    def run(self):
        self._find()
        self._look("before")
        self._apply("first", FIRST)
        self._look("apply")
        self._apply("second", SECOND)
        self._look("again")
        self._quorvane("reset")
        self._look("reset")
        self._apply("first", FIRST)
        self._look("anew")
        self._rename()
        self.session.end_manager(self.manager)
        self.session.open(self.manager, self.parent)
        time.sleep(2)
        self._look("renamed")
        self._quorvane("repair")
        self._look("repair")
        self._quorvane("reset")
        self._look("end")


def run_case(manager, way, options):
    """Verdicts of one case, or the trouble that kept it from being made. A desktop that fails gets a second chance."""
    for attempt in (1, 2):
        try:
            with Session() as session:
                case = Case(session, manager, way, options)
                case.run()
                return case
        except (Trouble, subprocess.TimeoutExpired) as trouble:
            if attempt == 2:
                return trouble


def run_all(options):
    """Runs what was asked for, prints the table, returns the number of cells that are not as expected."""
    faults, notes = 0, []
    print(f"{'':17}" + "".join(f"{step:10}" for step in STEPS), flush=True)
    for manager in options.manager:
        for way in options.way:
            case = run_case(manager, way, options)
            if not isinstance(case, Case):
                faults += 1
                print(f"{manager:11} {way:5}no verdict: {case}", flush=True)
                continue
            cells = []
            for step in STEPS:
                wanted, got = EXPECTED[manager, way][step], case.verdicts[step]
                cells.append(got if got == wanted else got.upper() + "!")
                if got != wanted:
                    faults += 1
                    notes.append(f"{manager} {way} {step}: {got}, expected {wanted} ({case.figures[step]})")
            print(f"{manager:11} {way:5}" + "".join(f"{cell:10}" for cell in cells).rstrip(), flush=True)
            if options.verbose:
                print("\n".join(f"  {step}: {figures}" for step, figures in case.figures.items()), flush=True)
    for (manager, way, step), reason in REASONS.items():
        if manager in options.manager and way in options.way:
            print(f"{manager} {way} {step}: {EXPECTED[manager, way][step]}, for it {reason}")
    print("\n".join(notes + ([f"{faults} not as expected"] if faults else ["all as expected"])))
    return faults


def run_negative(options):
    """The check itself: it has to fail where nothing is applied, and where a wrong picture is."""
    blind = []
    for words, changes in (("without an apply", {"replaced": shutil.which("true"), "wrong": False}),
                           ("with a wrong picture", {"replaced": None, "wrong": True})):
        print(f"{words}:")
        if run_all(argparse.Namespace(**{**vars(options), **changes})) == 0:
            blind.append(words)
    print("the check misses faults: " + ", ".join(blind) if blind else "the check sees both faults")
    return len(blind)


def main():
    reader = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    reader.add_argument("--manager", action="append", choices=list(COMMANDS), help="only this one; may be repeated")
    reader.add_argument("--way", action="append", choices=("gio", "mv"), help="only this way of renaming")
    reader.add_argument("--program", default=os.path.join(ROOT, "build/release/src/cli/quorvane"))
    reader.add_argument("--pictures", default=os.path.join(ROOT, "build/desktop"))
    reader.add_argument("--negative", action="store_true", help="show that the check fails when it has to")
    reader.add_argument("--verbose", action="store_true")
    options = reader.parse_args()
    options.manager, options.way = options.manager or list(COMMANDS), options.way or ["gio", "mv"]
    options.program = os.path.abspath(options.program)
    options.replaced, options.wrong = None, False
    if lacking := missing(options.manager):
        sys.exit("missing; apt-get install " + " ".join(lacking))
    if not os.access(options.program, os.X_OK):
        sys.exit(f"missing: {options.program}, build it first or name it with --program")
    if options.negative:
        options.pictures = os.path.join(options.pictures, "negative")
    os.makedirs(options.pictures, exist_ok=True)
    for each in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(each, lambda number, _: sys.exit(128 + number))
    sys.exit(1 if (run_negative if options.negative else run_all)(options) else 0)


if __name__ == "__main__":
    main()
