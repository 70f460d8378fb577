// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

namespace quorvane {

/// From now on the process has so long to end, then it is ended with the code, whatever it still waits for: a disk
/// that does not answer holds each thread that asked it, and with that all that waits for the thread.
void endAtTheLatest(std::chrono::milliseconds patience, int code);

}  // namespace quorvane
