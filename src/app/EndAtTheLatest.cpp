// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EndAtTheLatest.h"

#include <cstdlib>
#include <system_error>
#include <thread>

#include "foundation/base/Log.h"

namespace quorvane {

void endAtTheLatest(std::chrono::milliseconds patience, int code) {
  try {
    std::thread([patience, code] {
      std::this_thread::sleep_for(patience);
      logMessage("window", "a disk does not answer: what waits for it is given up");
      std::_Exit(code);
    }).detach();
  } catch (const std::system_error&) {
    // Without a thread it ends when it ends.
  }
}

}  // namespace quorvane
