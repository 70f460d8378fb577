// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>

#include "iconfamily/IconServices.h"
#include "system/Trash.h"

namespace quorvane {

/// What the library needs of the platform. Owns nothing; what it refers to outlives every set.
struct LibraryServices {
  const IconServices& icons;  ///< icons of folders and of kinds of files
  Trash* trash = nullptr;     ///< where removed files go; none, or one that does not take them: they are deleted
};

/// Called after each of `total` items on the thread that began the work; false ends it there.
using LibraryProgress = std::function<bool(std::size_t done, std::size_t total)>;

}  // namespace quorvane
