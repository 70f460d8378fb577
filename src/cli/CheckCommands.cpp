// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/BrandedFolderSearch.h"
#include "cli/Batch.h"
#include "cli/Commands.h"
#include "cli/Terminal.h"

namespace quorvane::cli {

namespace {

std::string sizeInWords(std::uint64_t bytes) {
  return bytes < 10'000 ? std::to_string(bytes) + " bytes" : std::to_string((bytes + 500) / 1000) + " kB";
}

/// What is wrong with a folder's brand, in words; empty when nothing is.
std::vector<std::string> faultWords(const FolderStatus& status) {
  std::vector<std::string> words = status.faults;
  words.insert(words.end(), status.markFaults.begin(), status.markFaults.end());
  if (status.unfinished)
    words.push_back("interrupted: an earlier " + operationName(*status.unfinished) + " was not finished");
  return words;
}

std::string statusInWords(const FolderStatus& status) {
  std::string words = status.hasCustomIcon    ? "has a custom icon"
                      : status.isIncomplete() ? "has an incomplete custom icon"
                                              : "has no custom icon";
  if (status.hasBackup) words += ", a backup to revert to";
  if (status.hasRecord) words += ", a record to reset from";
  if (status.bytes > 0) words += " (" + sizeInWords(status.bytes) + " in all)";
  for (const std::string& fault : faultWords(status)) words += "; " + printable(fault);
  return words;
}

void reportStatus(const std::filesystem::path& folder, const FolderStatus& status, Reporter& reporter) {
  reporter.done(folder,
                status.hasCustomIcon    ? "branded"
                : status.isIncomplete() ? "incomplete"
                                        : "plain",
                printable(folder) + ": " + statusInWords(status),
                {{QStringLiteral("custom_icon"), status.hasCustomIcon},
                 {QStringLiteral("icon_family"), status.hasIconFamily},
                 {QStringLiteral("custom_flag"), status.hasCustomFlag},
                 {QStringLiteral("backup"), status.hasBackup},
                 {QStringLiteral("record"), status.hasRecord},
                 {QStringLiteral("bytes"), static_cast<qint64>(status.bytes)},
                 {QStringLiteral("faults"), arrayOf(faultWords(status))}});
}

void reportVerdict(const std::filesystem::path& folder, const FolderStatus& status, Reporter& reporter) {
  if (!status.isSound()) {
    std::string words;
    for (const std::string& fault : faultWords(status)) words += (words.empty() ? "" : "; ") + fault;
    return reporter.failed(folder, Error::invalidInput(words.empty() ? "the icon is incomplete" : words).at(folder));
  }
  reporter.done(folder, status.hasRecord ? "sound" : "plain",
                printable(folder) + (status.hasRecord ? ": sound" : ": nothing of ours, nothing wrong"));
}

void reportFound(const std::filesystem::path& folder, const Result<FolderStatus>& status, const Arguments& arguments,
                 Reporter& reporter) {
  if (!status) return reporter.failed(folder, status.error());
  if (arguments.isNull) return reporter.rawName(folder);
  reporter.done(folder, status->isSound() ? "branded" : "unsound",
                printable(folder) + (status->isSound() ? "" : ": needs 'quorvane repair'"),
                {{QStringLiteral("bytes"), static_cast<qint64>(status->bytes)},
                 {QStringLiteral("faults"), arrayOf(faultWords(*status))}});
}

}  // namespace

bool runStatus(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter, bool& hasAny) {
  hasAny = false;
  const auto work = [&](const FolderItem& item) {
    return [&reporter, &hasAny, status = branding.status(item.folder), folder = item.folder] {
      if (!status) return reporter.failed(folder, status.error());
      hasAny = hasAny || status->hasCustomIcon || !status->isSound() || status->hasBackup || status->hasRecord;
      reportStatus(folder, *status, reporter);
    };
  };
  reporter.setOutcomes({{"branded", "with a custom icon"}, {"plain", "without"}, {"incomplete", "incomplete"}});
  return forEachFolder(arguments, reporter, work);
}

bool runVerify(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter) {
  const auto work = [&](const FolderItem& item) {
    return [&reporter, status = branding.status(item.folder), folder = item.folder] {
      if (!status) return reporter.failed(folder, status.error());
      reportVerdict(folder, *status, reporter);
    };
  };
  reporter.setOutcomes({{"sound", "sound"}, {"plain", "without a brand"}});
  return forEachFolder(arguments, reporter, work);
}

bool runList(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter) {
  bool hasAny = false;
  for (const auto& tree : arguments.paths) {
    const BrandedFolderSearch search{
        .crossesFileSystems = arguments.crossesFileSystems,
        .found =
            [&](const std::filesystem::path& folder) {
              hasAny = true;
              reportFound(folder, branding.status(folder), arguments, reporter);
            },
        .unreadable = [&](const std::filesystem::path& folder, const Error& error) { reporter.failed(folder, error); },
        .isStopped = [] { return pendingSignal() != 0; },
    };
    search.run(tree);
  }
  return hasAny;
}

}  // namespace quorvane::cli
