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

/// The names of all values of a look: label, font, color, effect, center, those of tint and overlay, and the numbers.
std::span<const std::string_view> lookValueNames();

/// Sets one value of a look from the text that a person types for it; an empty text leaves it as it is. In a complaint
/// the name stands behind `prefix` ("--" for options). An unknown name is ErrorKind::NotFound. A tint or an overlay of
/// "none" takes it away, and an overlay's colour "auto" has it chosen; a picture as an overlay is not read here.
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
/// "X,Y"; in a complaint the name stands behind the prefix.
Result<Point> parsePoint(std::string_view text, std::string_view name, std::string_view prefix);
/// "emblem:NAME", "emoji:X", or "none" for no drawing.
Result<OverlayDrawing> parseOverlay(std::string_view text);
/// The same the other way round; nullopt for a picture and for nothing.
std::optional<std::string> overlayText(const OverlayDrawing& drawing);
/// Whether what a person types for an overlay is the path of a picture: anything that is none of these words.
bool isOverlayFile(std::string_view text);
/// Label text with \n as line break and \\ as backslash; other backslashes stand for themselves. Must be UTF-8.
Result<QString> parseLabel(std::string_view text);
/// Fails on a label that is longer than Limits.h allows, and on one with a zero character.
Result<void> checkLabel(const QString& label);

}  // namespace quorvane
