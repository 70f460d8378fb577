// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/SettingsTable.h"

#include <cmath>
#include <limits>
#include <optional>

namespace quorvane::settings {

namespace {

FontDescription described(const LabelFont& font) {
  return {.family = font.family, .style = font.style, .size = font.size};
}

template <typename Value>
Value otherwise(const Key<Value>& key) {
  return key.factory != nullptr ? key.factory() : Value();
}

bool isNumber(const QVariant& value) {
  return value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Double;
}

std::optional<bool> asBool(const QVariant& value) {
  if (value.typeId() == QMetaType::Bool || isNumber(value)) return value.toDouble() != 0;
  const QString text = value.typeId() == QMetaType::QString ? value.toString().toLower() : QString();
  for (const char* word : {"true", "yes", "1"})
    if (text == QLatin1String(word)) return true;
  for (const char* word : {"false", "no", "0"})
    if (text == QLatin1String(word)) return false;
  return std::nullopt;
}

}  // namespace

LabelFont factory::labelFont() {
  return systemFont(50);
}

DefaultsDictionary factoryDefaults() {
  DefaultsDictionary dictionary;
  for (const Key<bool>& key :
       {useDefaultColor, useDefaultFont, autoVersionCheck, showDockTip, askToShareOnFacebook, askToRateOnAppStore})
    dictionary.setBool(key.factory(), key.name);
  for (const Key<QColor>& key : {defaultColor, lastUsedColor}) dictionary.setColor(key.factory(), key.name);
  for (const Key<LabelFont>& key : {defaultFont, lastUsedFont}) dictionary.setFont(described(key.factory()), key.name);
  return dictionary;
}

bool value(const UserDefaults& defaults, const Key<bool>& key) {
  const auto read = asBool(defaults.objectForKey(key.name));
  return read ? *read : otherwise(key);
}

qint64 value(const UserDefaults& defaults, const Key<qint64>& key) {
  return defaults.integerForKey(key.name);
}

QString value(const UserDefaults& defaults, const Key<QString>& key) {
  return defaults.stringForKey(key.name, otherwise(key));
}

QColor value(const UserDefaults& defaults, const Key<QColor>& key) {
  const auto color = defaults.colorForKey(key.name);
  return color && color->isValid() ? *color : otherwise(key);
}

LabelFont value(const UserDefaults& defaults, const Key<LabelFont>& key) {
  const auto font = defaults.fontForKey(key.name);
  if (!font || font->family.isEmpty() || !(font->size > 0) || !std::isfinite(font->size)) return otherwise(key);
  return {.family = font->family, .style = font->style, .size = font->size};
}

QList<int> value(const UserDefaults& defaults, const Key<QList<int>>& key) {
  QList<int> rows;
  const auto kept = defaults.arrayForKey(key.name).value_or(QVariantList());
  for (const QVariant& row : kept) {
    const qint64 number = row.typeId() == QMetaType::LongLong ? row.toLongLong() : -1;
    if (number >= 0 && number <= std::numeric_limits<int>::max()) rows.append(static_cast<int>(number));
  }
  return rows;
}

void setValue(UserDefaults& defaults, const Key<bool>& key, bool value) {
  defaults.setBool(value, key.name);
}

void setValue(UserDefaults& defaults, const Key<qint64>& key, qint64 value) {
  defaults.setInteger(value, key.name);
}

void setValue(UserDefaults& defaults, const Key<QString>& key, const QString& value) {
  defaults.setString(value, key.name);
}

void setValue(UserDefaults& defaults, const Key<QColor>& key, const QColor& value) {
  defaults.setColor(value, key.name);
}

void setValue(UserDefaults& defaults, const Key<LabelFont>& key, const LabelFont& value) {
  defaults.setFont(described(value), key.name);
}

void setValue(UserDefaults& defaults, const Key<QList<int>>& key, const QList<int>& value) {
  QVariantList rows;
  for (const int row : value) rows.append(row);
  defaults.setArray(rows, key.name);
}

QColor startColor(const UserDefaults& defaults) {
  return value(defaults, value(defaults, useDefaultColor) ? defaultColor : lastUsedColor);
}

LabelFont startFont(const UserDefaults& defaults) {
  return value(defaults, value(defaults, useDefaultFont) ? defaultFont : lastUsedFont);
}

}  // namespace quorvane::settings
