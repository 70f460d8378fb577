// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "foundation/SettingsValues.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// Where settings lie between two runs, shared by all processes of the user.
class SettingsStorage {
 public:
  virtual ~SettingsStorage() = default;

  /// All that is kept now.
  virtual Result<QVariantMap> read() = 0;
  /// Makes changes to what is kept now, all or none, and returns what is kept then. Others can make no changes between.
  /// A failure means none; that all were made but may not outlast a crash of the system is for settle() to tell.
  virtual Result<QVariantMap> update(const SettingsChanges& changes) = 0;
  /// Makes what was changed last, where that could not be done at once.
  virtual Result<void> settle() { return {}; }
  /// Whether somebody else may have changed what was last returned here; costs next to nothing.
  [[nodiscard]] virtual bool hasChanged() const = 0;
};

/// Keeps them in memory only, for tests.
class MemorySettings : public SettingsStorage {
 public:
  Result<QVariantMap> read() override {
    if (failure) return *failure;
    return _last = values;
  }
  Result<QVariantMap> update(const SettingsChanges& changes) override {
    if (failure) return *failure;
    return _last = values = changedSettings(values, changes);
  }
  [[nodiscard]] bool hasChanged() const override { return values != _last; }

  QVariantMap values;
  std::optional<Error> failure;  ///< what every call fails with

 private:
  QVariantMap _last;
};

}  // namespace quorvane
