// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/LabelValues.h"

#include <QFontDatabase>

namespace quorvane {

QString LabelFont::displayName() const {
  return style.isEmpty() ? family : family + QLatin1Char(' ') + style;
}

LabelFont systemFont(double size) {
  return {QFontDatabase::systemFont(QFontDatabase::GeneralFont).family(), QString(), size};
}

}  // namespace quorvane
