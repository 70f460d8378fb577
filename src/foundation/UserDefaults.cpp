// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UserDefaults.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "foundation/SettingsText.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Log.h"
#include "foundation/base/Text.h"

namespace quorvane {

namespace {

/// What is no number equals itself here, or observers that write would be told of it without end.
bool isSame(const QVariant& a, const QVariant& b) {
  if (a.typeId() != b.typeId()) return false;
  return a == b || (a.typeId() == QMetaType::Double && std::isnan(a.toDouble()) && std::isnan(b.toDouble()));
}

/// Keys that are in one only, or have other values in the other.
QStringList differentKeys(const QVariantMap& before, const QVariantMap& after) {
  QStringList keys;
  for (auto item = after.begin(); item != after.end(); ++item) {
    const auto old = before.find(item.key());
    if (old == before.end() || !isSame(*old, *item)) keys.append(item.key());
  }
  for (auto item = before.begin(); item != before.end(); ++item)
    if (!after.contains(item.key())) keys.append(item.key());
  return keys;
}

/// One that is too large would keep all others from being written as well.
bool isTooLarge(const QString& key, const QVariant& value) {
  SettingsText alone;
  alone.apply({{key, SettingsChange::set(value)}});
  const auto text = alone.text();
  return !text.ok() || text->size() > limits::settingsValueBytes;
}

}  // namespace

UserDefaults::UserDefaults(SettingsStorage& storage) : _storage(storage) {
  static_cast<void>(_read());
}

void UserDefaults::registerDefaults(const DefaultsDictionary& dictionary) {
  _registered.insert(dictionary.values());
}

QVariant UserDefaults::objectForKey(const QString& key) const {
  const auto own = _values.find(key);
  return own != _values.end() ? *own : _registered.value(key);
}

void UserDefaults::setObject(const QVariant& value, const QString& forKey) {
  if (!value.isValid()) return removeObjectForKey(forKey);
  const QVariant kept = settingsValue(value);
  if (!kept.isValid() || isTooLarge(forKey, kept))
    return logMessage("settings", "cannot keep a value for '" + excerpt(forKey.toStdString()) + "'");
  _change(forKey, SettingsChange::set(kept));
}

void UserDefaults::removeObjectForKey(const QString& key) {
  _change(key, SettingsChange::remove());
}

qint64 UserDefaults::incrementIntegerForKey(const QString& key) {
  _change(key, SettingsChange::add(1, _registered.value(key)));
  return integerForKey(key);
}

Result<void> UserDefaults::synchronize() {
  TRY_VOID(_pending.empty() ? _read() : _write());
  return _storage.settle();
}

bool UserDefaults::refresh() {
  return _storage.hasChanged() && _read().ok();
}

std::shared_ptr<void> UserDefaults::observe(Observer observer) {
  auto kept = std::make_shared<Observer>(std::move(observer));
  _observers.emplace_back(kept);
  return kept;
}

void UserDefaults::_change(const QString& key, const SettingsChange& change) {
  const auto known = _pending.find(key);
  const auto former = known == _pending.end() ? std::nullopt : std::optional(known->second);
  _pending[key] = former.value_or(SettingsChange()).then(change);
  if (_isHeld) {
    _held.append(key);
    return _adopt(_stored);
  }
  if (const auto written = _write(); written.ok()) {
    if (const auto settled = _storage.settle(); !settled.ok()) _noteFailure(settled.error());
  } else if (written.error().kind() == ErrorKind::TooLarge) {
    // There is no room for it, and kept for later it would keep all others from being written as well.
    _pending.erase(key);
    if (former) _pending[key] = *former;
    _adopt(_stored);
  }
}

void UserDefaults::release() {
  _isHeld = false;
  const QStringList held = std::exchange(_held, {});
  if (_pending.empty()) return;
  if (const auto written = synchronize(); written.ok() || written.error().kind() != ErrorKind::TooLarge) return;
  // There is no room, as in _change().
  for (const QString& key : held) _pending.erase(key);
  _adopt(_stored);
}

Result<void> UserDefaults::_write() {
  auto stored = _storage.update(_pending);
  if (stored.ok()) {
    _pending.clear();
    _failure.clear();
    _adopt(*stored);
    return {};
  }
  _noteFailure(stored.error());
  _adopt(_stored);
  return stored.error();
}

Result<void> UserDefaults::_read() {
  auto stored = _storage.read();
  if (!stored.ok()) {
    _noteFailure(stored.error());
    return stored.error();
  }
  _adopt(*stored);
  return {};
}

void UserDefaults::_noteFailure(const Error& failure) {
  if (failure.message() == _failure) return;
  _failure = failure.message();
  logMessage("settings", _failure);
}

void UserDefaults::_adopt(const QVariantMap& stored) {
  const QVariantMap before = _values;
  _stored = stored;
  _values = changedSettings(_stored, _pending);
  std::erase_if(_observers, [](const auto& observer) { return observer.expired(); });
  if (_observers.empty()) return;
  const QStringList keys = differentKeys(before, _values);
  if (keys.isEmpty()) return;
  // A copy: observers may come and go while they are told.
  for (const auto& observer : std::vector(_observers))
    if (const auto alive = observer.lock()) (*alive)(keys);
}

}  // namespace quorvane
