# SPDX-License-Identifier: GPL-3.0-or-later
"""Places to work in: fast ones, full ones, closed ones."""
import os
import tempfile


def fast_place():
    """A folder in memory that takes attributes, or the usual one for temporary files."""
    place = "/dev/shm"
    try:
        with tempfile.NamedTemporaryFile(dir=place) as file:
            os.setxattr(file.name, "user.quorvane", b"1")
        return place
    except OSError:
        return tempfile.gettempdir()
