// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/core/UserPrompts.h"

namespace quorvane {

class HVWindow;

/// Talks to the user by sheets on a window, which must outlive it.
class SheetPrompts : public UserPrompts {
 public:
  explicit SheetPrompts(HVWindow& window) : _window(window) {}
  [[nodiscard]] bool hasSheet() const override;

 private:
  int run(const Prompt& prompt) override;

  HVWindow& _window;
};

}  // namespace quorvane
