// SPDX-License-Identifier: GPL-3.0-or-later
// What is read from and written as the plain values that settings have.
#include <algorithm>
#include <cmath>
#include <limits>

#include "foundation/UserDefaults.h"

namespace quorvane {

namespace {

constexpr qint64 referenceMilliseconds = 978'307'200'000;  // 2001-01-01 00:00:00 UTC

qint64 to32Bits(qint64 value) {
  return std::clamp<qint64>(value, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max());
}

bool isNumber(const QVariant& value) {
  return value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Double;
}

template <typename T>
std::optional<T> ofType(const QVariant& value) {
  if (value.typeId() != qMetaTypeId<T>()) return std::nullopt;
  return value.value<T>();
}

}  // namespace

std::optional<QString> UserDefaults::stringForKey(const QString& key) const {
  const QVariant value = objectForKey(key);
  if (value.typeId() == QMetaType::Bool) return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
  if (isNumber(value)) return value.toString();
  return ofType<QString>(value);
}

QString UserDefaults::stringForKey(const QString& key, const QString& otherwise) const {
  return stringForKey(key).value_or(otherwise);
}

bool UserDefaults::boolForKey(const QString& key) const {
  const QVariant value = objectForKey(key);
  if (const auto text = ofType<QString>(value))
    if (text->compare(u"true", Qt::CaseInsensitive) == 0 || text->compare(u"yes", Qt::CaseInsensitive) == 0)
      return true;
  return realOf(value) != 0;
}

qint64 UserDefaults::integerForKey(const QString& key) const {
  return integerOf(objectForKey(key));
}

float UserDefaults::floatForKey(const QString& key) const {
  return static_cast<float>(doubleForKey(key));
}

double UserDefaults::doubleForKey(const QString& key) const {
  return realOf(objectForKey(key));
}

std::optional<QVariantList> UserDefaults::arrayForKey(const QString& key) const {
  return ofType<QVariantList>(objectForKey(key));
}

std::optional<QStringList> UserDefaults::stringArrayForKey(const QString& key) const {
  const auto list = arrayForKey(key);
  if (!list) return std::nullopt;
  QStringList texts;
  for (const QVariant& item : *list) {
    if (item.typeId() != QMetaType::QString) return std::nullopt;
    texts.append(item.toString());
  }
  return texts;
}

std::optional<QByteArray> UserDefaults::dataForKey(const QString& key) const {
  return ofType<QByteArray>(objectForKey(key));
}

std::optional<QColor> UserDefaults::colorForKey(const QString& key) const {
  const auto bytes = dataForKey(key);
  return bytes ? unarchiveColor(*bytes) : std::nullopt;
}

void UserDefaults::setColor(const QColor& color, const QString& forKey) {
  setObject(DefaultsDictionary::encoded(color), forKey);
}

std::optional<FontDescription> UserDefaults::fontForKey(const QString& key) const {
  const auto bytes = dataForKey(key);
  return bytes ? unarchiveFont(*bytes) : std::nullopt;
}

void UserDefaults::setFont(const FontDescription& font, const QString& forKey) {
  setObject(DefaultsDictionary::encoded(font), forKey);
}

std::optional<QDateTime> UserDefaults::dateForKey(const QString& key) const {
  // Single precision is how these dates are defined, rounding and all.
  const auto seconds = static_cast<float>(to32Bits(integerForKey(key)));
  if (!(seconds > 0)) return std::nullopt;
  const double milliseconds = static_cast<double>(seconds) * 1000;
  return QDateTime::fromMSecsSinceEpoch(referenceMilliseconds + static_cast<qint64>(milliseconds), Qt::UTC);
}

void UserDefaults::setDate(const QDateTime& date, const QString& forKey) {
  if (!date.isValid()) return removeObjectForKey(forKey);
  constexpr qint64 farOff = qint64{1} << 60;  // from here on the difference could not be taken
  const qint64 milliseconds = std::clamp(date.toMSecsSinceEpoch(), -farOff, farOff);
  setInteger(to32Bits((milliseconds - referenceMilliseconds) / 1000), forKey);
}

Point UserDefaults::pointForKey(const QString& key) const {
  const auto pair = arrayForKey(key);
  if (!pair || pair->size() != 2 || !isNumber(pair->at(0)) || !isNumber(pair->at(1))) return {};
  return {.x = pair->at(0).toFloat(), .y = pair->at(1).toFloat()};
}

void UserDefaults::setPoint(Point point, const QString& forKey) {
  setArray({static_cast<double>(point.x), static_cast<double>(point.y)}, forKey);
}

}  // namespace quorvane
