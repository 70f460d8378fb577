# SPDX-License-Identifier: GPL-3.0-or-later
"""The icon library from the command line: sets of one's own, and icons of them as the base of a folder's icon."""
import json
import os
import plistlib
import unittest
import zipfile

from support import APP_ID, FOREIGN, ICON, ROOT, EndToEndTest, read, tree, write

PICTURE = os.path.join(ROOT, "docs/pictures/draft.png")


class LibraryTest(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.library = os.path.join(self.home, "data", APP_ID)

    def environment(self):
        return {**super().environment(), "XDG_DATA_HOME": os.path.join(self.home, "data")}

    def sets(self, *names):
        """Each set of one's own with its icons."""
        results = json.loads(self.expect(0, "sets", "--json", *names).out)["results"]
        return {row["set"]: row["icons"] for row in results if row.get("library") == "yours"}

    def test_a_set_from_its_making_to_its_end(self):
        self.expect(0, "sets", "new", "Office")
        family = os.path.join(self.work, "seal.ICNS")
        write(family, FOREIGN)
        self.expect(0, "sets", "add", "Office", PICTURE, family)
        self.expect(0, "sets", "add", "Office", PICTURE)
        self.assertEqual(self.sets(), {"Office": ["draft.icns", "seal.icns", "draft-1.icns"]})
        self.assertEqual(plistlib.loads(read(os.path.join(self.library, "Office/QVIcons.plist"))),
                         ["draft.icns", "seal.icns", "draft-1.icns"])
        self.assertEqual(read(family), FOREIGN)
        self.expect(0, "sets", "rename", "Office", "Work")
        self.expect(0, "sets", "export", "Work", os.path.join(self.work, "work.zip"))
        with zipfile.ZipFile(os.path.join(self.work, "work.zip")) as archive:
            self.assertIsNone(archive.testzip())
        self.expect(0, "sets", "import", os.path.join(self.work, "work.zip"))
        both = self.sets()
        self.assertEqual(len(both), 2)
        self.assertEqual(len(set(map(tuple, both.values()))), 1, "what comes back is what was exported, in its order")
        self.assert_says(self.expect(1, "sets", "remove", "Work"), "Work")
        self.expect(0, "sets", "remove", "Work", "draft", "draft-1", "seal.icns")
        self.assertEqual(self.sets()["Work"], [])
        self.expect(0, "sets", "remove", "Work")
        self.assertNotIn("Work", self.sets())

    def test_icons_are_bases_by_their_sets_and_names(self):
        self.expect(0, "sets", "new", "Office")
        self.expect(0, "sets", "add", "Office", PICTURE)
        plain, tinted = self.folder("plain"), self.folder("tinted")
        self.expect(0, "apply", "--base", "Office/draft", "--label", "x", plain)
        self.expect(0, "apply", "--base", "Office/draft.icns", "--tint", "#c03030", "--overlay", "emblem:star", tinted)
        self.assertNotEqual(self.assert_branded(plain), self.assert_branded(tinted))
        other = self.folder("other")
        for wrong in ("Office", "Office/none", "Offices/draft", "Office/../Office/draft"):
            self.expect(1, "apply", "--base", wrong, "--label", "x", other)
        self.assertFalse(os.path.lexists(os.path.join(other, ICON)))

    def test_nothing_leaves_the_library_and_no_name_is_taken_twice(self):
        self.expect(0, "sets", "new", "Office")
        self.expect(0, "sets", "new", "Home")
        outside = os.path.join(self.home, "data", "outside")
        os.mkdir(outside)
        write(os.path.join(outside, "mine.icns"), FOREIGN)
        os.symlink(outside, os.path.join(self.library, "Link"))
        before = tree(self.home)
        for words in (("new", "../evil"), ("new", ""), ("new", "."), ("new", "x" * 300), ("new", "Office"),
                      ("rename", "Office", "Home"), ("rename", "Office", "../evil"), ("rename", "../outside", "x"),
                      ("remove", "../outside", "mine"), ("remove", "Link", "mine"), ("add", "Link", PICTURE),
                      ("add", "none", PICTURE), ("export", "../outside", "x.zip"),
                      ("import", PICTURE)):
            with self.subTest(words):
                outcome = self.run_program("sets", *words)
                self.assertIn(outcome.code, (1, 2), outcome)
                self.assertTrue(outcome.err, outcome)
                self.assertEqual(tree(self.home), before)
        self.assertNotIn("Link", self.sets())

    def test_a_library_that_cannot_be_is_said(self):
        os.makedirs(os.path.dirname(self.library))
        write(self.library, b"no folder")
        for words in (("sets",), ("sets", "new", "Office")):
            self.assert_says(self.expect(1, *words), APP_ID, "Not a directory")
        self.assertEqual(read(self.library), b"no folder")


if __name__ == "__main__":
    unittest.main(verbosity=2)
