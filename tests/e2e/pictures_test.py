# SPDX-License-Identifier: GPL-3.0-or-later
"""The picture files that render makes, as readers see them that have nothing in common with the program."""
import os
import shutil
import subprocess
import unittest

from support import LABEL, EndToEndTest, pictures, read, write

ENDINGS = ("png", "jpg", "tif", "gif")


class PicturesTest(EndToEndTest):
    def made(self, *options, name):
        file = os.path.join(self.work, name)
        self.expect(0, "render", *LABEL, *options, file)
        return file

    def test_every_kind_shows_the_same_picture(self):
        image = pictures()
        if image is None:
            self.skipTest("needs python3-pil")
        files = {ending: image.open(self.made(name="a." + ending)) for ending in ENDINGS}
        self.assertEqual([file.format for file in files.values()], ["PNG", "JPEG", "TIFF", "GIF"])
        self.assertEqual([file.size for file in files.values()], [(512, 512)] * 4)
        self.assertEqual((files["tif"].info["compression"], files["jpg"].info["dpi"]), ("tiff_lzw", (72, 72)))
        first = files["png"].convert("RGBA")
        seen = {ending: file.convert("RGBA") for ending, file in files.items()}
        self.assertLess(difference(first.getchannel("A"), seen["tif"].getchannel("A")), 0.001)
        self.assertEqual(set(seen["gif"].getdata(3)), {0, 255})
        self.assertEqual(set(seen["jpg"].getdata(3)), {255})
        # On white, and small enough that a pattern becomes the tone it stands for.
        flat = {}
        for ending, picture in seen.items():
            white = image.new("RGBA", picture.size, "white")
            flat[ending] = image.alpha_composite(white, picture).convert("RGB").resize((64, 64), image.BOX)
        for ending, most in (("tif", 0.1), ("jpg", 1), ("gif", 1.5)):
            with self.subTest(ending=ending):
                self.assertLess(difference(flat["png"], flat[ending]), most)

    def test_another_reader_agrees(self):
        if shutil.which("identify") is None:
            self.skipTest("needs imagemagick")
        for ending, kind in (("tif", "TIFF 64 64 LZW 1"), ("gif", "GIF 64 64 LZW 1"), ("jpg", "JPEG 64 64 JPEG 1")):
            told = subprocess.run(["identify", "-format", "%m %w %h %C %n", self.made("--pixels", "64", name="b." + ending)],
                                  capture_output=True, text=True, check=True)
            self.assertEqual((told.stdout, told.stderr), (kind, ""))

    def test_a_jpeg_stays_below_the_size_asked_for(self):
        large = os.path.getsize(self.made("--quality", "100", name="large.jpg"))
        file, sizes = os.path.join(self.work, "a.jpg"), []
        for kibibytes in (40, 20, 12):
            self.assertLess(kibibytes * 1024, large)
            sizes.append(os.path.getsize(self.made("--quality", "100", "--max-size", str(kibibytes), name="a.jpg")))
            self.assertLess(sizes[-1], kibibytes * 1024)
        self.assertGreater(sizes[0], sizes[-1])
        before = read(file)
        for options in (("--max-size", "1"), ("--max-size", "1", "--dry-run")):
            outcome = self.expect(1, "render", *LABEL, "--quality", "100", *options, file)
            self.assert_says(outcome, "a.jpg", "should be below 1024")
        self.expect(0, "render", *LABEL, "--dry-run", file)
        self.expect(2, "render", *LABEL, os.path.join(self.work, "a.bmp"))
        self.assertEqual(read(file), before)
        self.assertEqual(sorted(os.listdir(self.work)), ["a.jpg", "large.jpg"])

    def test_tint_and_overlay_are_drawn_and_kept_in_looks(self):
        image = pictures()
        if image is None:
            self.skipTest("needs python3-pil")
        file, look, again = (os.path.join(self.work, name) for name in ("a.png", "a.look", "b.png"))
        red = os.path.join(self.work, "red.png")
        image.new("RGB", (40, 40), "red").save(red)
        blue = os.path.join(self.work, "blue.png")
        image.new("RGB", (512, 512), "#3060c0").save(blue)
        self.expect(0, "render", "--base", blue, "--tint", "#46a758", "--overlay", red, "--overlay-center", "32,96",
                    "--overlay-size", "32", "--save-look", look, file)
        made = image.open(file).convert("RGBA")
        self.assertEqual(made.getpixel((128, 128)), (255, 0, 0, 255))
        self.assertEqual(made.getpixel((128, 200)), (0x46, 0xA7, 0x58, 255))
        # The look alone draws the same, without the picture that it was made with.
        os.remove(red)
        self.expect(0, "render", "--look", look, again)
        self.assertEqual(read(file), read(again))
        self.expect(0, "render", "--look", look, "--tint", "none", "--overlay", "none", again)
        self.assertEqual(image.open(again).convert("RGB").getcolors(), [(512 * 512, (0x30, 0x60, 0xC0))])
        # Rows have them, too.
        rows = os.path.join(self.work, "rows.csv")
        folder = self.folder("branded")
        write(rows, f"folder,tint,overlay,overlay-size\n{folder},red,emblem:star,40\n".encode())
        self.expect(0, "apply", "--from", rows)
        for wrong in (["--overlay", "emblem:stra"], ["--overlay-size", "40"], ["--tint", "reddish"],
                      ["--overlay", "emoji:ab"], ["--overlay", os.path.join(self.work, "none.png")]):
            with self.subTest(wrong=wrong):
                self.assertIn(self.run_program("render", *wrong, file).code, (1, 2))
        self.assertRegex(self.expect(0, "--list-emblems").out, r"(?m)^star +")

    def test_links_and_folders_are_left_alone(self):
        target = os.path.join(self.work, "target")
        write(target, b"not ours")
        for ending in ENDINGS:
            link, folder = (os.path.join(self.work, name + ending) for name in ("link.", "folder."))
            os.symlink(target, link)
            os.mkdir(folder)
            for path in (link, folder):
                self.expect(1, "render", *LABEL, path)
        self.assertEqual(read(target), b"not ours")


def difference(one, other):
    """Mean of the differences of all samples, 0 to 255."""
    samples = [zip(one.getdata(band), other.getdata(band)) for band in range(len(one.getbands()))]
    rows = [abs(a - b) for band in samples for a, b in band]
    return sum(rows) / len(rows)


if __name__ == "__main__":
    unittest.main(verbosity=2)
