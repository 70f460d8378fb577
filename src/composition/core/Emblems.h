// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <string_view>
#include <vector>

namespace quorvane {

/// One of the drawings of one colour that the program brings along (resources/emblems).
struct Emblem {
  QString name;          ///< as looks and the command line call it: small letters and hyphens
  QString title;         ///< for people; English, a key of the table of translations
  QStringList keywords;  ///< what else it may be looked for by

  /// Whether name, title or a keyword holds the text, whatever the letters' case. Everything holds an empty text.
  [[nodiscard]] bool matches(const QString& text) const;
};

/// All of them, in the order of their list.
const std::vector<Emblem>& emblems();
/// Null when there is none of that name.
const Emblem* emblemNamed(const QString& name);

/// The emblem's vector drawing, black on nothing, in a square; the one made for 16 pixels when it is to be drawn that
/// small. Empty when there is none of that name.
QByteArray emblemDrawing(const QString& name, double pixels);

}  // namespace quorvane
