# SPDX-License-Identifier: GPL-3.0-or-later
"""How the command behaves toward people and scripts: exit codes, streams, machine output, dry runs."""
import json
import os
import signal
import subprocess
import unittest

from support import (FOREIGN, LABEL, PROGRAM, EndToEndTest, can_store_finder_info, plant_custom_icon, read, tree,
                     write)

COMMANDS = (("apply",), ("revert",), ("reset",), ("status",), ("render",), ("icns",), ("icns", "make"),
            ("icns", "list"), ("icns", "extract"))


class CommandTest(EndToEndTest):
    def test_help_stands_on_every_level(self):
        for command in ((),) + COMMANDS:
            for option in ("--help", "-h"):
                with self.subTest(command=command, option=option):
                    outcome = self.expect(0, *command, option)
                    self.assertEqual(outcome.err, "")
                    head = outcome.out.splitlines()[:12]
                    self.assertIn("quorvane " + " ".join(command), "\n".join(head), outcome)
                    self.assertGreaterEqual(sum("quorvane" in line for line in head), 3, "use and two examples first")
        self.assertRegex(self.expect(0, "--version").out, r"^[Qq]uorvane \d+\.\d+")

    def test_wrong_use_is_told_briefly_and_ends_with_2(self):
        rows = ((("--nonsense",), "--nonsense"), (("apply", "--lable", "x", self.work), "--label"),
                (("apply", "--colour", "red", self.work), "--color"), (("aply", self.work), "apply"),
                (("apply",), ""), (("revert",), ""), (("status",), ""),
                (("apply", "--color", "reddish", self.work), "reddish"),
                (("apply", "--opacity", "lots", self.work), "lots"), (("apply", "--size", "nan", self.work), "nan"),
                (("apply", "--label", "x", "--label-from-name", self.work), "--label-from-name"),
                (("apply", "--effect", "sparkling", self.work), "sparkling"),
                (("apply", "--center", "1", self.work), "1"))
        before = tree(self.work)
        for arguments, told in rows:
            with self.subTest(arguments=arguments):
                outcome = self.expect(2, *arguments)
                self.assertEqual(outcome.out, "")
                self.assert_says(outcome, told)
                self.assertLess(len(outcome.err.splitlines()), 12, "a short text")
                self.assertEqual(tree(self.work), before)

    def test_exit_codes_tell_what_happened(self):
        folder, plain, missing = self.folder("branded"), self.folder("plain"), os.path.join(self.work, "missing")
        self.expect(0, "apply", *LABEL, folder)
        for arguments, code in ((("status", folder), 0), (("status", plain), 3), (("status", missing), 1),
                                (("revert", plain), 0), (("reset", missing), 1), (("icns", "list", missing), 1),
                                (("render", "--label", "x", missing + "/x.png"), 1), (("apply", *LABEL, missing), 1),
                                (("apply", *LABEL, plain, missing), 1)):
            with self.subTest(arguments=arguments):
                self.expect(code, *arguments)

    def test_machine_output_is_one_valid_object_in_failing_runs_too(self):
        folder, missing = self.folder(), os.path.join(self.work, "missing")
        rows = (("apply", *LABEL, folder), ("status", folder), ("revert", folder), ("reset", folder),
                ("apply", *LABEL, missing), ("status", missing), ("revert", missing), ("reset", missing))
        for arguments in rows:
            with self.subTest(arguments=arguments):
                outcome = self.run_program(arguments[0], "--json", *arguments[1:])
                value = json.loads(outcome.out)
                self.assertEqual((value["schema"], value["command"]), (1, arguments[0]))
                for line in self.run_program(arguments[0], "--json-lines", *arguments[1:]).out.splitlines():
                    self.assertEqual(json.loads(line)["schema"], 1)
                self.assertEqual(outcome.code, 1 if missing in arguments else 0, outcome)
                if missing in arguments:
                    self.assertIn("missing", outcome.out)

    def test_a_dry_run_changes_nothing_and_foretells_the_verdict(self):
        plain, branded, file = self.folder("plain"), self.folder("branded"), os.path.join(self.work, "file")
        self.expect(0, "apply", *LABEL, branded)
        write(file, b"")
        blocked = self.folder("blocked")
        os.mkdir(os.path.join(blocked, "Icon\r"))
        foreign = self.folder("foreign")
        if can_store_finder_info(foreign):
            plant_custom_icon(foreign, FOREIGN)
        for path in (plain, branded, file, blocked, foreign, os.path.join(self.work, "missing")):
            for command in (("apply", *LABEL), ("apply", "--label", "other"), ("revert",), ("reset",)):
                with self.subTest(path=os.path.basename(path), command=command):
                    before, home = tree(self.work), tree(self.home)
                    told = self.run_program(*command, "--dry-run", path)
                    self.assertEqual((tree(self.work), tree(self.home)), (before, home))
                    copy = os.path.join(self.place, "copy")
                    subprocess.run(["cp", "-a", self.work, copy], check=True)
                    done = self.run_program(*command, path.replace(self.work, copy, 1))
                    subprocess.run(["rm", "-r", copy], check=True)
                    self.assertEqual(told.code, done.code, (told, done))

    def test_quiet_says_nothing_and_output_in_files_is_plain(self):
        folder = self.folder()
        outcome = self.expect(0, "apply", "--quiet", *LABEL, folder)
        self.assertEqual((outcome.out, outcome.err), ("", ""))
        loud = self.expect(0, "apply", "--label", "x", folder)
        for text in (loud.out, loud.err):
            self.assertNotIn("\x1b", text)
            self.assertNotIn("\r", text)

    def test_a_closed_pipe_ends_quietly(self):
        for number in range(40):
            self.folder(f"f{number:02}")
        folders = sorted(os.listdir(self.work))
        for command in (["--help"], ["status", "--json", *folders], ["status", *folders]):
            with self.subTest(command=command[0]):
                end, start = os.pipe()
                os.close(end)
                done = subprocess.run([PROGRAM, *command], stdout=start, stderr=subprocess.PIPE, timeout=20,
                                      cwd=self.work, env=self.environment())
                os.close(start)
                self.assertEqual(done.stderr, b"")
                self.assertIn(done.returncode, (0, 1, 3, 141, -signal.SIGPIPE))

    def test_a_full_disk_behind_standard_output_is_no_success(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([PROGRAM, "--help"], stdout=full, stderr=subprocess.PIPE, timeout=20,
                                  env=self.environment())
        self.assertNotEqual(done.returncode, 0)
        self.assertIn(b"No space left", done.stderr)

    def test_it_needs_neither_home_nor_bus_nor_display_nor_any_variable(self):
        read_only = {"HOME": "/proc", "XDG_CONFIG_HOME": "/proc/x", "XDG_DATA_HOME": "/proc/x"}
        gone = {"DISPLAY": ":987", "WAYLAND_DISPLAY": "none", "DBUS_SESSION_BUS_ADDRESS": "unix:path=/nowhere",
                "QT_QPA_PLATFORM": "xcb", "LANG": "xx_YY", "TMPDIR": "/nowhere"}
        turkish = {"LC_ALL": "tr_TR.UTF-8", "LANGUAGE": "de"}
        families = []
        rows = (("empty", {}), ("read-only home", read_only), ("nothing reachable", gone), ("tr_TR", turkish))
        for name, env in rows:
            with self.subTest(environment=name):
                sanitizers = {key: value for key, value in os.environ.items() if key.endswith("SAN_OPTIONS")}
                folder = self.folder(name)
                outcome = self.expect(0, "apply", *LABEL, "--opacity", "0.5", folder, env={**sanitizers, **env})
                # Without a session there is one thing to say, and no more.
                self.assertEqual([line for line in outcome.err.splitlines() if "no desktop session" not in line], [])
                families.append(self.assert_branded(folder))
        self.assertEqual(len(set(families)), 1, "the same icon everywhere")

    def test_words_and_numbers_are_the_same_in_every_locale(self):
        locales = os.path.join(self.place, "locales")
        os.mkdir(locales)
        if subprocess.run(["localedef", "-i", "de_DE", "-f", "UTF-8", locales + "/de_DE.UTF-8"],
                          capture_output=True).returncode != 0:
            self.skipTest("no locale can be made here")
        said = []
        for locale in ("C.UTF-8", "de_DE.UTF-8"):
            env = {**self.environment(), "LOCPATH": locales, "LC_ALL": locale}
            missing = self.expect(1, "status", "--json", "nowhere", env=env)
            self.expect(0, "render", *LABEL, "--shear", "0.5", "--save-look", "my.look", "my.png", env=env)
            files = [os.path.join(self.work, name) for name in ("my.look", "my.png")]
            said.append((missing.out, missing.err, *map(read, files)))
            list(map(os.remove, files))
        self.assertEqual(*said)
        self.assertIn("No such file", said[0][0])

    def test_nothing_is_written_but_into_the_folder_and_our_own_places(self):
        folder = self.folder()
        before = tree(self.place)
        self.expect(0, "apply", *LABEL, folder)
        allowed = ("./home/", "./work/Invoices", "./work/._Invoices")
        changed = [name for name, row in tree(self.place).items()
                   if before.get(name) != row and not name.startswith(allowed)]
        self.assertEqual(changed, [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
