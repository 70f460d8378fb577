// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "foundation/base/Result.h"

namespace quorvane::removal {

/// Removes the folder `name` inside the open folder `parent` with everything in it. Links are removed, never followed;
/// a folder of another file system is refused. `parentPath` is for messages.
Result<void> removeTree(int parent, const std::string& name, const std::filesystem::path& parentPath);

}  // namespace quorvane::removal
