// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/UserDefaults.h"
#include "ui/WindowDelegate.h"

namespace quorvane {

/// Windows' frames among the settings, under "Window Frame NAME". The settings must outlive it.
class DefaultsFrameStore : public FrameStore {
 public:
  explicit DefaultsFrameStore(UserDefaults& defaults) : _defaults(defaults) {}
  [[nodiscard]] std::optional<QByteArray> frameForName(const QString& name) const override {
    return _defaults.dataForKey(key(name));
  }
  void setFrame(const QByteArray& frame, const QString& name) override { _defaults.setData(frame, key(name)); }

 private:
  static QString key(const QString& name) { return QStringLiteral("Window Frame ") + name; }
  UserDefaults& _defaults;
};

}  // namespace quorvane
