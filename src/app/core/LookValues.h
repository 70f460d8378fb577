// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "app/core/Look.h"
#include "foundation/base/Geometry.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// One number of a look, by the name that options, columns of rows and look files share.
struct LookNumber {
  std::string_view name;
  double least;
  double most;
  void (*set)(Look&, double);
  /// nullopt: not chosen, the program finds it.
  std::optional<double> (*get)(const Look&);
};
std::span<const LookNumber> lookNumbers();

/// The names of all values of a look: label, font, color, effect, center and the numbers.
std::span<const std::string_view> lookValueNames();

/// Sets one value of a look from the text that a person types for it; an empty text leaves it as it is. In a complaint
/// the name stands behind `prefix` ("--" for options). An unknown name is ErrorKind::NotFound.
Result<void> setLookValue(Look& look, std::string_view name, std::string_view text, std::string_view prefix);

/// Fails on a number outside the value's range, in the same words.
Result<void> checkLookNumber(const LookNumber& number, double value, std::string_view text, std::string_view prefix);

/// A finite number in the form 12, -0.5 or 1e3, whatever the locale; the whole text must be one.
std::optional<double> parseNumber(std::string_view text);
/// A number as a person would write it.
std::string shortNumber(double value);
/// #rgb, #rrggbb, #rrggbbaa (alpha last) or a colour's name.
Result<QColor> parseColor(std::string_view text);
/// #rrggbb, or #rrggbbaa for a colour that is not opaque.
std::string colorText(const QColor& color);
/// "X,Y".
Result<Point> parsePoint(std::string_view text, std::string_view prefix);
/// Label text with \n as line break and \\ as backslash; other backslashes stand for themselves. Must be UTF-8.
Result<QString> parseLabel(std::string_view text);
/// Fails on a label that is longer than Limits.h allows, and on one with a zero character.
Result<void> checkLabel(const QString& label);

}  // namespace quorvane
