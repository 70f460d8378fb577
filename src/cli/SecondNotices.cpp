// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/SecondNotices.h"

#include <thread>

namespace quorvane::cli {

std::function<void()> SecondNotices::take(Clock::time_point time) {
  const std::scoped_lock lock(_mutex);
  if (_pending.empty() || _pending.front().due > time) return {};
  auto what = std::move(_pending.front().what);
  _pending.pop_front();
  return what;
}

FolderBranding::Later SecondNotices::later() {
  return [this](std::chrono::milliseconds delay, std::function<void()> what) {
    {
      const std::scoped_lock lock(_mutex);
      _pending.push_back({Clock::now() + delay, std::move(what)});
    }
    while (const auto due = take(Clock::now())) due();
  };
}

void SecondNotices::finish() {
  for (;;) {
    Clock::time_point due;
    {
      const std::scoped_lock lock(_mutex);
      if (_pending.empty()) return;
      due = _pending.front().due;
    }
    std::this_thread::sleep_until(due);
    while (const auto what = take(Clock::now())) what();
  }
}

}  // namespace quorvane::cli
