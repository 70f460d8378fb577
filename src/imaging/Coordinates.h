// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTransform>

namespace quorvane {

/// The one place where y changes its direction: from upwards (every interface of ours, origin at the bottom left) to
/// downwards (rows of pixels and the drawing library, origin at the top left) in a picture of that height, and back.
inline QTransform flippedTransform(double height) {
  return {1, 0, 0, -1, 0, height};
}

}  // namespace quorvane
