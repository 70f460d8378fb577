// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>
#include <map>

namespace quorvane {

/// The values that settings can have, as variants of exactly these types: bool, qlonglong, double, QString, QByteArray,
/// QVariantList and QVariantMap of the same. Other numbers and string lists become one of them; an invalid variant is
/// what comes out of anything else, and of lists nested deeper than Limits.h allows.
[[nodiscard]] QVariant settingsValue(const QVariant& value);

/// A value as a number: numbers as they are, rounded toward zero and held to the type's ends for integers; true is 1;
/// of a text the number that is the whole of it. 0 for all else.
[[nodiscard]] qint64 integerOf(const QVariant& value);
[[nodiscard]] double realOf(const QVariant& value);

/// What is to become of one setting, whatever it is when that happens.
class SettingsChange {
 public:
  SettingsChange() = default;  ///< leaves it as it is

  static SettingsChange set(QVariant value);  ///< a settingsValue()
  static SettingsChange remove() { return set({}); }
  /// Adds to the integer that is there, or to `ifMissing` when there is none; stops at the type's ends.
  static SettingsChange add(qint64 amount, QVariant ifMissing);

  /// This change and a later one in one.
  [[nodiscard]] SettingsChange then(const SettingsChange& later) const;
  /// What a value becomes; invalid: no value.
  [[nodiscard]] QVariant applied(const QVariant& old) const;

 private:
  bool _replaces = false;
  QVariant _value;  ///< when it replaces
  qint64 _amount = 0;
  QVariant _ifMissing;
};
using SettingsChanges = std::map<QString, SettingsChange>;

/// All of them made.
[[nodiscard]] QVariantMap changedSettings(QVariantMap values, const SettingsChanges& changes);

}  // namespace quorvane
