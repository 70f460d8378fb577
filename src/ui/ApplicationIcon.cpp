// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ApplicationIcon.h"

#include <QBuffer>
#include <QImageReader>
#include <QPixmap>

#include "ui/WindowResources.h"

namespace quorvane {

QIcon applicationIcon(const QString& themeName) {
  const QIcon themed = QIcon::fromTheme(themeName);
  // A theme's icon may be there by name alone.
  if (!themed.availableSizes().isEmpty()) return themed;
  QIcon own;
  for (const int side : {16, 32, 48, 128}) {
    QByteArray bytes = windowResource(QStringLiteral("application/%1.png").arg(side));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "png");
    // Else every plug-in for pictures is loaded and asked first, a twentieth of the program's start.
    reader.setAutoDetectImageFormat(false);
    own.addPixmap(QPixmap::fromImage(reader.read()));
  }
  return own;
}

}  // namespace quorvane
