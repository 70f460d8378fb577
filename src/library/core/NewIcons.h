// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "foundation/OrderedJobs.h"
#include "foundation/base/Interruption.h"
#include "foundation/base/Result.h"
#include "iconfamily/IconFamily.h"
#include "library/core/IconRecord.h"
#include "library/core/LibraryServices.h"

/// Icons on their way into a set.
namespace quorvane::library {

/// The name that a source gives to its icon: its last component without its last ending.
std::string baseNameOf(const std::filesystem::path& source);

/// IconSet::_iconFamilyForPath(), refused when nothing of it could be shown. Errors name the source. Any thread.
Result<IconFamily> showableFamilyOf(const std::filesystem::path& source, const LibraryServices& services);

/// Writes a family under the first of BASE.icns, BASE-1.icns ... that is free, and reads its record.
Result<IconRecord> addFamily(const std::filesystem::path& set, const std::string& base, const IconFamily& family,
                             const LibraryServices& services);

/// Makes things from `count` sources on several threads, and calls `take(number, thing)` with what came of each, in
/// their order, on this one; `take` returns false to end it.
template <typename Make, typename Take>
void makeInOrder(std::size_t count, const Make& make, const Take& take) {
  using Made = decltype(make(std::size_t{}));
  std::atomic<bool> isStopped = false;
  std::size_t next = 0;
  const auto nextJob = [&]() -> std::optional<Job> {
    if (next == count) return std::nullopt;
    const auto work = [&, at = next++]() -> Job::Report {
      const auto made = std::make_shared<Made>(make(at));
      return [&, at, made] {
        if (!isStopped && !take(at, std::move(*made))) isStopped = true;
      };
    };
    return Job{.work = work, .holds = std::nullopt};
  };
  runInOrder(usableProcessors(),
             {.next = nextJob, .shouldStop = [&] { return isStopped || isInterruptionRequested(); }, .tick = [] {}});
}

/// A file of a set that is being made.
struct NewFile {
  std::string name;
  Bytes bytes;
};

/// Makes a set of these files, listed in their order, under NAME or "NAME 1" ... : all of it, or nothing. Its path.
/// `progress` is asked before each file whether to go on.
Result<std::filesystem::path> makeSet(const std::filesystem::path& library, const std::string& name,
                                      const std::vector<NewFile>& files, const LibraryProgress& progress);

}  // namespace quorvane::library
