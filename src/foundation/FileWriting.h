// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// Writes a whole file that the user named, as Folder::writeFile() does: complete, flushed and read back, or not at
/// all; never through a link in the last place. Errors name the path.
Result<void> writePlainFile(const std::filesystem::path& path, ByteView bytes);

}  // namespace quorvane
