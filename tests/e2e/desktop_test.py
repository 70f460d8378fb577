# SPDX-License-Identifier: GPL-3.0-or-later
"""What the desktop is told of the program, as made in the build tree: one identifier for all, valid, and complete."""
import configparser
import os
import re
import shutil
import struct
import subprocess
import unittest
import xml.etree.ElementTree as tree_of

from support import APP_ID, BUILD, ROOT, EndToEndTest, pictures, read, write

DESKTOP = os.path.join(BUILD, "desktop")
VERSION = re.search(r"project\(Quorvane VERSION (\S+)", read(os.path.join(ROOT, "CMakeLists.txt")).decode())[1]


class DesktopTest(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.entry = f"{DESKTOP}/{APP_ID}.desktop"

    def check(self, *command):
        if not shutil.which(command[0]):
            self.skipTest(f"there is no {command[0]} here")
        done = subprocess.run(command, capture_output=True, text=True, env=self.environment(), timeout=60)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        return done.stdout + done.stderr

    def metainfo(self):
        for kind in ("desktop-application", "console-application"):
            path = f"{DESKTOP}/{kind}/{APP_ID}.metainfo.xml"
            yield path, tree_of.parse(path).getroot()

    def test_the_entry_is_valid_and_whole(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(self.entry)
        entry = entry["Desktop Entry"]
        self.assertEqual((entry["Icon"], entry["Exec"], entry["Terminal"], entry["StartupNotify"], entry["MimeType"]),
                         (APP_ID, "quorvane-window %F", "false", "true", "inode/directory;"))
        self.assertLessEqual({"GenericName", "Comment", "Keywords"}, set(entry))
        self.assertRegex(entry["Categories"], r"^Utility;(\w+;)+$")
        self.assertFalse({"SingleMainWindow", "Version", "NoDisplay"} & set(entry))
        self.assertEqual(self.check("desktop-file-validate", self.entry), "")

    def test_it_does_not_open_folders_by_being_installed(self):
        applications = os.path.join(self.place, "applications")
        os.mkdir(applications)
        managers = ["org.gnome.Nautilus", "nemo", "caja-browser", "org.kde.dolphin", "pcmanfm-qt"]
        for name in [*managers, APP_ID]:
            write(f"{applications}/{name}.desktop", read(self.entry))
        self.check("update-desktop-database", applications)
        order = re.search(r"^inode/directory=(.*);$", read(applications + "/mimeinfo.cache").decode(), re.MULTILINE)[1]
        self.assertEqual(order.split(";")[-1], APP_ID + ".desktop", order)

    def test_the_metainfo_names_the_same_program(self):
        for path, root in self.metainfo():
            self.assertEqual((root.findtext("id"), root.findtext("icon")), (APP_ID, APP_ID), path)
            launchable = [APP_ID + ".desktop"] if root.get("type") == "desktop-application" else []
            self.assertEqual([element.text for element in root.findall("launchable")], launchable, path)
            self.assertEqual("quorvane-window" in [element.text for element in root.findall("provides/binary")],
                             bool(launchable), "it provides what it does not have")
            self.assertEqual(root.find("developer/name").text, root.findtext("developer_name"))
            self.assertLessEqual(len(root.findtext("summary")), 35)
            self.assertGreaterEqual(len(" ".join(root.find("description")[0].text.split())), 80)
            self.assertEqual({element.get("type") for element in root.findall("url")}, {"homepage", "bugtracker"})
            pictures = [(picture.findtext("caption"), picture.findtext("image"))
                        for picture in root.findall("screenshots/screenshot")]
            self.assertEqual(len(pictures), 2 if launchable else 0)
            for caption, address in pictures:
                self.assertTrue(caption)
                self.assertTrue(os.path.exists(f"{ROOT}/docs/pictures/" + address.rsplit("/", 1)[1]), address)
            release = root.find("releases/release")
            changes = read(ROOT + "/packaging/changelog").decode()
            day = subprocess.run(["date", "-d", re.search(r"^ -- .*  (.*)$", changes, re.MULTILINE)[1], "+%F"],
                                 capture_output=True, text=True, check=True).stdout.strip()
            self.assertEqual((release.get("version"), release.get("date")), (VERSION, day))
            self.assertTrue(changes.startswith(f"quorvane ({VERSION}) "), "the changelog tells of another version")

    def test_the_metainfo_is_valid(self):
        for path, _root in self.metainfo():
            said = self.check("appstreamcli", "validate", "--no-net", "--no-color", path)
            self.assertFalse(re.findall(r"^[EW]:.*", said, re.MULTILINE), said)

    def test_the_icon_is_there_in_every_size(self):
        drawn = {}
        for size in (16, 22, 24, 32, 48, 64, 128, 256, 512):
            data = read(f"{DESKTOP}/icons/hicolor/{size}x{size}/apps/{APP_ID}.png")
            self.assertEqual(struct.unpack(">8s8xII", data[:24]), (b"\x89PNG\r\n\x1a\n", size, size))
            drawn[size] = os.path.exists(f"{ROOT}/resources/icons/quorvane-{size}.svg")
            image = pictures()
            if image:
                picture = image.open(f"{DESKTOP}/icons/hicolor/{size}x{size}/apps/{APP_ID}.png").convert("RGBA")
                left, top, right, bottom = picture.getchannel("A").getbbox()
                self.assertGreaterEqual(min(right - left, bottom - top), size * 0.75, "it does not fill its square")
        self.assertEqual([size for size, is_drawn in drawn.items() if is_drawn], [16, 22, 24, 32])

    def test_no_other_identifier_is_about(self):
        wrong = re.compile(rb"\b(?:org|com|net|io|test|example)\.(?:\w+\.)?[Qq]uorvane\b")
        for top in ("src", "resources", "cmake", "packaging", "docs"):
            for folder, _folders, names in os.walk(os.path.join(ROOT, top)):
                for name in (os.path.join(folder, name) for name in names):
                    self.assertLessEqual(set(wrong.findall(read(name))), {APP_ID.encode()}, name)


if __name__ == "__main__":
    unittest.main()
