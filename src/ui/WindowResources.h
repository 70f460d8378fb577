// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace quorvane {

/// The bytes of an embedded picture, `name` being "actions/open.svg", "cursors/cursor_cross.svg" or
/// "application/48.png", or of the licence, "licence.txt"; empty when there is none of that name.
QByteArray windowResource(const QString& name);

}  // namespace quorvane
