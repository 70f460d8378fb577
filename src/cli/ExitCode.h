// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvane::cli {

/// The program's exit codes; the manual lists them.
enum ExitCode : int {
  exitDone = 0,         ///< all done
  exitFailed = 1,       ///< at least one folder or file failed
  exitWrongUse = 2,     ///< the arguments make no sense
  exitNothing = 3,      ///< the caller asked to know (`status`), and there is nothing
  exitInterrupted = 130,
  exitTerminated = 143,
};

}  // namespace quorvane::cli
