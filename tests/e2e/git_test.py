# SPDX-License-Identifier: GPL-3.0-or-later
"""Branding inside git work trees: git shows nothing of the icon when it was asked not to, and all of the rest."""
import os
import shutil
import subprocess
import unittest

from support import LABEL, EndToEndTest, read, tree, write

NAMES = ("Invoices", "two words", "a[1]*", "#x", "!x", "Umlaut \u00e4", "\udcff", "end\r", "trailing ")


@unittest.skipUnless(shutil.which("git"), "git is not installed")
class GitTest(EndToEndTest):
    def git(self, folder, *arguments):
        environment = {**self.environment(), "GIT_CONFIG_NOSYSTEM": "1", "GIT_AUTHOR_NAME": "a", "GIT_AUTHOR_EMAIL": "a@b",
                       "GIT_COMMITTER_NAME": "a", "GIT_COMMITTER_EMAIL": "a@b"}
        done = subprocess.run(["git", "-c", "protocol.file.allow=always", "-C", folder, *arguments], env=environment,
                              capture_output=True, timeout=60, check=False)
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stdout

    def repository(self, name="repository"):
        path = os.path.join(self.work, name)
        os.mkdir(path)
        self.git(path, "init", "-q")
        write(os.path.join(path, "readme"), b"x")
        self.git(path, "add", ".")
        self.git(path, "commit", "-q", "-m", "first")
        return path

    def exclude(self, folder):
        return os.path.join(folder, os.fsdecode(self.git(folder, "rev-parse", "--git-path", "info/exclude")).rstrip("\n"))

    def commit_all(self, path):
        self.git(path, "add", "-A")
        self.git(path, "commit", "-q", "-m", "more")

    def test_a_branded_tree_is_clean_and_the_rest_is_seen(self):
        path = self.repository()
        folders = [path] + [self.folder(name, path) for name in NAMES]
        self.commit_all(path)
        outcome = self.expect(0, "apply", "--git-exclude", *LABEL, "--", *folders)
        self.assertEqual(outcome.err.count("info/exclude"), 1, outcome)
        self.assertEqual(self.git(path, "status", "--porcelain"), b"")

        # Exactly ours: other names that begin or end alike, and settings files of the user's own, are seen.
        for name in ("Icons", "Icon", "IconX", "Invoices2/.hidden", "mine/.directory", "backup.BackupIcon.icns"):
            os.makedirs(os.path.dirname(os.path.join(path, name)), exist_ok=True)
            write(os.path.join(path, name), b"Icon\n")
        seen = set(self.git(path, "status", "--porcelain", "-z", "-uall").split(b"\0")) - {b""}
        self.assertEqual(seen, {b"?? " + name for name in (b"Icons", b"Icon", b"IconX", b"Invoices2/.hidden",
                                                           b"mine/.directory", b"backup.BackupIcon.icns")})

        before = read(self.exclude(path))
        self.assertEqual(self.expect(0, "apply", "--quiet", "--git-exclude", *LABEL, "--", *folders).err, "")
        self.assertEqual(read(self.exclude(path)), before)
        self.expect(0, "reset", "--", *folders)
        self.assertNotIn(b".git", self.git(path, "diff", "--stat"))

    def test_settings_files_of_the_user_stay_visible(self):
        path = self.repository()
        folder = self.folder(parent=path)
        write(os.path.join(folder, ".hidden"), b"secret\n")
        self.expect(0, "apply", "--git-exclude", *LABEL, folder)
        self.assertNotIn(b".hidden", read(self.exclude(path)))
        self.assertIn(b"/Invoices/.directory\n", read(self.exclude(path)))

    def test_linked_work_trees_and_submodules_use_their_own_list(self):
        path = self.repository()
        other = self.repository("other")
        self.git(path, "worktree", "add", "-q", os.path.join(self.work, "linked"))
        self.git(path, "submodule", "--quiet", "add", other, "module")
        self.git(path, "commit", "-q", "-m", "module")
        for place in (os.path.join(self.work, "linked"), os.path.join(path, "module")):
            with self.subTest(place=place):
                folder = self.folder(parent=place)
                self.commit_all(place)
                self.expect(0, "apply", "--git-exclude", *LABEL, folder)
                self.assertEqual(self.git(place, "status", "--porcelain"), b"")
                self.assertIn(b".quorvane/", read(self.exclude(place)))
        self.assertNotIn(b".quorvane/", read(self.exclude(other)))

    def test_the_list_keeps_what_it_has_and_is_never_reached_through_links(self):
        path = self.repository()
        folder = self.folder(parent=path)
        exclude = self.exclude(path)
        write(exclude, b"# mine\r\n*.o")
        self.expect(0, "apply", "--git-exclude", *LABEL, folder)
        self.assertTrue(read(exclude).startswith(b"# mine\r\n*.o\n.BackupIcon.icns\n"), read(exclude))

        shutil.rmtree(os.path.dirname(exclude))
        self.expect(0, "apply", "--git-exclude", *LABEL, folder)
        self.assertIn(b"Icon[\r]\n._Icon[\r]\n", read(exclude))

        os.remove(exclude)
        victim = os.path.join(self.work, "victim")
        write(victim, b"mine")
        os.symlink(victim, exclude)
        self.assert_says(self.expect(1, "apply", "--git-exclude", *LABEL, folder), "exclude", "link")
        self.assertEqual(read(victim), b"mine")

    def test_people_are_told_once_before_the_first_apply_and_nothing_is_written_unasked(self):
        path = self.repository()
        folders = [self.folder(name, path) for name in ("a", "b")]
        before = tree(os.path.join(path, ".git"))
        for mode, words in ((("--dry-run",), "a git work tree"), (("--dry-run", "--git-exclude"), "would be added"),
                            ((), "a git work tree")):
            outcome = self.expect(0, "apply", *mode, *LABEL, *folders)
            self.assertEqual(outcome.err.count(words), 1, outcome)
            self.assertEqual(tree(os.path.join(path, ".git")), before)
        self.assertNotIn("git", self.expect(0, "apply", "--label", "Other", *folders).err)
        self.assertEqual(self.expect(0, "apply", "--quiet", *LABEL, self.folder("c", path)).err, "")

    def test_a_broken_repository_stops_no_apply(self):
        folder = self.folder()
        write(os.path.join(folder, ".git"), b"gitdir: /nowhere\n")
        self.expect(0, "apply", *LABEL, folder)
        self.assert_branded(folder)
        self.assert_says(self.expect(1, "apply", "--git-exclude", *LABEL, folder), ".git", "leads to no repository")


if __name__ == "__main__":
    unittest.main()
