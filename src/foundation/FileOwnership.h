// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/stat.h>

#include "foundation/base/Result.h"

/// Who may do what with the files that we make: owner, group, mode, access list and other extended attributes.
namespace quorvane::ownership {

/// Modes for making something inside a folder; the system takes the umask (or the folder's default access list) off.
/// Never more open than the folder itself.
mode_t newFileMode(const struct stat& folder);
mode_t newFolderMode(const struct stat& folder);

/// Gives something that was just made in a folder the folder's group and, when we are root, its owner. When we may not
/// give the group, the group that it has instead gets no more than everybody has.
Result<void> giveToFolder(int handle, const struct stat& folder);

/// Gives the open file `to`, which we just made, the owner, group, mode, access list and other extended attributes of
/// `from`. Only root can give files away: otherwise the owner stays ours, and a group that we may not give is treated
/// as in giveToFolder(). What says who may read (mode, access list) and what users attached must go over.
Result<void> copyProperties(int from, int to);

}  // namespace quorvane::ownership
