// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/DefaultsDictionary.h"
#include "foundation/SettingsStorage.h"
#include "foundation/base/Geometry.h"

namespace quorvane {

/// The user's settings: values by key in a storage, and behind them factory values that are registered by every run
/// anew and never written.
///
/// Every change is written at once, but see hold(). Where that fails it holds in memory, is tried again with the next
/// change and by synchronize(), and there is one line in the log; nothing is lost or waited for long. Values keep their
/// types over a restart. A key whose value is of another type than asked for, or cannot be read, gives what a missing
/// one gives.
///
/// Belongs to one thread. The storage must live longer.
class UserDefaults {
 public:
  /// Told after each change, by this object or found by refresh(), with the keys whose kept values are others now. May
  /// change settings itself.
  using Observer = std::function<void(const QStringList& keys)>;

  explicit UserDefaults(SettingsStorage& storage);
  UserDefaults(const UserDefaults&) = delete;
  UserDefaults& operator=(const UserDefaults&) = delete;

  /// Values for keys that have none in the storage; of one key the last registered one counts.
  void registerDefaults(const DefaultsDictionary& dictionary);

  /// The value as settingsValue() describes it; invalid when there is none.
  [[nodiscard]] QVariant objectForKey(const QString& key) const;
  /// What cannot be kept, by its type or its size, is refused with a line in the log, and the old value stays. An
  /// invalid value removes the key.
  void setObject(const QVariant& value, const QString& forKey);
  void removeObjectForKey(const QString& key);

  /// Numbers count as text.
  [[nodiscard]] std::optional<QString> stringForKey(const QString& key) const;
  [[nodiscard]] QString stringForKey(const QString& key, const QString& otherwise) const;
  /// Of a text "true" and "yes", in any case, and numbers other than 0.
  [[nodiscard]] bool boolForKey(const QString& key) const;
  /// See integerOf(), realOf().
  [[nodiscard]] qint64 integerForKey(const QString& key) const;
  [[nodiscard]] float floatForKey(const QString& key) const;
  [[nodiscard]] double doubleForKey(const QString& key) const;
  [[nodiscard]] std::optional<QVariantList> arrayForKey(const QString& key) const;
  /// A list of nothing but text.
  [[nodiscard]] std::optional<QStringList> stringArrayForKey(const QString& key) const;
  [[nodiscard]] std::optional<QByteArray> dataForKey(const QString& key) const;
  void setString(const QString& value, const QString& forKey) { setObject(value, forKey); }
  void setBool(bool value, const QString& forKey) { setObject(value, forKey); }
  void setInteger(qint64 value, const QString& forKey) { setObject(value, forKey); }
  void setFloat(float value, const QString& forKey) { setObject(value, forKey); }
  void setDouble(double value, const QString& forKey) { setObject(value, forKey); }
  void setArray(const QVariantList& value, const QString& forKey) { setObject(value, forKey); }
  void setData(const QByteArray& value, const QString& forKey) { setObject(value, forKey); }

  /// One data value each (see ValueArchives.h). An invalid colour and a font that cannot be
  /// packed remove the key.
  [[nodiscard]] std::optional<QColor> colorForKey(const QString& key) const;
  void setColor(const QColor& color, const QString& forKey);
  [[nodiscard]] std::optional<FontDescription> fontForKey(const QString& key) const;
  void setFont(const FontDescription& font, const QString& forKey);

  /// Kept as the whole seconds since the beginning of 2001 (UTC), rounded toward zero, in 32 bits; an invalid date
  /// removes the key. They are read in single precision, so what comes back may be up to 64 seconds off: 400,000,123
  /// comes back as 400,000,128. Nothing for a date that is not later than the beginning.
  [[nodiscard]] std::optional<QDateTime> dateForKey(const QString& key) const;
  void setDate(const QDateTime& date, const QString& forKey);

  /// An array of two numbers; (0, 0) when it is missing.
  [[nodiscard]] Point pointForKey(const QString& key) const;
  void setPoint(Point point, const QString& forKey);

  /// Counts up by one and returns the new count. Processes that count at once lose no count, also when some could not
  /// be written at first.
  qint64 incrementIntegerForKey(const QString& key);

  /// Until release(), changes are seen but not written: for what changes many times a second while something is
  /// dragged. Both may be called any number of times. The end of this object writes nothing, but synchronize() does.
  void hold() { _isHeld = true; }
  void release();

  /// Writes what is not written yet, and reads what others have changed.
  Result<void> synchronize();
  /// Reads again when another process has changed the storage; true when it had. Cheap: for whenever a window becomes
  /// active.
  bool refresh();

  /// Tells the observer for as long as what is returned lives.
  [[nodiscard]] std::shared_ptr<void> observe(Observer observer);

 private:
  void _change(const QString& key, const SettingsChange& change);
  Result<void> _write();
  Result<void> _read();
  void _noteFailure(const Error& failure);
  /// Takes over what the storage holds, with the changes it has not taken yet on top, and tells the observers.
  void _adopt(const QVariantMap& stored);

  SettingsStorage& _storage;
  QVariantMap _registered;
  QVariantMap _stored;       ///< as last seen in the storage
  QVariantMap _values;       ///< the same with _pending
  SettingsChanges _pending;  ///< not written yet
  bool _isHeld = false;
  QStringList _held;     ///< changed since hold()
  std::string _failure;  ///< the last failure, which is not logged again
  std::vector<std::weak_ptr<Observer>> _observers;
};

}  // namespace quorvane
