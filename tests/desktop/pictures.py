# SPDX-License-Identifier: GPL-3.0-or-later
"""Pictures of the screen: where a folder's icon is on them, and what it shows."""
import struct
import zlib

# A pixel counts as changed from here on, in steps of 256 and for the worst channel.
CHANGED = 24
# A pixel has a colour up to here; icons are drawn scaled, which leaves flat areas as they are.
SAME_COLOUR = 40


class Picture:
    """Eight-bit RGB pixels, rows from the top."""

    def __init__(self, width, height, rows):
        self.width, self.height, self.rows = width, height, rows

    @classmethod
    def from_ppm(cls, data):
        words, at = [], 0
        while len(words) < 4:  # P6, width, height, 255: then one white-space byte
            end = at
            while not data[end:end + 1].isspace():
                end += 1
            words.append(data[at:end])
            at = end + 1
        if words[0] != b"P6" or words[3] != b"255":
            raise ValueError("not a picture of the screen")
        width, height = int(words[1]), int(words[2])
        if len(data) < at + 3 * width * height:
            raise ValueError("the picture of the screen is cut off")
        return cls(width, height, [data[at + 3 * width * y:at + 3 * width * (y + 1)] for y in range(height)])

    def pixel(self, x, y):
        return self.rows[y][3 * x:3 * x + 3]

    def save(self, path, frame=None):
        """As PNG; `frame` (left, top, right, bottom) is outlined."""
        rows = [bytearray(row) for row in self.rows]
        if frame:
            left, top, right, bottom = frame
            for x in range(max(left - 1, 0), min(right + 1, self.width)):
                for y in (top - 1, bottom):
                    if 0 <= y < self.height:
                        rows[y][3 * x:3 * x + 3] = b"\xff\x80\x00"
            for y in range(max(top - 1, 0), min(bottom + 1, self.height)):
                for x in (left - 1, right):
                    if 0 <= x < self.width:
                        rows[y][3 * x:3 * x + 3] = b"\xff\x80\x00"

        def chunk(kind, body):
            return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n")
            file.write(chunk(b"IHDR", struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)))
            file.write(chunk(b"IDAT", zlib.compress(b"".join(b"\0" + bytes(row) for row in rows), 6)))
            file.write(chunk(b"IEND", b""))


def solid(path, width, colour):
    """A square picture file of one colour."""
    Picture(width, width, [bytes(colour) * width] * width).save(path)


def _far(one, other, limit):
    return any(abs(a - b) > limit for a, b in zip(one, other))


def _first_run(flags, gap):
    """The first stretch of set flags, gaps shorter than `gap` included."""
    start = end = None
    for index, flag in enumerate(flags):
        if flag:
            start, end = (index if start is None else start), index + 1
        elif end is not None and index - end >= gap:
            break
    return (start, end)


def appeared(before, after):
    """Where a folder's icon appeared between two pictures (left, top, right, bottom); None when nowhere. It is the
    uppermost of the changes: below it are the folder's name, which changes with every renaming, and the line that
    counts the folders."""
    changed = [[_far(before.pixel(x, y), after.pixel(x, y), CHANGED) for x in range(before.width)]
               if before.rows[y] != after.rows[y] else [] for y in range(before.height)]
    top, bottom = _first_run([any(row) for row in changed], 2)
    if top is None:
        return None
    left, right = _first_run([any(row and row[x] for row in changed[top:bottom]) for x in range(before.width)], 40)
    return (left, top, right, bottom)


def share_of_colour(picture, region, colour):
    left, top, right, bottom = region
    hits = sum(not _far(picture.pixel(x, y), colour, SAME_COLOUR) for y in range(top, bottom) for x in range(left, right))
    return hits / ((right - left) * (bottom - top))


def is_blank(picture, region):
    """Whether there is nothing but background."""
    left, top, right, bottom = region
    background = picture.pixel(left, top)
    return all(not _far(picture.pixel(x, y), background, CHANGED) for y in range(top, bottom) for x in range(left, right))


def share_of_change(one, other, region):
    left, top, right, bottom = region
    hits = sum(_far(one.pixel(x, y), other.pixel(x, y), CHANGED) for y in range(top, bottom) for x in range(left, right))
    return hits / ((right - left) * (bottom - top))
