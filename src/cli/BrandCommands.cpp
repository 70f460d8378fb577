// SPDX-License-Identifier: GPL-3.0-or-later
#include <QJsonArray>

#include "cli/Commands.h"
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

Result<BrandingOutcome> applyTo(const std::filesystem::path& folder, const Arguments& arguments,
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

std::string statusInWords(const FolderStatus& status) {
  std::string words = status.hasCustomIcon    ? "has a custom icon"
                      : status.isIncomplete() ? "has an incomplete custom icon"
                                              : "has no custom icon";
  if (status.hasBackup) words += ", a backup to revert to";
  if (status.hasRecord) words += ", a record to reset from";
  if (status.bytes > 0) words += " (" + sizeInWords(status.bytes) + ")";
  for (const std::string& fault : status.faults) words += "; " + printable(fault);
  return words;
}

}  // namespace

void runApply(const Arguments& arguments, const IconServices& services, Reporter& reporter) {
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

  const FolderBranding branding(services);
  for (const auto& folder : arguments.paths) {
    if (pendingSignal() != 0) return;
    const auto outcome = applyTo(folder, arguments, base, branding);
    if (!outcome) {
      reporter.failed(folder, outcome.error());
    } else if (*outcome == BrandingOutcome::Unchanged) {
      reporter.done(folder, "unchanged", printable(folder) + ": unchanged, it has this icon already");
    } else {
      reporter.done(folder, "applied", printable(folder) + ": branded");
    }
  }
}

void runWaysBack(const Arguments& arguments, const IconServices& services, Reporter& reporter) {
  const bool isReset = arguments.command == Command::Reset;
  const WriteMode mode = arguments.isDryRun ? WriteMode::DryRun : WriteMode::Write;
  const FolderBranding branding(services);
  for (const auto& folder : arguments.paths) {
    if (pendingSignal() != 0) return;
    const auto outcome = isReset ? branding.reset(folder, mode) : branding.revert(folder, mode);
    if (!outcome) {
      reporter.failed(folder, outcome.error());
    } else if (*outcome == BrandingOutcome::NothingToRevert) {
      reporter.done(folder, "nothing", printable(folder) + (isReset ? ": nothing to reset" : ": nothing to revert"));
    } else if (isReset) {
      reporter.done(folder, "reset", printable(folder) + ": as it was before the first apply");
    } else {
      reporter.done(folder, "reverted", printable(folder) + ": former icon put back");
    }
  }
}

bool runStatus(const Arguments& arguments, const IconServices& services, Reporter& reporter) {
  const FolderBranding branding(services);
  bool hasAny = false;
  for (const auto& folder : arguments.paths) {
    if (pendingSignal() != 0) break;
    const auto status = branding.status(folder);
    if (!status) {
      reporter.failed(folder, status.error());
      continue;
    }
    hasAny = hasAny || status->hasCustomIcon || status->isIncomplete() || status->hasBackup || status->hasRecord;
    QJsonArray faults;
    for (const std::string& fault : status->faults) faults.append(QString::fromStdString(fault));
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
                   {QStringLiteral("faults"), faults}});
  }
  return hasAny;
}

}  // namespace quorvane::cli
