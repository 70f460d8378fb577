// SPDX-License-Identifier: GPL-3.0-or-later
#include <QJsonArray>

#include "app/core/BrandedFolderSearch.h"
#include "cli/Commands.h"
#include "cli/SurroundingNotes.h"
#include "cli/Terminal.h"

namespace quorvane::cli {

namespace {

/// The folder's own name, also for "." and paths that end in a slash; empty when it has none that is text.
Result<QString> labelFromName(const std::filesystem::path& folder) {
  std::error_code ignored;
  const std::filesystem::path whole = std::filesystem::canonical(folder, ignored);
  const std::string name = whole.filename().string();
  if (name.empty() || !isUtf8(name)) return Error::invalidInput("the folder's name is no text to label it with");
  return QString::fromStdString(name);
}

Result<BrandingResult> applyTo(const std::filesystem::path& folder, const Arguments& arguments,
                               const std::optional<Image>& base, const FolderBranding& branding) {
  Look look = arguments.look;
  if (arguments.labelFromName) look.label = TRY(labelFromName(folder));
  const Image picture = base ? *base : TRY(branding.originalIconImage(folder));
  return branding.writeIconWithImage(TRY(composeIcon(look, picture)), folder,
                                     arguments.isDryRun ? WriteMode::DryRun : WriteMode::Write);
}

std::string sizeInWords(std::uint64_t bytes) {
  return bytes < 10'000 ? std::to_string(bytes) + " bytes" : std::to_string((bytes + 500) / 1000) + " kB";
}

QJsonArray arrayOf(const std::vector<std::string>& words) {
  QJsonArray array;
  for (const std::string& each : words) array.append(QString::fromStdString(printable(each)));
  return array;
}

QJsonObject notesOf(const BrandingResult& result) {
  if (result.notes.empty()) return {};
  return {{QStringLiteral("notes"), arrayOf(result.notes)}};
}

/// Over many folders most notes are the same.
void sayNotes(const BrandingResult& result, Reporter& reporter) {
  for (const std::string& note : result.notes) reporter.noteOnce(printable(note));
}

std::string statusInWords(const FolderStatus& status) {
  std::string words = status.hasCustomIcon    ? "has a custom icon"
                      : status.isIncomplete() ? "has an incomplete custom icon"
                                              : "has no custom icon";
  if (status.hasBackup) words += ", a backup to revert to";
  if (status.hasRecord) words += ", a record to reset from";
  if (status.bytes > 0) words += " (" + sizeInWords(status.bytes) + ")";
  for (const std::string& fault : faultWords(status)) words += "; " + printable(fault);
  return words;
}

}  // namespace

std::vector<std::string> faultWords(const FolderStatus& status) {
  std::vector<std::string> words = status.faults;
  words.insert(words.end(), status.markFaults.begin(), status.markFaults.end());
  if (status.unfinished)
    words.push_back("interrupted: an earlier " + operationName(*status.unfinished) + " was not finished");
  return words;
}

void runApply(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter) {
  std::optional<Image> base;
  if (arguments.base) {
    auto picture = readBasePicture(*arguments.base);
    if (!picture) return reporter.failed(*arguments.base, picture.error());
    base = *std::move(picture);
  }
  // A font that is not there fails every folder alike; it is said once.
  if (const auto font = labelFontNamed(arguments.look.fontName, 1); !font) return reporter.failed({}, font.error());
  if (arguments.look.label.isNull() && !arguments.labelFromName && !base)
    return reporter.failed({}, Error::invalidInput("nothing to apply: give a --label, a --base or both"));

  SurroundingNotes surroundings(arguments, branding, reporter);
  for (const auto& folder : arguments.paths) {
    if (pendingSignal() != 0) return;
    surroundings.beforeApply(folder);
    const auto outcome = applyTo(folder, arguments, base, branding);
    if (!outcome) {
      reporter.failed(folder, outcome.error());
    } else if (outcome->outcome == BrandingOutcome::Unchanged) {
      reporter.done(folder, "unchanged", printable(folder) + ": unchanged, it has this icon already");
    } else {
      reporter.done(folder, "applied", printable(folder) + ": branded", notesOf(*outcome));
      sayNotes(*outcome, reporter);
    }
    if (outcome) surroundings.afterApply(folder);
  }
}

void runWaysBack(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter) {
  const bool isReset = arguments.command == Command::Reset;
  const WriteMode mode = arguments.isDryRun ? WriteMode::DryRun : WriteMode::Write;
  for (const auto& folder : arguments.paths) {
    if (pendingSignal() != 0) return;
    const auto outcome = isReset ? branding.reset(folder, mode) : branding.revert(folder, mode);
    if (!outcome) {
      reporter.failed(folder, outcome.error());
    } else if (outcome->outcome == BrandingOutcome::NothingToRevert) {
      reporter.done(folder, "nothing", printable(folder) + (isReset ? ": nothing to reset" : ": nothing to revert"));
    } else if (isReset) {
      reporter.done(folder, "reset", printable(folder) + ": as it was before the first apply", notesOf(*outcome));
    } else {
      reporter.done(folder, "reverted", printable(folder) + ": former icon put back", notesOf(*outcome));
    }
    if (outcome) sayNotes(*outcome, reporter);
  }
}

void runRepair(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter) {
  for (const auto& folder : arguments.paths) {
    if (pendingSignal() != 0) return;
    const auto result = branding.repair(folder, arguments.isDryRun ? WriteMode::DryRun : WriteMode::Write);
    if (!result) {
      reporter.failed(folder, result.error());
    } else if (result->outcome == BrandingOutcome::Unchanged) {
      reporter.done(folder, "unchanged", printable(folder) + ": nothing to mend");
    } else {
      reporter.done(folder, "repaired", printable(folder) + ": mended", notesOf(*result));
      sayNotes(*result, reporter);
    }
  }
}

void runVerify(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter) {
  for (const auto& folder : arguments.paths) {
    if (pendingSignal() != 0) return;
    const auto status = branding.status(folder);
    if (!status) {
      reporter.failed(folder, status.error());
    } else if (!status->isSound()) {
      std::string words;
      for (const std::string& fault : faultWords(*status)) words += (words.empty() ? "" : "; ") + fault;
      reporter.failed(folder, Error::invalidInput(words.empty() ? "the icon is incomplete" : words).at(folder));
    } else {
      const bool isBranded = status->hasRecord;
      reporter.done(folder, isBranded ? "sound" : "plain",
                    printable(folder) + (isBranded ? ": sound" : ": nothing of ours, nothing wrong"));
    }
  }
}

bool runList(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter) {
  bool hasAny = false;
  for (const auto& tree : arguments.paths) {
    const BrandedFolderSearch search{
        .crossesFileSystems = arguments.crossesFileSystems,
        .found =
            [&](const std::filesystem::path& folder) {
              hasAny = true;
              const auto status = branding.status(folder);
              if (!status) return reporter.failed(folder, status.error());
              reporter.done(folder, status->isSound() ? "branded" : "unsound",
                            printable(folder) + (status->isSound() ? "" : ": needs 'quorvane repair'"),
                            {{QStringLiteral("bytes"), static_cast<qint64>(status->bytes)},
                             {QStringLiteral("faults"), arrayOf(faultWords(*status))}});
            },
        .unreadable = [&](const std::filesystem::path& folder, const Error& error) { reporter.failed(folder, error); },
        .isStopped = [] { return pendingSignal() != 0; },
    };
    search.run(tree);
  }
  return hasAny;
}

bool runStatus(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter) {
  bool hasAny = false;
  for (const auto& folder : arguments.paths) {
    if (pendingSignal() != 0) break;
    const auto status = branding.status(folder);
    if (!status) {
      reporter.failed(folder, status.error());
      continue;
    }
    hasAny = hasAny || status->hasCustomIcon || !status->isSound() || status->hasBackup || status->hasRecord;
    reporter.done(folder,
                  status->hasCustomIcon    ? "branded"
                  : status->isIncomplete() ? "incomplete"
                                           : "plain",
                  printable(folder) + ": " + statusInWords(*status),
                  {{QStringLiteral("custom_icon"), status->hasCustomIcon},
                   {QStringLiteral("icon_family"), status->hasIconFamily},
                   {QStringLiteral("custom_flag"), status->hasCustomFlag},
                   {QStringLiteral("backup"), status->hasBackup},
                   {QStringLiteral("record"), status->hasRecord},
                   {QStringLiteral("bytes"), static_cast<qint64>(status->bytes)},
                   {QStringLiteral("faults"), arrayOf(faultWords(*status))}});
  }
  return hasAny;
}

}  // namespace quorvane::cli
