// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/LibraryTexts.h"

#include <QCoreApplication>
#include <QFile>

#include "ui/ElidedLabel.h"

namespace quorvane {

QString shownIconName(const IconRecord& icon) {
  QString name = QFile::decodeName(icon.name.c_str());
  for (const char* ending : {".icns", ".png"}) {
    if (name.size() > 5 && name.endsWith(QLatin1String(ending))) name.chop(static_cast<int>(qstrlen(ending)));
  }
  return visibleText(name);
}

QString builtinName(const QString& name) {
  const QByteArray key = name.toUtf8();
  const QString shown = QCoreApplication::translate("BuiltinLibrary", key.constData());
  // A folder with an emblem on it is called after the emblem.
  return shown == name ? QCoreApplication::translate("Emblems", key.constData()) : shown;
}

QString iconCount(int icons) {
  return icons == 1 ? QCoreApplication::translate("Library", "1 icon")
                    : QCoreApplication::translate("Library", "%n icons", nullptr, icons);
}

}  // namespace quorvane
