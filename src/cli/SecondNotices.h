// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <mutex>

#include "app/core/FolderBranding.h"

namespace quorvane::cli {

/// What is to be done half a second later in a program without an event loop: done in passing while there is other
/// work, waited for at the end. Safe to use from several threads.
class SecondNotices {
 public:
  /// Takes what is to be done later, and does what has become due. The object must outlive it.
  FolderBranding::Later later();
  /// Waits for what is left and does it.
  void finish();

 private:
  using Clock = std::chrono::steady_clock;
  struct Pending {
    Clock::time_point due;
    std::function<void()> what;
  };

  /// The next one that is due at `time`; nothing when none is.
  std::function<void()> take(Clock::time_point time);

  std::mutex _mutex;
  std::deque<Pending> _pending;
};

}  // namespace quorvane::cli
