// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace quorvane {

/// The bytes of an embedded vector picture, `name` being "actions/open" or "cursors/cursor_cross"; empty when there is
/// none of that name.
QByteArray windowResource(const QString& name);

}  // namespace quorvane
