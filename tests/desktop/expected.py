# SPDX-License-Identifier: GPL-3.0-or-later
"""What each file manager is to show at each step, and why where that is not simply the brand or the plain folder.

shown   the brand that was put on last
plain   the picture from before, exactly
broken  anything else: an empty place, a blank document, an older brand"""

# The same for both ways of renaming up to there: apply, a second apply with another picture, reset, apply once more.
LIVE = {"before": "plain", "apply": "shown", "again": "shown", "reset": "plain", "anew": "shown"}
END = {"repair": "shown", "end": "plain"}
NEVER = dict.fromkeys((*LIVE, "renamed", *END), "plain")


def _steps(renamed):
    return {**LIVE, "renamed": renamed, **END}


# A renamed folder is looked at in a new window: one that was open shows what it had in memory.
EXPECTED = {
    ("nautilus", "gio"): _steps("shown"),
    ("nautilus", "mv"): _steps("plain"),
    ("nemo", "gio"): _steps("shown"),
    ("nemo", "mv"): _steps("plain"),
    ("caja", "gio"): _steps("shown"),
    ("caja", "mv"): _steps("plain"),
    ("dolphin", "gio"): _steps("shown"),
    ("dolphin", "mv"): _steps("shown"),
    ("pcmanfm-qt", "gio"): _steps("broken"),
    ("pcmanfm-qt", "mv"): _steps("broken"),
    ("thunar", "gio"): NEVER,
    ("thunar", "mv"): NEVER,
    ("thunar-thumbnails", "gio"): _steps("shown"),
    ("thunar-thumbnails", "mv"): _steps("shown"),
}

REASONS = {
    ("nautilus", "mv", "renamed"): "keeps the mark by path in the user's metadata store, which a plain rename does not tell",
    ("nemo", "mv", "renamed"): "as nautilus",
    ("caja", "mv", "renamed"): "as nautilus",
    ("pcmanfm-qt", "gio", "renamed"): "takes absolute paths only, and leaves the place empty when there is nothing",
    ("pcmanfm-qt", "mv", "renamed"): "takes absolute paths only, and leaves the place empty when there is nothing",
    ("thunar", "gio", "apply"): "knows no icons of single folders, only thumbnails, which are an option",
    ("thunar", "mv", "apply"): "knows no icons of single folders, only thumbnails, which are an option",
}
