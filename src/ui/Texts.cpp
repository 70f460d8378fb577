// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Texts.h"

#include <QRegularExpression>
#include <QTextDocument>

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

QString withoutAccessKey(const QString& text) {
  QString plain = text;
  // The second of two stands for itself.
  for (qsizetype at = plain.indexOf(u'&'); at >= 0; at = plain.indexOf(u'&', at + 1)) {
    const bool isAppended = at > 0 && plain.at(at - 1) == u'(' && plain.mid(at + 2, 1) == u")";
    isAppended ? plain.remove(at - 1, 4) : plain.remove(at, 1);
  }
  return plain;
}

QString plainToolTip(const QString& text) {
  if (!Qt::mightBeRichText(text)) return text;
  return QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(text.toHtmlEscaped());
}

}  // namespace quorvane
