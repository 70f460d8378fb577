// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

namespace quorvane {

/// Does the work once the window has shown its first frame, or after a second when it shows none (it may start
/// minimised); not at all when the window is gone by then.
void afterFirstFrame(QWidget& window, std::function<void()> work);

}  // namespace quorvane
