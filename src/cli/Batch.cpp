// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Batch.h"

#include <algorithm>
#include <atomic>

#include "cli/Commands.h"
#include "cli/Terminal.h"
#include "foundation/OrderedJobs.h"

namespace quorvane::cli {

namespace {

/// As many threads as there can be work for.
int threadsFor(const Arguments& arguments) {
  const bool hasList = arguments.rowsFrom || arguments.filesFrom;
  return hasList ? arguments.jobs : static_cast<int>(std::min<std::size_t>(arguments.paths.size(), arguments.jobs));
}

}  // namespace

std::optional<AskedIn> askedIn(const Arguments& arguments, const FolderItem& item) {
  if (item.line == 0 || !arguments.rowsFrom) return std::nullopt;
  return AskedIn{*arguments.rowsFrom == "-" ? "standard input" : *arguments.rowsFrom, item.line};
}

bool forEachFolder(const Arguments& arguments, Reporter& reporter, const FolderWork& work) {
  auto source = FolderSource::open(arguments);
  if (!source && source.error().kind() == ErrorKind::Unsupported) {
    std::fprintf(stderr, "quorvane: %s\n", printable(source.error().message()).c_str());
    return false;
  }
  if (!source) {
    reporter.failed(source.error().where(), source.error());
    return true;
  }
  reporter.setColor(canColor(arguments.wantsColor));
  if (canRedraw() && !arguments.isQuiet && !arguments.isVerbose) reporter.showProgress(source->total());

  std::atomic<bool> hasEnded = false;
  std::optional<Error> listFailure;
  const auto nextJob = [&]() -> std::optional<Job> {
    auto item = source->next();
    if (!item) {
      listFailure = item.error();
      return std::nullopt;
    }
    if (!*item) return std::nullopt;
    if ((*item)->fault) {
      return Job{.work =
                     [&, item = **item] {
                       return [&, item] { reporter.failed(item.folder, *item.fault, askedIn(arguments, item)); };
                     },
                 .holds = std::nullopt};
    }
    const auto identity = FolderIdentity::of((*item)->folder);
    return Job{.work = [&work, item = *std::move(*item)] { return work(item); }, .holds = identity};
  };
  runInOrder(threadsFor(arguments), {.next = nextJob,
                                     .shouldStop = [&] { return pendingSignal() != 0 || hasEnded.load(); },
                                     .tick =
                                         [&] {
                                           if (arguments.failsFast && reporter.failures() > 0) hasEnded = true;
                                           reporter.drawProgress();
                                         }});
  if (listFailure && pendingSignal() == 0) {
    const auto* list = arguments.rowsFrom ? &*arguments.rowsFrom : &*arguments.filesFrom;
    reporter.failed(*list == "-" ? "standard input" : *list, *listFailure);
  }
  return true;
}

}  // namespace quorvane::cli
