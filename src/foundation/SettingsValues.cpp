// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/SettingsValues.h"

#include <cmath>
#include <limits>

#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

constexpr qint64 least = std::numeric_limits<qint64>::min();
constexpr qint64 most = std::numeric_limits<qint64>::max();

qint64 sum(qint64 a, qint64 b) {
  qint64 result = 0;
  if (__builtin_add_overflow(a, b, &result)) return b > 0 ? most : least;
  return result;
}

qint64 integerOfReal(double value) {
  if (std::isnan(value)) return 0;
  if (value >= 0x1p63) return most;
  if (value < -0x1p63) return least;
  return static_cast<qint64>(value);
}

QVariant settingsValue(const QVariant& value, int depth) {
  if (depth > limits::settingsDepth) return {};
  switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QByteArray:
      return value;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
      return value.toLongLong();
    case QMetaType::ULong:
    case QMetaType::ULongLong: {
      const auto number = value.toULongLong();
      return number <= static_cast<qulonglong>(most) ? QVariant(static_cast<qlonglong>(number)) : QVariant();
    }
    case QMetaType::Float:
      return value.toDouble();
    case QMetaType::QStringList:
    case QMetaType::QVariantList: {
      QVariantList list;
      for (const QVariant& item : value.toList()) {
        list.append(settingsValue(item, depth + 1));
        if (!list.back().isValid()) return {};
      }
      return list;
    }
    case QMetaType::QVariantMap: {
      QVariantMap map = value.toMap();
      for (auto item = map.begin(); item != map.end(); ++item) {
        *item = settingsValue(*item, depth + 1);
        if (!item->isValid()) return {};
      }
      return map;
    }
    default:
      return {};
  }
}

}  // namespace

QVariant settingsValue(const QVariant& value) {
  return settingsValue(value, 0);
}

qint64 integerOf(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::LongLong:
      return value.toLongLong();
    case QMetaType::Double:
      return integerOfReal(value.toDouble());
    case QMetaType::QString: {
      bool isInteger = false;
      const qint64 number = value.toString().toLongLong(&isInteger);
      return isInteger ? number : integerOfReal(value.toString().toDouble());
    }
    default:
      return 0;
  }
}

double realOf(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Double:
      return value.toDouble();
    case QMetaType::QString:
      return value.toString().toDouble();
    default:
      return 0;
  }
}

SettingsChange SettingsChange::set(QVariant value) {
  SettingsChange change;
  change._replaces = true;
  change._value = std::move(value);
  return change;
}

SettingsChange SettingsChange::add(qint64 amount, QVariant ifMissing) {
  SettingsChange change;
  change._amount = amount;
  change._ifMissing = std::move(ifMissing);
  return change;
}

SettingsChange SettingsChange::then(const SettingsChange& later) const {
  if (later._replaces) return later;
  SettingsChange both = *this;
  if (both._replaces) {
    both._value = later.applied(both._value);
    return both;
  }
  if (both._amount == 0) both._ifMissing = later._ifMissing;
  both._amount = sum(both._amount, later._amount);
  return both;
}

QVariant SettingsChange::applied(const QVariant& old) const {
  if (_replaces) return _value;
  if (_amount == 0) return old;
  return sum(integerOf(old.isValid() ? old : _ifMissing), _amount);
}

QVariantMap changedSettings(QVariantMap values, const SettingsChanges& changes) {
  for (const auto& [key, change] : changes) {
    const QVariant value = change.applied(values.value(key));
    if (value.isValid()) {
      values[key] = value;
    } else {
      values.remove(key);
    }
  }
  return values;
}

}  // namespace quorvane
