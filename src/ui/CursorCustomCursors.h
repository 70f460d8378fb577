// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>

namespace quorvane {

/// The program's own cursors: pictures of 16 x 16 units with the hot spot at (8, 8), drawn as sharp as the densest
/// screen asks for, white with a dark outline so that they are seen on any ground. Each is made on the first call and
/// kept; every call gives the same object. They need a QGuiApplication.
const QCursor& crossCursor();
const QCursor& moveCursor();
const QCursor& hvOpenHandCursor();
const QCursor& hvClosedHandCursor();
const QCursor& diagUpCursor();
const QCursor& diagDownCursor();

}  // namespace quorvane
