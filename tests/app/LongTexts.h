// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>

namespace quorvane::test {

/// Every text two fifths longer, as in a wordy language.
class LongTexts : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char*, const char* text, const char*, int) const override {
    const QString source = QString::fromUtf8(text);
    if (source.size() < 3 || source.contains(QLatin1Char('%'))) return source;
    return source + QStringLiteral("ungenheit und mehr").left(std::max<qsizetype>(2, source.size() * 2 / 5));
  }
};

}  // namespace quorvane::test
