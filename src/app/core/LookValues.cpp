// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/LookValues.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "app/core/EffectPresets.h"
#include "composition/core/Emblems.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Text.h"

namespace quorvane {

namespace {

std::optional<double> ofOverlay(const Look& look, float value) {
  return look.overlay.hasDrawing() ? std::optional<double>(value) : std::nullopt;
}

constexpr auto numbers = std::to_array<LookNumber>({
    {"size", 1, 2000, [](Look& look, double value) { look.fontSize = value; },
     [](const Look& look) { return look.fontSize; }},
    {"line-spacing", 0, 100, [](Look& look, double value) { look.lineSpacingFactor = static_cast<float>(value); },
     [](const Look& look) -> std::optional<double> { return look.lineSpacingFactor; }},
    {"shear", -100, 100, [](Look& look, double value) { look.shearFactor = static_cast<float>(value); },
     [](const Look& look) -> std::optional<double> { return look.shearFactor; }},
    {"rotate", -36000, 36000, [](Look& look, double value) { look.rotation = static_cast<float>(value); },
     [](const Look& look) -> std::optional<double> { return look.rotation; }},
    {"opacity", 0, 1, [](Look& look, double value) { look.opacity = static_cast<float>(value); },
     [](const Look& look) -> std::optional<double> { return look.opacity; }},
    {"overlay-size", 4, 256, [](Look& look, double value) { look.overlay.size = static_cast<float>(value); },
     [](const Look& look) { return ofOverlay(look, look.overlay.size); }},
    {"overlay-opacity", 0, 1, [](Look& look, double value) { look.overlay.opacity = static_cast<float>(value); },
     [](const Look& look) { return ofOverlay(look, look.overlay.opacity); }},
});

constexpr auto names = std::to_array<std::string_view>(
    {"label", "font", "size", "color", "effect", "line-spacing", "shear", "rotate", "opacity", "center", "tint",
     "overlay", "overlay-center", "overlay-size", "overlay-color", "overlay-opacity"});

constexpr std::string_view noneName = "none";
constexpr std::string_view autoName = "auto";
constexpr std::string_view emblemPrefix = "emblem:";
constexpr std::string_view emojiPrefix = "emoji:";

QString text(std::string_view bytes) {
  return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

Result<std::optional<QColor>> parseOptionalColor(std::string_view text, std::string_view noColor) {
  if (text == noColor) return std::optional<QColor>();
  return std::optional(TRY(parseColor(text)));
}

Result<OverlayDrawing> emblemDrawingNamed(std::string_view name) {
  if (emblemNamed(text(name)) != nullptr) return OverlayDrawing(OverlayEmblem{text(name)});
  std::vector<std::string> known;
  for (const Emblem& emblem : emblems()) known.push_back(emblem.name.toStdString());
  const std::string nearest = nearestWord(name, known);
  return Error::invalidInput("there is no emblem '" + excerpt(name) + "'" +
                             (nearest.empty() ? "" : ", did you mean '" + nearest + "'?"));
}

}  // namespace

std::span<const LookNumber> lookNumbers() {
  return numbers;
}

std::span<const std::string_view> lookValueNames() {
  return names;
}

Result<void> checkLookNumber(const LookNumber& number, double value, std::string_view text, std::string_view prefix) {
  if (value >= number.least && value <= number.most) return {};
  return Error::invalidInput(std::string(prefix) + std::string(number.name) + " takes a number from " +
                             shortNumber(number.least) + " to " + shortNumber(number.most) + ", not '" + excerpt(text) +
                             "'");
}

Result<void> setLookValue(Look& look, std::string_view name, std::string_view text, std::string_view prefix) {
  if (std::ranges::find(names, name) == names.end())
    return Error(ErrorKind::NotFound, "there is no value '" + excerpt(name) + "' of a look");
  if (text.empty()) return {};
  if (const auto* number = std::ranges::find(numbers, name, &LookNumber::name); number != numbers.end()) {
    const double value = parseNumber(text).value_or(std::nan(""));
    TRY_VOID(checkLookNumber(*number, value, text, prefix));
    number->set(look, value);
  } else if (name == "label") {
    look.label = TRY(parseLabel(text));
  } else if (name == "font") {
    if (text.size() > limits::fontNameBytes)
      return Error::tooLarge("the font's name is longer than " + std::to_string(limits::fontNameBytes) + " bytes");
    look.fontName = text;
  } else if (name == "color") {
    look.color = TRY(parseColor(text));
  } else if (name == "center") {
    look.labelCenter = TRY(parsePoint(text, name, prefix));
  } else if (name == "tint") {
    look.tint = TRY(parseOptionalColor(text, noneName));
  } else if (name == "overlay") {
    look.overlay.drawing = TRY(parseOverlay(text));
  } else if (name == "overlay-center") {
    look.overlay.center = TRY(parsePoint(text, name, prefix));
  } else if (name == "overlay-color") {
    look.overlay.color = TRY(parseOptionalColor(text, autoName));
  } else {
    const auto tag = effectTagNamed(text);
    if (!tag) return Error::invalidInput("there is no effect '" + excerpt(text) + "'; use " + effectNames());
    look.effectTag = *tag;
  }
  return {};
}

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
      Error::invalidInput("'" + excerpt(text) + "' is no colour; use #rgb, #rrggbb, #rrggbbaa or a name");
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

std::string colorText(const QColor& color) {
  const QColor rgb = color.toRgb();
  const QString alpha = rgb.alpha() == 255 ? QString() : QStringLiteral("%1").arg(rgb.alpha(), 2, 16, QLatin1Char('0'));
  return (rgb.name(QColor::HexRgb) + alpha).toStdString();
}

bool isOverlayFile(std::string_view text) {
  return !text.empty() && text != noneName && !text.starts_with(emblemPrefix) && !text.starts_with(emojiPrefix);
}

Result<OverlayDrawing> parseOverlay(std::string_view text) {
  if (text == noneName) return OverlayDrawing();
  if (text.starts_with(emblemPrefix)) return emblemDrawingNamed(text.substr(emblemPrefix.size()));
  if (!text.starts_with(emojiPrefix))
    return Error::invalidInput("'" + excerpt(text) + "' is no overlay; use emblem:NAME, emoji:X or none");
  const std::string_view emoji = text.substr(emojiPrefix.size());
  const Error wrong = Error::invalidInput("emoji: takes one emoji or other character, not '" + excerpt(emoji) + "'");
  if (!isUtf8(emoji)) return wrong;
  const auto parsed = overlayEmoji(QString::fromUtf8(emoji.data(), static_cast<qsizetype>(emoji.size())));
  if (!parsed) return wrong;
  return OverlayDrawing(*parsed);
}

std::optional<std::string> overlayText(const OverlayDrawing& drawing) {
  if (const auto* emblem = std::get_if<OverlayEmblem>(&drawing))
    return std::string(emblemPrefix) + emblem->name.toStdString();
  if (const auto* emoji = std::get_if<OverlayEmoji>(&drawing))
    return std::string(emojiPrefix) + emoji->text.toStdString();
  return std::nullopt;
}

Result<Point> parsePoint(std::string_view text, std::string_view name, std::string_view prefix) {
  const std::size_t comma = text.find(',');
  const auto x = parseNumber(text.substr(0, comma));
  const auto y = comma == std::string_view::npos ? std::nullopt : parseNumber(text.substr(comma + 1));
  if (!x || !y || std::abs(*x) > 1e6 || std::abs(*y) > 1e6)
    return Error::invalidInput(std::string(prefix) + std::string(name) + " takes X,Y, numbers within a million, not '" +
                               excerpt(text) + "'");
  return Point{static_cast<float>(*x), static_cast<float>(*y)};
}

Result<void> checkLabel(const QString& label) {
  if (static_cast<std::size_t>(label.toUtf8().size()) > limits::labelBytes)
    return Error::tooLarge("the label is longer than " + std::to_string(limits::labelBytes) + " bytes");
  if (label.contains(QChar(u'\0'))) return Error::invalidInput("the label holds a zero byte");
  return {};
}

Result<QString> parseLabel(std::string_view text) {
  if (!isUtf8(text)) return Error::invalidInput("the label is not UTF-8 text");
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
  QString parsed = QString::fromStdString(label);
  TRY_VOID(checkLabel(parsed));
  return parsed;
}

}  // namespace quorvane
