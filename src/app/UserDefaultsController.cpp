// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/UserDefaultsController.h"

#include <QAbstractButton>
#include <QSignalBlocker>
#include <utility>

namespace quorvane {

UserDefaultsController::UserDefaultsController(UserDefaults& defaults) : _defaults(defaults) {
  _observation = defaults.observe([this](const QStringList& keys) {
    for (const Binding& binding : _bindings)
      if (keys.contains(binding.key.name) && !_waiting.contains(binding.key.name)) _show(binding);
  });
}

void UserDefaultsController::bind(QAbstractButton& control, const settings::Key<bool>& key) {
  _bindings.push_back({&control, key});
  _show(_bindings.back());
  connect(&control, &QAbstractButton::toggled, this, [this, key](bool isOn) {
    if (isOn == settings::value(_defaults, key)) {
      _waiting.erase(key.name);
    } else {
      _waiting[key.name] = isOn;
    }
  });
}

void UserDefaultsController::_show(const Binding& binding) {
  const QSignalBlocker quiet(binding.control);
  binding.control->setChecked(settings::value(_defaults, binding.key));
}

void UserDefaultsController::save(QObject* /*sender*/) {
  for (const auto& [name, value] : std::exchange(_waiting, {})) _defaults.setBool(value, name);
}

void UserDefaultsController::revert(QObject* /*sender*/) {
  _waiting.clear();
  for (const Binding& binding : _bindings) _show(binding);
}

}  // namespace quorvane
