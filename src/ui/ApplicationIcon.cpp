// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ApplicationIcon.h"

#include <QPixmap>

#include "ui/WindowResources.h"

namespace quorvane {

QIcon applicationIcon(const QString& themeName) {
  const QIcon themed = QIcon::fromTheme(themeName);
  // A theme's icon may be there by name alone.
  if (!themed.availableSizes().isEmpty()) return themed;
  QIcon own;
  for (const int side : {16, 32, 48, 128}) {
    QPixmap picture;
    picture.loadFromData(windowResource(QStringLiteral("application/%1.png").arg(side)), "PNG");
    own.addPixmap(picture);
  }
  return own;
}

}  // namespace quorvane
