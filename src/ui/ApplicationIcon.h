// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QString>

namespace quorvane {

/// The program's icon for its windows: the desktop's theme's of that name, else the embedded one at 16, 32, 48 and 128
/// pixels. A program that is not installed is in no theme.
QIcon applicationIcon(const QString& themeName);

}  // namespace quorvane
