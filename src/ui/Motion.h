// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace quorvane {

/// Whether something in the widget may slide, fade or run: neither its style nor the desktop's user is against it.
bool wantsMotion(const QWidget& widget);
/// What the desktop's user prefers; Theme keeps it up to date.
void setMotionReduced(bool reduced);

}  // namespace quorvane
