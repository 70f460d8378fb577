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
  return QCoreApplication::translate("BuiltinLibrary", name.toUtf8().constData());
}

QString iconCount(int icons) {
  return icons == 1 ? QCoreApplication::translate("Library", "1 icon")
                    : QCoreApplication::translate("Library", "%n icons", nullptr, icons);
}

}  // namespace quorvane
