// SPDX-License-Identifier: GPL-3.0-or-later
#include <chrono>
#include <mutex>

#include "app/core/LabelPattern.h"
#include "cli/Batch.h"
#include "cli/Commands.h"
#include "cli/SurroundingNotes.h"
#include "cli/Terminal.h"
#include "cli/Wish.h"

namespace quorvane::cli {

namespace {

Error nothingToApply() {
  return Error::invalidInput("nothing to apply: give a --label, a --base, a --tint or an --overlay");
}

using Clock = std::chrono::steady_clock;

/// What was drawn on what, for those who want to know.
std::string explanation(const Look& look, const std::optional<BaseReference>& base, Clock::duration taken) {
  const QString inOneLine = QString(look.label).replace(QLatin1Char('\n'), QStringLiteral("\\n"));
  const std::string label = look.label.isNull() ? "no label" : "label '" + inOneLine.toStdString() + "'";
  const std::string on = base ? base->shown().string() : "the icon from before the first apply";
  const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(taken).count();
  return printable(label) + " on " + printable(on) + ", " + std::to_string(milliseconds) + " ms";
}

/// Brands folders one by one; several threads at a time.
class Applier {
 public:
  Applier(const Arguments& arguments, Wish wish, const FolderBranding& branding, Reporter& reporter)
      : _arguments(arguments),
        _wish(std::move(wish)),
        _branding(branding),
        _reporter(reporter),
        _surroundings(arguments, branding, reporter) {}

  std::function<void()> operator()(const FolderItem& item) {
    std::string explained;
    const auto result = apply(item, explained);
    return [this, item, result, explained] {
      if (!explained.empty()) _reporter.note(printable(item.folder) + ": " + explained);
      if (!result) {
        _reporter.failed(item.folder, result.error(), askedIn(_arguments, item));
      } else if (result->outcome == BrandingOutcome::Unchanged) {
        _reporter.done(item.folder, "unchanged", printable(item.folder) + ": unchanged, it has this icon already");
      } else {
        _reporter.done(item.folder, "applied", printable(item.folder) + ": branded", notesOf(*result));
        sayNotes(*result, _reporter);
      }
      if (result) _surroundings.afterApply(item.folder);
    };
  }

 private:
  Result<BrandingResult> apply(const FolderItem& item, std::string& explained) {
    const auto begun = Clock::now();
    Wish wish = _wish;
    TRY_VOID(applyRow(wish, item.values));
    if (wish.isEmpty()) return nothingToApply();
    TRY_VOID(wish.readOverlay(_maker));
    const Look look = TRY(wish.lookFor([&] { return folderName(item.folder); }));
    {
      const std::lock_guard lock(_surroundingsMutex);
      _surroundings.beforeApply(item.folder);
    }
    auto result = _branding.applyLook(look, wish.base, _maker, item.folder,
                                      _arguments.isDryRun ? WriteMode::DryRun : WriteMode::Write);
    if (result && _arguments.isVerbose) explained = explanation(look, wish.base, Clock::now() - begun);
    return result;
  }

  const Arguments& _arguments;
  const Wish _wish;
  const FolderBranding& _branding;
  IconMaker _maker;
  Reporter& _reporter;
  std::mutex _surroundingsMutex;  ///< for what is asked of them before an apply
  SurroundingNotes _surroundings;
};

/// What would fail every folder alike is said once, before any of them is begun.
Result<void> checkWish(const Wish& wish) {
  if (wish.base)
    if (const auto picture = readBasePicture(*wish.base); !picture) return picture.error();
  TRY_VOID(labelFontNamed(wish.saved.look.fontName, 1));
  if (wish.overlay)
    if (const auto picture = readOverlayPicture(*wish.overlay); !picture) return picture.error();
  if (wish.isEmpty()) return nothingToApply();
  return {};
}

}  // namespace

bool runApply(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter) {
  auto wish = readWish(arguments);
  auto checked = wish ? Result<void>() : Result<void>(wish.error());
  // Rows may bring all of it themselves.
  if (checked && !arguments.rowsFrom) checked = checkWish(*wish);
  if (!checked) {
    reporter.failed(checked.error().where(), checked.error());
    return true;
  }
  Applier applier(arguments, *std::move(wish), branding, reporter);
  reporter.setOutcomes({{"applied", "branded"}, {"unchanged", "unchanged"}});
  return forEachFolder(arguments, reporter, [&](const FolderItem& item) { return applier(item); });
}

}  // namespace quorvane::cli
