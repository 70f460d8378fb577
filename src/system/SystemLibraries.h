// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "foundation/base/LibraryNotice.h"

namespace quorvane {

/// The libraries that speak to the desktop here.
std::vector<LibraryNotice> systemLibraries();

}  // namespace quorvane
