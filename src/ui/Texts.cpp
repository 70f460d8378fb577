// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Texts.h"

#include <QRegularExpression>

namespace quorvane {

QString filled(const QString& format, const QStringList& arguments) {
  static const QRegularExpression place(QStringLiteral("%(@|d|\\.0f)"));
  QString text;
  qsizetype from = 0;
  auto places = place.globalMatch(format);
  for (const QString& argument : arguments) {
    if (!places.hasNext()) break;
    const QRegularExpressionMatch found = places.next();
    text.append(QStringView(format).mid(from, found.capturedStart() - from));
    text += argument;
    from = found.capturedEnd();
  }
  return text.append(QStringView(format).mid(from));
}

}  // namespace quorvane
