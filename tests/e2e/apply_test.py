# SPDX-License-Identifier: GPL-3.0-or-later
"""Applying: what a branded folder holds, told by readers that are not ours."""
import io
import json
import os
import subprocess
import shutil
import unittest

from support import (BACKUP, ELEMENTS, FOREIGN, ICON, ICON_COMPANION, LABEL, EndToEndTest, companion, elements,
                     family_file, oracle, pictures, plant_custom_icon, read, resources, tree, write)

RED = (0xB0, 0x00, 0x20)


def share_of(picture, color):
    """How much of a picture has about this colour, opaque: 0 to 1."""
    pixels = picture.convert("RGBA").getdata()
    near = sum(1 for r, g, b, a in pixels if a > 200 and all(abs(x - y) < 24 for x, y in zip((r, g, b), color)))
    return near / len(pixels)


class ApplyTest(EndToEndTest):
    def test_a_branded_folder_holds_all_twelve_elements_and_both_flags(self):
        folder = self.folder("Invoices 2026")
        before = tree(folder)
        self.expect(0, "apply", *LABEL, folder)
        family = self.assert_branded(folder)
        self.assertEqual(sorted(kind for kind, _data in elements(family)), sorted(ELEMENTS))
        for name in ("letter.txt", "empty"):
            self.assertEqual(tree(folder)["./" + name], before["./" + name], "a file of the user's has changed")

    def test_independent_readers_agree_about_the_companion(self):
        folder = self.folder()
        self.expect(0, "apply", *LABEL, folder)
        reader = oracle("appledouble_oracle")
        if reader is None:
            self.skipTest("no independent reader of companion files here")
        for name in reader.targets(folder):
            with self.subTest(name=name):
                found = reader.apple(read(name))
                self.assertEqual(found["problems"], [])
                if "resource_fork" in found and name.endswith(ICON):
                    self.assertEqual(found["resource_fork"]["problems"], [])
                    self.assertEqual([(row["type"], row["id"], row["name"] or "")
                                      for row in found["resource_fork"]["resources"]], [("icns", -16455, "")])
        unarchiver = oracle("lsar_oracle")
        if unarchiver is not None and shutil.which("lsar") and shutil.which("unar"):
            self.assertTrue(unarchiver.run(folder), "lsar reads flags or forks otherwise")

    def test_independent_decoders_agree_about_every_element(self):
        folder = self.folder()
        self.expect(0, "apply", *LABEL, folder)
        file = os.path.join(self.place, "written.icns")
        write(file, self.assert_branded(folder))
        if shutil.which("icns2png"):
            listed = subprocess.run(["icns2png", "-l", file], capture_output=True, text=True, timeout=60, check=True)
            for kind in ELEMENTS:
                self.assertIn(kind, listed.stdout + listed.stderr)
        reader = oracle("icns_oracle")
        if reader is None or pictures() is None:
            self.skipTest("no independent icon family reader here")
        report = reader.report(file)
        self.assertEqual(report["warnings"], [])
        for element in report["elements"]:
            with self.subTest(element=element["type"]):
                for name, found in element.get("agree", {}).items():
                    self.assertIn(found["match"], ("exact", "norm", "premul"), f"{name} sees other pixels: {found}")

    def test_the_label_is_drawn_in_its_colour_on_the_folder(self):
        image = pictures()
        if image is None:
            self.skipTest("needs python3-pil")
        plain, labelled = self.folder("plain"), self.folder("labelled")
        self.expect(0, "apply", "--label", ".", "--color", "#00b020", plain)
        self.expect(0, "apply", *LABEL, labelled)
        shares = []
        for folder in (plain, labelled):
            family = image.open(io.BytesIO(self.assert_branded(folder)))
            family.size = (512, 512, 1) if (512, 512, 1) in family.info["sizes"] else (256, 256, 2)
            shares.append(share_of(family, RED))
        self.assertLess(shares[0], 0.001)
        self.assertGreater(shares[1], 0.005)

    def test_render_writes_the_picture_that_apply_writes(self):
        image = pictures()
        if image is None:
            self.skipTest("needs python3-pil")
        file = os.path.join(self.work, "out.png")
        self.expect(0, "render", *LABEL, file)
        picture = image.open(file)
        self.assertEqual(picture.size, (512, 512))
        self.assertGreater(share_of(picture, RED), 0.005)
        family = os.path.join(self.work, "out.icns")
        self.expect(0, "render", *LABEL, family)
        self.assertEqual(sorted(kind for kind, _data in elements(read(family))), sorted(ELEMENTS))

    def test_the_first_backup_stays(self):
        folder = self.folder()
        self.expect(0, "apply", *LABEL, folder)
        first = read(os.path.join(folder, BACKUP))
        family = self.assert_branded(folder)
        self.assertNotEqual(elements(first), [])
        self.expect(0, "apply", "--label", "other", folder)
        self.assertEqual(read(os.path.join(folder, BACKUP)), first)
        self.assertNotEqual(self.assert_branded(folder), family)

    def test_a_custom_icon_of_another_program_is_what_gets_backed_up(self):
        folder = self.folder()
        plane = b"\x7f" + bytes(range(128)) + b"\x7f" + bytes(128)
        foreign = family_file(("is32", plane * 3), ("s8mk", b"\xff" * 256))
        plant_custom_icon(folder, foreign)
        self.expect(0, "apply", *LABEL, folder)
        kept = dict(elements(read(os.path.join(folder, BACKUP))))
        for kind, data in elements(foreign):
            self.assertEqual(kept.get(kind), data, kind)

    def test_the_same_apply_again_changes_nothing(self):
        folder = self.folder()
        self.expect(0, "apply", *LABEL, folder)
        before = tree(self.work)
        again = self.expect(0, "apply", *LABEL, folder)
        self.assertEqual(tree(self.work), before)
        self.assertIn("unchanged", again.out + again.err)

    def test_one_bad_folder_does_not_stop_the_others(self):
        good, last = self.folder("a"), self.folder("d")
        missing, file = os.path.join(self.work, "b"), os.path.join(self.work, "c")
        write(file, b"not a folder")
        outcome = self.expect(1, "apply", *LABEL, good, missing, file, last)
        self.assert_branded(good)
        self.assert_branded(last)
        self.assert_says(outcome, missing, file)
        self.assertFalse(os.path.lexists(missing))
        self.assertEqual(read(file), b"not a folder")

    def test_folders_come_from_a_file_or_standard_input(self):
        self.need("apply", "--files-from")
        folders = [self.folder(name) for name in ("one", "-two", "three ", "four\nlines")]
        listing = os.path.join(self.place, "list")
        write(listing, b"".join(os.fsencode(path) + b"\0" for path in folders[:2]))
        self.expect(0, "apply", *LABEL, "--null", "--files-from", listing)
        self.expect(0, "apply", *LABEL, "--null", "--files-from", "-",
                    stdin=b"\0".join(os.fsencode(path) for path in folders[2:]))
        for folder in folders:
            self.assert_branded(folder)
        self.expect(0, "apply", "--label", "again", "--", "-two")

    def test_many_folders_with_their_own_labels_from_a_table(self):
        self.need("apply", "--from")
        csv_folders = [self.folder(f"csv {i}") for i in range(2)]
        json_folders = [self.folder(f"json {i}") for i in range(2)]
        table = "folder,label,color\n" + "".join(f'"{path}","L {i}",#b00020\n' for i, path in enumerate(csv_folders))
        self.expect(0, "apply", "--from", "-", stdin=table.encode())
        rows = os.path.join(self.place, "rows.jsonl")
        write(rows, "".join(json.dumps({"folder": path, "label": f"L {i}"}) + "\n"
                            for i, path in enumerate(json_folders)).encode())
        self.expect(0, "apply", "--from", rows)
        families = [self.assert_branded(folder) for folder in csv_folders + json_folders]
        self.assertEqual(len(set(families)), 4, "each row has a label or colour of its own")

    def test_label_from_name_is_the_folders_name(self):
        named, told = self.folder("Receipts"), self.folder("elsewhere")
        self.expect(0, "apply", "--label-from-name", named)
        self.expect(0, "apply", "--label", "Receipts", told)
        self.assertEqual(self.assert_branded(named), self.assert_branded(told))

    def test_the_forks_other_resources_are_replaced_with_the_icon_file(self):
        folder = self.folder()
        plant_custom_icon(folder, FOREIGN, flags=0x0500)
        self.expect(0, "apply", *LABEL, folder)
        self.assert_branded(folder)
        _info, fork = companion(os.path.join(folder, ICON_COMPANION))
        self.assertEqual(list(resources(fork)), [("icns", -16455)])


if __name__ == "__main__":
    unittest.main(verbosity=2)
