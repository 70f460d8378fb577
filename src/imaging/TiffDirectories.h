// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// Walks the directories of a TIFF file as a reader of its metadata would. Refuses more directories than anybody has,
/// and values that are together longer than the limit: many entries can name the same stretch of a file, and a reader
/// copies each. The result: where entries of camera makers' notes stand (12 bytes each), whose inside is not checked.
Result<std::vector<std::size_t>> checkTiffDirectories(ByteView tiff);

}  // namespace quorvane
