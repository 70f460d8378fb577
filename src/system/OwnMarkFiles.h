// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "foundation/Folder.h"

namespace quorvane {

/// The files by which a folder's marks are set and in which nothing stands but these marks: files of the user's own,
/// with or without our marks in them, are not among them. Names directly inside the folder.
std::vector<std::string> ownMarkFiles(const Folder& folder);

}  // namespace quorvane
