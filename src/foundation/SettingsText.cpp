// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/SettingsText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <charconv>

#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

constexpr int settingsVersion = 1;
const QString versionKey = QStringLiteral("quorvane-settings");
const QString valuesKey = QStringLiteral("values");
const QString realKey = QStringLiteral("real");
const QString dataKey = QStringLiteral("data");
const QString dictionaryKey = QStringLiteral("dictionary");

QJsonObject tagged(const QString& tag, const QJsonValue& value) {
  return {{tag, value}};
}

QString base64(const QByteArray& bytes) {
  return QString::fromLatin1(bytes.toBase64());
}

QString realText(double value) {
  char digits[64];
  const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), value);
  return QString::fromLatin1(digits, end - digits);
}

QVariant realFromText(const QJsonValue& value) {
  const std::string text = value.toString().toStdString();
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (text.empty() || error != std::errc() || end != text.data() + text.size()) return {};
  return number;
}

std::optional<QByteArray> bytesFromJson(const QJsonValue& value) {
  if (!value.isString()) return std::nullopt;
  auto decoded = QByteArray::fromBase64Encoding(value.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
  if (!decoded) return std::nullopt;
  return std::move(decoded.decoded);
}

/// Of a settingsValue().
QJsonValue jsonOf(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Bool:
      return value.toBool();
    case QMetaType::LongLong:
      return value.toLongLong();
    case QMetaType::Double:
      return tagged(realKey, realText(value.toDouble()));
    case QMetaType::QByteArray:
      return tagged(dataKey, base64(value.toByteArray()));
    case QMetaType::QVariantList: {
      QJsonArray array;
      for (const QVariant& item : value.toList()) array.append(jsonOf(item));
      return array;
    }
    case QMetaType::QVariantMap: {
      QJsonObject object;
      const QVariantMap map = value.toMap();
      for (auto item = map.begin(); item != map.end(); ++item) object[item.key()] = jsonOf(*item);
      return tagged(dictionaryKey, object);
    }
    default:
      return value.toString();
  }
}

QVariant valueOf(const QJsonValue& json, int depth);

QVariant valueOfObject(const QJsonObject& object, int depth) {
  if (object.size() != 1) return {};
  const QString tag = object.begin().key();
  const QJsonValue inner = object.begin().value();
  if (tag == realKey) return realFromText(inner);
  if (tag == dataKey) {
    const auto bytes = bytesFromJson(inner);
    return bytes ? QVariant(*bytes) : QVariant();
  }
  if (tag != dictionaryKey || !inner.isObject()) return {};
  QVariantMap map;
  const QJsonObject items = inner.toObject();
  for (auto item = items.begin(); item != items.end(); ++item) {
    const QVariant value = valueOf(*item, depth + 1);
    if (!value.isValid()) return {};
    map[item.key()] = value;
  }
  return map;
}

/// Invalid for what we do not understand.
QVariant valueOf(const QJsonValue& json, int depth) {
  if (depth > limits::settingsDepth) return {};
  switch (json.type()) {
    case QJsonValue::Bool:
      return json.toBool();
    case QJsonValue::String:
      return json.toString();
    case QJsonValue::Double:
      return json.toVariant();  // qlonglong for an integer
    case QJsonValue::Array: {
      QVariantList list;
      for (const QJsonValue& item : json.toArray()) {
        list.append(valueOf(item, depth + 1));
        if (!list.back().isValid()) return {};
      }
      return list;
    }
    case QJsonValue::Object:
      return valueOfObject(json.toObject(), depth);
    default:
      return {};
  }
}

}  // namespace

SettingsText::SettingsText() : _whole{{versionKey, settingsVersion}, {valuesKey, QJsonObject()}} {}

Result<SettingsText> SettingsText::parse(ByteView text) {
  if (text.size() > limits::settingsFileBytes)
    return Error::tooLarge("is longer than " + std::to_string(limits::settingsFileBytes) + " bytes, no settings file");
  QJsonParseError error;
  const auto document = QJsonDocument::fromJson(
      QByteArray::fromRawData(reinterpret_cast<const char*>(text.data()), qsizetype(text.size())), &error);
  if (error.error != QJsonParseError::NoError)
    return Error::invalidInput("is no JSON: " + error.errorString().toStdString());
  SettingsText settings;
  settings._whole = document.object();
  const double version = settings._whole.value(versionKey).toDouble();
  if (version > settingsVersion) return Error(ErrorKind::Unsupported, "was written by a newer version of this program");
  if (version != settingsVersion || !settings._whole.value(valuesKey).isObject())
    return Error::invalidInput("is no settings file");
  return settings;
}

QVariantMap SettingsText::values() const {
  QVariantMap map;
  const QJsonObject object = _whole.value(valuesKey).toObject();
  for (auto item = object.begin(); item != object.end(); ++item)
    if (QVariant value = valueOf(*item, 0); value.isValid()) map[item.key()] = std::move(value);
  return map;
}

bool SettingsText::apply(const SettingsChanges& changes) {
  const QJsonObject before = _whole.value(valuesKey).toObject();
  QJsonObject after = before;
  for (const auto& [key, change] : changes) {
    const QVariant value = change.applied(valueOf(after.value(key), 0));
    if (value.isValid()) {
      after[key] = jsonOf(value);
    } else {
      after.remove(key);
    }
  }
  _whole[valuesKey] = after;
  return after != before;
}

Result<Bytes> SettingsText::text() const {
  QByteArray json = QJsonDocument(_whole).toJson(QJsonDocument::Indented);
  // Readers drop this one at the beginning of a text, taking it for a mark.
  json.replace("\xEF\xBB\xBF", "\\ufeff");
  if (static_cast<std::size_t>(json.size()) > limits::settingsFileBytes)
    return Error::tooLarge("the settings are longer than " + std::to_string(limits::settingsFileBytes) + " bytes");
  return Bytes(json.begin(), json.end());
}

}  // namespace quorvane
