// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

namespace quorvane {

/// Remembers the values of the last few keys. A value is made once, by the first who asks; others who ask meanwhile
/// wait for it. Safe to share between threads. Keys are compared with ==, one after the other: for small caches.
template <typename Key, typename Value>
class BoundedCache {
 public:
  explicit BoundedCache(std::size_t most) : _most(most) {}

  /// The value of the key, made by `make` when it is not there (or no more). `make` must not ask the same cache.
  template <typename Make>
  Value get(const Key& key, const Make& make) {
    const std::shared_ptr<Entry> entry = entryOf(key);
    const std::lock_guard lock(entry->mutex);
    if (!entry->value) entry->value.emplace(make());
    return *entry->value;
  }

 private:
  struct Entry {
    explicit Entry(Key wanted) : key(std::move(wanted)) {}
    const Key key;
    std::mutex mutex;  ///< guards the value
    std::optional<Value> value;
  };

  std::shared_ptr<Entry> entryOf(const Key& key) {
    const std::lock_guard lock(_mutex);
    const auto found = std::ranges::find_if(_entries, [&](const auto& entry) { return entry->key == key; });
    if (found != _entries.end()) {
      _entries.splice(_entries.begin(), _entries, found);
    } else {
      _entries.push_front(std::make_shared<Entry>(key));
      if (_entries.size() > _most) _entries.pop_back();
    }
    return _entries.front();
  }

  const std::size_t _most;
  std::mutex _mutex;                           ///< guards the list
  std::list<std::shared_ptr<Entry>> _entries;  ///< last used first
};

}  // namespace quorvane
