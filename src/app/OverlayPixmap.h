// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPixmap>

#include "composition/core/IconOverlay.h"

namespace quorvane {

/// What an overlay shows, fitted into `side` logical pixels each way. The colour is for what has none of its own.
QPixmap overlayPixmap(const OverlayDrawing& drawing, int side, const QColor& color, double density);

}  // namespace quorvane
