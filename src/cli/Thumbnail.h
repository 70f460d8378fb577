// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "iconfamily/ForkStore.h"

namespace quorvane::cli {

/// "quorvane thumbnail FOLDER OUT SIZE", for a .thumbnailer file: not for people, so in no help. Writes the folder's
/// custom icon as a PNG of SIZE pixels to OUT.
bool isThumbnailCall(int argc, const char* const* argv);

/// Returns the exit code: 1, and nothing written, for a folder without a custom icon, or when the call comes from
/// another thumbnailing program than tumblerd. Tumbler serves the one file manager that shows nothing without
/// thumbnails; those that the desktops' own libraries make would be shown in place of what the folder's marks say, and
/// go on being shown after a reset.
int writeThumbnail(const char* const* argv, const ForkStore& forks);

}  // namespace quorvane::cli
