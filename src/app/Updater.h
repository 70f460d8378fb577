// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvane {

/// Looks whether there is a newer version of the program, at the address that the settings keep as feedAddress. Returns
/// at once and answers by windows of its own, on the thread that asks.
class Updater {
 public:
  virtual ~Updater() = default;
  /// The user asks: is told in any case.
  virtual void checkForUpdates() = 0;
  /// The program asks: the user is told of a newer version only.
  virtual void checkForUpdatesInBackground() = 0;
};

}  // namespace quorvane
