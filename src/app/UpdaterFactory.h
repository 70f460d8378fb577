// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

#include "app/Updater.h"

namespace quorvane {

class AddressOpener;
class HVWindow;
class UserDefaults;

/// Makes the updater that speaks by sheets on the window; empty in a build without one (QUORVANE_UPDATER). What is
/// given must outlive what it makes.
std::function<std::unique_ptr<Updater>()> updaterFactory(HVWindow& window, UserDefaults& defaults,
                                                         AddressOpener& opener);

}  // namespace quorvane
