// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>
#include <QStringList>

namespace quorvane {

/// One of the program's own line icons (resources/actions), "open" for instance. It is drawn anew in the palette's
/// colour of the role whenever it is shown, so it follows light and dark by itself, at any size and density. That of
/// the role Text is for menus, where it stands out on the item that is lit. A null icon when there is none of that
/// name.
QIcon actionIcon(const QString& name, QPalette::ColorRole role = QPalette::ButtonText);

/// The names of all of them.
QStringList actionIconNames();

}  // namespace quorvane
