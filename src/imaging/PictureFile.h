// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// All bytes of a plain file of at most `limit` bytes. Links are followed; a folder, fifo, socket or device is refused
/// without waiting for it.
Result<Bytes> readPictureFile(const std::filesystem::path& path, std::size_t limit);

}  // namespace quorvane
