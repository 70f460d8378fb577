// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "Drawing.h"
#include "Library.h"
#include "foundation/base/Result.h"

namespace quorvane::baseicons {

/// Writes FOLDER/SET/NAME.icns for each icon and FOLDER/SET/QVIcons.plist, and removes icons that the set no longer
/// has.
Result<void> writeSet(Sources& sources, const SetRow& set, const std::filesystem::path& folder);

/// Writes FOLDER/sets.plist and removes the icons of sets that the library no longer has.
Result<void> writeSetList(const std::vector<SetRow>& sets, const std::filesystem::path& folder);

}  // namespace quorvane::baseicons
