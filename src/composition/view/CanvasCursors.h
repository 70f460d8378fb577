// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>

namespace quorvane {

/// The cursors over a label that can be moved, and over one that is being moved.
inline QCursor canvasOpenHandCursor() {
  return {Qt::OpenHandCursor};
}
inline QCursor canvasClosedHandCursor() {
  return {Qt::ClosedHandCursor};
}

}  // namespace quorvane
