// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/LookFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <charconv>

#include "app/core/EffectPresets.h"
#include "app/core/LabelPattern.h"
#include "app/core/LookValues.h"
#include "foundation/FileReading.h"
#include "foundation/FileWriting.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Text.h"

namespace quorvane {

namespace {

constexpr int lookVersion = 1;
const QString versionKey = QStringLiteral("quorvane-look");
const QString labelKey = QStringLiteral("label");
const QString baseKey = QStringLiteral("base");
const QString fontKey = QStringLiteral("font");
const QString colorKey = QStringLiteral("color");
const QString effectKey = QStringLiteral("effect");
const QString centerKey = QStringLiteral("center");
const QString tintKey = QStringLiteral("tint");
const QString overlayKey = QStringLiteral("overlay");
const QString overlayPictureKey = QStringLiteral("overlay-picture");
const QString overlayCenterKey = QStringLiteral("overlay-center");
const QString overlayColorKey = QStringLiteral("overlay-color");

QString text(std::string_view bytes) {
  return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// Of a number that was a float the double that is written as the float is: 0.2, not 0.20000000298.
double asWritten(double value) {
  if (static_cast<float>(value) != value) return value;
  char digits[32];
  const auto [end, error] = std::to_chars(digits, digits + sizeof digits, static_cast<float>(value));
  return error == std::errc() ? parseNumber({digits, end}).value_or(value) : value;
}

Error wrongKey(const QString& key, const char* what) {
  return Error::invalidInput("the look's \"" + key.toStdString() + "\" is no " + what);
}

/// Takes keys out of the object, so that those of others remain.
class Keys {
 public:
  explicit Keys(QJsonObject object) : _left(std::move(object)) {}

  /// Undefined when the key is missing; null counts as missing.
  QJsonValue take(const QString& key) {
    const QJsonValue value = _left.take(key);
    return value.isNull() ? QJsonValue(QJsonValue::Undefined) : value;
  }
  Result<std::optional<QString>> takeText(const QString& key) {
    const QJsonValue value = take(key);
    if (value.isUndefined()) return std::optional<QString>();
    if (!value.isString() || !value.toString().isValidUtf16()) return wrongKey(key, "text");
    return std::optional(value.toString());
  }
  [[nodiscard]] const QJsonObject& left() const { return _left; }

 private:
  QJsonObject _left;
};

Result<void> readNumbers(Keys& keys, Look& look) {
  for (const LookNumber& number : lookNumbers()) {
    const QString key = text(number.name);
    const QJsonValue value = keys.take(key);
    if (value.isUndefined()) continue;
    if (!value.isDouble()) return wrongKey(key, "number");
    TRY_VOID(checkLookNumber(number, value.toDouble(), shortNumber(value.toDouble()), ""));
    number.set(look, value.toDouble());
  }
  return {};
}

Result<void> readPoint(Keys& keys, const QString& key, Point& point) {
  const QJsonValue value = keys.take(key);
  if (value.isUndefined()) return {};
  const QJsonArray pair = value.toArray();
  if (pair.size() != 2 || !pair[0].isDouble() || !pair[1].isDouble()) return wrongKey(key, "pair of numbers");
  point =
      TRY(parsePoint(shortNumber(pair[0].toDouble()) + "," + shortNumber(pair[1].toDouble()), key.toStdString(), ""));
  return {};
}

/// A picture comes within the look: one from somebody else names no file of ours.
Result<void> readOverlay(Keys& keys, IconOverlay& overlay) {
  const auto words = TRY(keys.takeText(overlayKey));
  const auto picture = TRY(keys.takeText(overlayPictureKey));
  if (words && picture) return Error::invalidInput("the look's \"overlay\" and \"overlay-picture\" exclude each other");
  if (words) overlay.drawing = TRY(parseOverlay(words->toStdString()));
  if (picture) {
    const auto png = QByteArray::fromBase64Encoding(
        picture->toLatin1(), QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    if (!png) return wrongKey(overlayPictureKey, "base64 text");
    auto read = OverlayPicture::fromPng(Bytes(png.decoded.begin(), png.decoded.end()));
    if (!read)
      return Error(read.error().kind(), "the look's \"overlay-picture\" cannot be used: " + read.error().why());
    overlay.drawing = *std::move(read);
  }
  TRY_VOID(readPoint(keys, overlayCenterKey, overlay.center));
  if (const auto color = TRY(keys.takeText(overlayColorKey))) overlay.color = TRY(parseColor(color->toStdString()));
  return {};
}

void writeOverlay(const IconOverlay& overlay, QJsonObject& object) {
  if (!overlay.hasDrawing()) return;
  if (const auto words = overlayText(overlay.drawing)) object[overlayKey] = text(*words);
  if (const auto* picture = std::get_if<OverlayPicture>(&overlay.drawing)) {
    const QByteArray png = QByteArray::fromRawData(reinterpret_cast<const char*>(picture->png().data()),
                                                   static_cast<qsizetype>(picture->png().size()));
    object[overlayPictureKey] = QString::fromLatin1(png.toBase64());
  }
  object[overlayCenterKey] = QJsonArray{asWritten(overlay.center.x), asWritten(overlay.center.y)};
  if (overlay.color) object[overlayColorKey] = text(colorText(*overlay.color));
}

Result<void> readEffect(Keys& keys, Look& look) {
  // An effect without a name goes by its number.
  const QJsonValue value = keys.take(effectKey);
  if (value.isUndefined()) return {};
  if (value.isDouble() && value.toInt(-1) >= 0) {
    look.effectTag = value.toInt();
    return {};
  }
  if (!value.isString()) return wrongKey(effectKey, "name of an effect");
  return setLookValue(look, "effect", value.toString().toStdString(), "");
}

}  // namespace

Result<SavedLook> lookFromJson(ByteView json) {
  if (json.size() > limits::lookFileBytes)
    return Error::tooLarge("is longer than " + std::to_string(limits::lookFileBytes) + " bytes, no look file");
  QJsonParseError error;
  const auto document = QJsonDocument::fromJson(
      QByteArray(reinterpret_cast<const char*>(json.data()), static_cast<qsizetype>(json.size())), &error);
  if (error.error != QJsonParseError::NoError)
    return Error::invalidInput("is no JSON: " + error.errorString().toStdString());
  Keys keys(document.object());
  const double version = keys.take(versionKey).toDouble();
  if (version < 1) return Error::invalidInput("is no look file");
  if (version > lookVersion) return Error::invalidInput("was written by a newer version of this program");

  SavedLook saved;
  saved.labelPattern = TRY(keys.takeText(labelKey)).value_or(QString());
  TRY_VOID(labelOf(saved.labelPattern, []() -> Result<QString> { return QString(); }));
  if (const auto font = TRY(keys.takeText(fontKey)))
    TRY_VOID(setLookValue(saved.look, "font", font->toStdString(), ""));
  if (const auto color = TRY(keys.takeText(colorKey))) saved.look.color = TRY(parseColor(color->toStdString()));
  if (const auto base = TRY(keys.takeText(baseKey))) {
    saved.base = std::filesystem::path(base->toStdString());
    if (const auto inner = checkInnerPath(*saved.base); !inner)
      return Error::refused("the look's base picture '" + saved.base->string() + "': " + inner.error().why());
  }
  TRY_VOID(readNumbers(keys, saved.look));
  TRY_VOID(readPoint(keys, centerKey, saved.look.labelCenter));
  if (const auto tint = TRY(keys.takeText(tintKey))) saved.look.tint = TRY(parseColor(tint->toStdString()));
  TRY_VOID(readOverlay(keys, saved.look.overlay));
  TRY_VOID(readEffect(keys, saved.look));
  saved.others = keys.left();
  return saved;
}

Result<Bytes> lookToJson(const SavedLook& saved) {
  const Look& look = saved.look;
  QJsonObject object = saved.others;
  object[versionKey] = lookVersion;
  if (!saved.labelPattern.isNull()) object[labelKey] = saved.labelPattern;
  if (saved.base) {
    TRY_VOID(checkInnerPath(*saved.base));
    if (!isUtf8(saved.base->native()))
      return Error::invalidInput("the name of the base picture is no text that a look can hold").at(*saved.base);
    object[baseKey] = text(saved.base->native());
  }
  if (!look.fontName.empty()) object[fontKey] = text(look.fontName);
  object[colorKey] = text(colorText(look.color));
  for (const LookNumber& number : lookNumbers())
    if (const auto value = number.get(look)) object[text(number.name)] = asWritten(*value);
  object[centerKey] = QJsonArray{asWritten(look.labelCenter.x), asWritten(look.labelCenter.y)};
  if (look.tint) object[tintKey] = text(colorText(*look.tint));
  writeOverlay(look.overlay, object);
  const auto presets = effectPresets();
  const auto preset = std::ranges::find(presets, look.effectTag, &EffectPreset::tag);
  object[effectKey] = preset != presets.end() ? QJsonValue(text(preset->name)) : QJsonValue(look.effectTag);
  const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Indented);
  // Indented, what others keep in a look may grow.
  if (static_cast<std::size_t>(json.size()) > limits::lookFileBytes)
    return Error::tooLarge("the look is longer than " + std::to_string(limits::lookFileBytes) + " bytes");
  return Bytes(json.begin(), json.end());
}

Result<ReadLook> readLookFile(const std::filesystem::path& path) {
  auto saved = lookFromJson(TRY(readPlainFile(path, limits::lookFileBytes)));
  if (!saved) return saved.error().at(path);
  ReadLook look{.saved = *std::move(saved), .base = std::nullopt};
  if (look.saved.base) {
    std::error_code error;
    const auto whole = std::filesystem::canonical(path, error);
    if (error) return Error::system(error.value(), "cannot look at").at(path);
    look.base = BaseReference{.path = *look.saved.base, .within = whole.parent_path()};
  }
  return look;
}

Result<std::filesystem::path> innerReference(const BaseReference& base, const std::filesystem::path& path) {
  std::error_code error;
  const auto home = std::filesystem::canonical(path.has_parent_path() ? path.parent_path() : ".", error);
  if (error) return Error::system(error.value(), "cannot open folder").at(path.parent_path());
  const auto picture = std::filesystem::canonical(base.shown(), error);
  if (error) return Error::system(error.value(), "cannot read").at(base.shown());
  std::filesystem::path inner = picture.lexically_relative(home);
  if (!checkInnerPath(inner))
    return Error::refused("a look refers only to pictures in its own folder or below; copy the picture there first")
        .at(base.shown());
  return inner;
}

Result<void> writeLookFile(const std::filesystem::path& path, const SavedLook& saved) {
  return writePlainFile(path, TRY(lookToJson(saved)));
}

}  // namespace quorvane
