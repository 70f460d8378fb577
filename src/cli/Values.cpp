// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Values.h"

#include <charconv>
#include <cmath>
#include <cstdio>

#include "cli/Terminal.h"
#include "foundation/base/Limits.h"

namespace quorvane::cli {

std::optional<double> parseNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::string shortNumber(double value) {
  char text[32];
  const auto [end, error] = std::to_chars(text, text + sizeof text, value);
  return error == std::errc() ? std::string(text, end) : std::string();
}

Result<QColor> parseColor(std::string_view text) {
  const Error wrong =
      Error::invalidInput("'" + printable(text) + "' is no colour; use #rgb, #rrggbb, #rrggbbaa or a name");
  if (!text.starts_with('#')) {
    const QString name = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    if (!QColor::isValidColor(name) || name.startsWith(u'#')) return wrong;
    return QColor(name);
  }
  std::string digits(text.substr(1));
  if (digits.size() == 3) digits = {digits[0], digits[0], digits[1], digits[1], digits[2], digits[2]};
  if (digits.size() == 6) digits += "ff";
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  if (digits.size() != 8 || error != std::errc() || end != digits.data() + digits.size()) return wrong;
  const auto part = [value](int shift) { return static_cast<int>(value >> shift & 0xFFU); };
  return QColor(part(24), part(16), part(8), part(0));
}

Result<Point> parsePoint(std::string_view text) {
  const std::size_t comma = text.find(',');
  const auto x = parseNumber(text.substr(0, comma));
  const auto y = comma == std::string_view::npos ? std::nullopt : parseNumber(text.substr(comma + 1));
  if (!x || !y || std::abs(*x) > 1e6 || std::abs(*y) > 1e6)
    return Error::invalidInput("--center takes X,Y, numbers within a million, not '" + printable(text) + "'");
  return Point{static_cast<float>(*x), static_cast<float>(*y)};
}

Result<QString> parseLabel(std::string_view text) {
  if (!isUtf8(text)) return Error::invalidInput("the label is not UTF-8 text");
  if (text.size() > limits::labelBytes)
    return Error::tooLarge("the label is longer than " + std::to_string(limits::labelBytes) + " bytes");
  std::string label;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char next = i + 1 < text.size() ? text[i + 1] : '\0';
    if (text[i] == '\\' && (next == 'n' || next == '\\')) {
      label.push_back(next == 'n' ? '\n' : '\\');
      ++i;
    } else {
      label.push_back(text[i]);
    }
  }
  return QString::fromStdString(label);
}

}  // namespace quorvane::cli
