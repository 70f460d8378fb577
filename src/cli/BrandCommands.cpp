// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Batch.h"
#include "cli/Commands.h"
#include "cli/Terminal.h"

namespace quorvane::cli {

QJsonArray arrayOf(const std::vector<std::string>& words) {
  QJsonArray array;
  for (const std::string& each : words) array.append(QString::fromStdString(printable(each)));
  return array;
}

QJsonObject notesOf(const BrandingResult& result) {
  if (result.notes.empty()) return {};
  return {{QStringLiteral("notes"), arrayOf(result.notes)}};
}

void sayNotes(const BrandingResult& result, Reporter& reporter) {
  for (const std::string& note : result.notes) reporter.noteOnce(printable(note));
}

bool runWaysBack(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter) {
  const bool isReset = arguments.command == Command::Reset;
  const WriteMode mode = arguments.isDryRun ? WriteMode::DryRun : WriteMode::Write;
  const auto work = [&](const FolderItem& item) {
    auto result = isReset ? branding.reset(item.folder, mode) : branding.revert(item.folder, mode);
    return [&reporter, isReset, result = std::move(result), folder = item.folder] {
      if (!result) return reporter.failed(folder, result.error());
      if (result->outcome == BrandingOutcome::NothingToRevert) {
        reporter.done(folder, "nothing", printable(folder) + (isReset ? ": nothing to reset" : ": nothing to revert"));
      } else if (isReset) {
        reporter.done(folder, "reset", printable(folder) + ": as it was before the first apply", notesOf(*result));
      } else {
        reporter.done(folder, "reverted", printable(folder) + ": former icon put back", notesOf(*result));
      }
      sayNotes(*result, reporter);
    };
  };
  if (isReset) {
    reporter.setOutcomes({{"reset", "reset"}, {"nothing", "with nothing to reset"}});
  } else {
    reporter.setOutcomes({{"reverted", "reverted"}, {"nothing", "with nothing to revert"}});
  }
  return forEachFolder(arguments, reporter, work);
}

bool runRepair(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter) {
  const WriteMode mode = arguments.isDryRun ? WriteMode::DryRun : WriteMode::Write;
  const auto work = [&](const FolderItem& item) {
    return [&reporter, result = branding.repair(item.folder, mode), folder = item.folder] {
      if (!result) return reporter.failed(folder, result.error());
      if (result->outcome == BrandingOutcome::Unchanged)
        return reporter.done(folder, "unchanged", printable(folder) + ": nothing to mend");
      reporter.done(folder, "repaired", printable(folder) + ": mended", notesOf(*result));
      sayNotes(*result, reporter);
    };
  };
  reporter.setOutcomes({{"repaired", "mended"}, {"unchanged", "with nothing to mend"}});
  return forEachFolder(arguments, reporter, work);
}

}  // namespace quorvane::cli
