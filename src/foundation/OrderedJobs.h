// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "foundation/FolderIdentity.h"

namespace quorvane {

/// One piece of work. `work` is called on any thread, and what it returns on the thread of the caller.
struct Job {
  using Report = std::function<void()>;
  std::function<Report()> work;
  /// A folder that no two jobs change at a time: they follow each other in the order in which they came.
  std::optional<FolderIdentity> holds;
};

/// Where jobs come from and what goes on meanwhile.
struct JobSource {
  /// The next job; nullopt at the end. Called by one thread at a time, whichever; may take its time.
  std::function<std::optional<Job>()> next;
  /// Whether no further job shall be begun. Called by any thread.
  std::function<bool()> shouldStop;
  /// Called by the caller's thread every now and then (ten times a second or oftener) while jobs are done.
  std::function<void()> tick;
};

/// Does the jobs on `threads` threads, or on the caller's for 1 and when none can be made, and calls their reports in
/// the order in which the jobs came. Holds a few jobs a thread, however many come. Returns when all that were begun are
/// reported. Jobs and reports must not throw.
void runInOrder(int threads, const JobSource& source);

/// How many processors this process may use, 1 at least.
int usableProcessors();

}  // namespace quorvane
