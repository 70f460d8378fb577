// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "app/core/UserPrompts.h"

namespace quorvane {

/// Answers from a script and remembers what was said: for tests.
class ScriptedPrompts : public UserPrompts {
 public:
  std::vector<Prompt> shown;
  /// The answers to the next questions; when they run out, a question gets the default button.
  std::deque<int> answers;
  /// Runs while a prompt is up, as what happens behind a sheet does.
  std::function<void(const Prompt&)> whileShown;
  /// Somebody else's sheet is up.
  bool isOccupied = false;

  [[nodiscard]] bool hasSheet() const override { return isOccupied || _isShowing; }

 private:
  int run(const Prompt& prompt) override {
    if (hasSheet()) return otherReturn;
    _isShowing = true;
    shown.push_back(prompt);
    if (whileShown) whileShown(prompt);
    _isShowing = false;
    if (prompt.kind == Prompt::Kind::Message || answers.empty()) return defaultReturn;
    const int answer = answers.front();
    answers.pop_front();
    return answer;
  }

  bool _isShowing = false;
};

}  // namespace quorvane
