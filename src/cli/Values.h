// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <optional>
#include <string>
#include <string_view>

#include "foundation/base/Geometry.h"
#include "foundation/base/Result.h"

namespace quorvane::cli {

/// A finite number in the form 12, -0.5 or 1e3, whatever the locale; the whole text must be one.
std::optional<double> parseNumber(std::string_view text);
/// A number as a person would write it.
std::string shortNumber(double value);
/// #rgb, #rrggbb, #rrggbbaa (alpha last) or a colour's name.
Result<QColor> parseColor(std::string_view text);
/// "X,Y".
Result<Point> parsePoint(std::string_view text);
/// Label text with \n as line break and \\ as backslash; other backslashes stand for themselves. Must be UTF-8.
Result<QString> parseLabel(std::string_view text);

}  // namespace quorvane::cli
