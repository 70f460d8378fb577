// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/NaturalOrder.h"

#include <QCollator>

namespace quorvane {

namespace {

/// The digits at `at`, or what stands before the next digit.
QString piece(const QString& text, qsizetype at) {
  const auto isDigit = [&](qsizetype i) { return text[i] >= u'0' && text[i] <= u'9'; };
  qsizetype end = at;
  while (end < text.size() && isDigit(end) == isDigit(at)) ++end;
  return text.mid(at, end - at);
}

QString withoutZeros(const QString& number) {
  qsizetype zeros = 0;
  while (zeros < number.size() && number[zeros] == u'0') ++zeros;
  return number.mid(zeros);
}

/// As people sort: numbers by their value, letters by the language's rules whatever their case. A collator alone does
/// neither in the locale "C".
int comparePieces(const QCollator& order, const QString& a, const QString& b) {
  const auto isNumber = [](const QString& text) { return text[0] >= u'0' && text[0] <= u'9'; };
  if (!isNumber(a) || !isNumber(b)) return order.compare(a, b);
  const QString left = withoutZeros(a);
  const QString right = withoutZeros(b);
  return left.size() != right.size() ? (left.size() < right.size() ? -1 : 1) : left.compare(right);
}

}  // namespace

bool comesBefore(const QString& a, const QString& b) {
  const QCollator order;
  const QString left = a.toCaseFolded();
  const QString right = b.toCaseFolded();
  qsizetype i = 0;
  qsizetype j = 0;
  while (i < left.size() && j < right.size()) {
    const QString first = piece(left, i);
    const QString second = piece(right, j);
    if (const int compared = comparePieces(order, first, second); compared != 0) return compared < 0;
    i += first.size();
    j += second.size();
  }
  if (i < left.size() || j < right.size()) return i >= left.size();
  return a < b;
}

}  // namespace quorvane
