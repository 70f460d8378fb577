// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <map>
#include <memory>
#include <vector>

#include "app/core/SettingsTable.h"

class QAbstractButton;

namespace quorvane {

/// Stands between controls and the settings: what the user changes in a bound control waits here until it is saved or
/// dropped. A control with nothing waiting follows its setting, whoever changes that.
class UserDefaultsController : public QObject {
  Q_OBJECT
 public:
  /// The settings must outlive it.
  explicit UserDefaultsController(UserDefaults& defaults);

  /// The checkable control, not owned, shows the setting from now on. One control for each key.
  void bind(QAbstractButton& control, const settings::Key<bool>& key);
  [[nodiscard]] bool hasUnappliedChanges() const { return !_waiting.empty(); }

  /// Writes what waits.
  void save(QObject* sender);
  /// Drops it; the controls show the settings again.
  void revert(QObject* sender);

 private:
  struct Binding {
    QAbstractButton* control;
    settings::Key<bool> key;
  };
  void _show(const Binding& binding);

  UserDefaults& _defaults;
  std::vector<Binding> _bindings;
  std::map<QString, bool> _waiting;
  std::shared_ptr<void> _observation;
};

}  // namespace quorvane
