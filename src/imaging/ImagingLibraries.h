// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "foundation/base/LibraryNotice.h"

namespace quorvane {

/// The libraries that read and write pictures here.
std::vector<LibraryNotice> imagingLibraries();

}  // namespace quorvane
