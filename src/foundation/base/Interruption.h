// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvane {

/// Asks everything of this process that waits for somebody else (another writer's lock, the next bytes of a pipe) to
/// give up, for as long as it lasts. Work in hand goes on. May be called in a signal handler.
void requestInterruption() noexcept;
[[nodiscard]] bool isInterruptionRequested() noexcept;

}  // namespace quorvane
