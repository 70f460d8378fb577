// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TextFieldTrimmedStringAdditions.h"

#include <QLineEdit>

namespace quorvane {
namespace {

bool isWhite(QChar character) {
  return character == QLatin1Char('\t') || character.category() == QChar::Separator_Space;
}

}  // namespace

QString trimmedOfWhitespaces(const QString& text) {
  qsizetype from = 0;
  qsizetype to = text.size();
  while (from < to && isWhite(text.at(from))) ++from;
  while (to > from && isWhite(text.at(to - 1))) --to;
  return text.mid(from, to - from);
}

QString trimmedStringValue(const QLineEdit& field) {
  return trimmedOfWhitespaces(field.text());
}

void trimWhitespaces(QLineEdit& field) {
  const QString trimmed = trimmedStringValue(field);
  if (trimmed != field.text()) field.setText(trimmed);
}

}  // namespace quorvane
