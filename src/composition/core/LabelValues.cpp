// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/LabelValues.h"

#include <QFontDatabase>
#include <QFontInfo>

namespace quorvane {

QString LabelFont::displayName() const {
  return style.isEmpty() ? family : family + QLatin1Char(' ') + style;
}

LabelFont systemFont(double size) {
  // Without a desktop the system font is an alias; the family that it stands for is what can be named.
  return {QFontInfo(QFontDatabase::systemFont(QFontDatabase::GeneralFont)).family(), QString(), size};
}

}  // namespace quorvane
