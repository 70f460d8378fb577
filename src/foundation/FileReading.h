// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// The bytes of a file that the user named; links are followed. Anything but a plain file (a folder, a fifo that would
/// block, a device) is refused, as are more than `limit` bytes.
Result<Bytes> readPlainFile(const std::filesystem::path& path, std::size_t limit);

}  // namespace quorvane
