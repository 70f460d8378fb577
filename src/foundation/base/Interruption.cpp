// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/base/Interruption.h"

#include <atomic>

namespace quorvane {

namespace {

std::atomic<bool> isRequested{false};
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets it");

}  // namespace

void requestInterruption() noexcept {
  isRequested.store(true);
}

bool isInterruptionRequested() noexcept {
  return isRequested.load();
}

}  // namespace quorvane
