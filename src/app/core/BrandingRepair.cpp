// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/BrandingTarget.h"
#include "app/core/FolderBranding.h"
#include "foundation/base/Limits.h"
#include "iconfamily/CustomIcon.h"
#include "iconfamily/IconFile.h"
#include "imaging/PngCodec.h"

namespace quorvane {

namespace {

// Where a companion that nothing can be made of is set aside, inside the record: a reset takes it away.
constexpr const char* damagedName = "damaged-companion";

/// A companion needs its file to be one.
Result<void> completeIconFile(Folder& folder, const ForkStore& forks) {
  if (TRY(findIconFile(folder))) return {};
  for (const std::string& beside : forks.filesBeside(iconFileName)) {
    if (!TRY(folder.statusOf(beside))) continue;
    TRY_VOID(folder.writeFile(iconFileName, {}));
    break;
  }
  return {};
}

/// The icon's family where it is one. Fails when the system does not let it be read: it may be sound all the same.
Result<std::optional<IconFamily>> soundFamily(const Folder& folder, const ForkStore& forks) {
  auto family = readFolderIconResource(folder, forks);
  if (!family.ok() && family.error().kind() == ErrorKind::System) return family.error();
  if (!family.ok() || !*family || !(*family)->check().ok()) return std::optional<IconFamily>();
  return family;
}

/// The family made anew from the picture beside the record; fails as soundFamily() does. An interruption may have left
/// two pictures: then from the one that was written last.
Result<std::optional<IconFamily>> familyFromPicture(const Folder& folder) {
  for (const std::string& path : TRY(BrandPicture::allIn(folder))) {
    const auto bytes = BrandPicture::read(folder, path);
    if (!bytes.ok() && bytes.error().kind() == ErrorKind::System) return bytes.error();
    const auto bitmap = bytes.ok() ? decodePng(*bytes, limits::elementPixels) : bytes.error();
    if (!bitmap.ok()) continue;
    auto family = IconFamily::iconFamilyWithThumbnailsOfImage(Image::imageWithBitmapImageRep(*bitmap));
    if (family.ok()) return std::optional(*std::move(family));
  }
  return std::optional<IconFamily>();
}

/// Companions that cannot be read are never overwritten; out of the way they can be looked at.
Result<bool> setDamagedAside(Folder& folder, const ForkStore& forks) {
  const auto read = readFolderIconResource(folder, forks);
  if (read.ok() || read.error().kind() == ErrorKind::System) return false;
  Folder record = TRY(folder.openChild(BrandingRecord::folderName, Folder::Access::Write));
  for (const std::string& spelling : iconFileNames)
    for (const std::string& beside : forks.filesBeside(spelling))
      if (TRY(folder.statusOf(beside))) TRY_VOID(folder.rename(beside, record, damagedName));
  return true;
}

Error cannotBeMended(const Folder& folder, const std::string& what) {
  return Error::invalidInput("cannot be mended: " + what).at(folder.path());
}

/// Fails for what a repair would leave behind, and therefore fail for in the end.
Result<void> lastingFault(const Folder& folder, const ForkStore& forks, const std::optional<BrandingState>& state) {
  if (state) {
    if (const auto checked = BrandingRecord::check(folder, forks); !checked)
      return cannotBeMended(folder, checked.error().message());
    if (state->unfinished == BrandingOperation::Reset) return {};  // the backup goes
  } else {
    const auto family = TRY(readFolderIconResource(folder, forks));
    if (family && !family->check().ok()) return cannotBeMended(folder, "the icon resource is no icon family");
  }
  const auto backup = TRY(folder.readFile(FolderBranding::backupName, limits::iconFileBytes));
  const auto checked = backup ? IconFamily::initWithData(*backup).check() : Result<void>();
  if (!checked.ok())
    return cannotBeMended(folder, checked.error().at(folder.pathOf(FolderBranding::backupName)).message());
  return {};
}

}  // namespace

Result<FolderBranding::Notes> FolderBranding::giveUp(Folder& folder, const std::string& why) const {
  Notes notes = TRY(BrandingRecord::restore(folder, _services, backupName));
  notes.push_back(why + "; what was there before the first apply is back");
  tell(folder);
  return notes;
}

Result<FolderBranding::Notes> FolderBranding::repairIcon(Folder& folder, const IconFamily& family) const {
  return writeBrand(folder, family, TRY(BrandPicture::of(family)));
}

Result<FolderBranding::Notes> FolderBranding::repairBranded(Folder& folder, const BrandingState& state) const {
  using enum BrandingOperation;
  if (state.unfinished == Reset) return giveUp(folder, interruptedWords(Reset));
  const std::string interrupted = state.unfinished ? interruptedWords(*state.unfinished) : std::string();
  Notes notes;
  bool isBranded = state.isBranded;
  if (state.unfinished == Revert) {
    isBranded = false;
    if (const auto backup = TRY(readBackup(folder))) {
      notes = TRY(putBackup(folder, *backup));
      notes.push_back(interrupted + "; it is finished now");
      TRY_VOID(BrandingRecord::finish(folder, false));
      return notes;
    }
  }

  const bool isSetAside = TRY(setDamagedAside(folder, _services.forks));
  TRY_VOID(completeIconFile(folder, _services.forks));
  auto family = TRY(soundFamily(folder, _services.forks));
  if (!family && (isBranded || state.unfinished == Apply)) {
    family = TRY(familyFromPicture(folder));
    if (family) notes.emplace_back("the icon was missing or damaged; it is made anew from its picture");
  } else if (family && state.unfinished == Apply && !isBranded) {
    // A first apply: is this its icon already, or still the former one?
    const BrandPicture picture = TRY(BrandPicture::of(*family));
    const auto pictures = TRY(BrandPicture::allIn(folder));
    if (pictures.size() != 1 || pictures.front() != picture.path()) return giveUp(folder, interrupted);
  }
  if (!family) return giveUp(folder, interrupted.empty() ? "the icon is gone and its picture with it" : interrupted);
  if (isSetAside)
    notes.emplace_back("its companion file could not be read; it is kept in " +
                       std::string(BrandingRecord::folderName));

  isBranded = isBranded || state.unfinished == Apply;
  Notes more = isBranded ? TRY(repairIcon(folder, *family)) : TRY(setMarks(folder, TRY(marksFor(folder, {}))));
  if (!isBranded) TRY_VOID(BrandPicture::removeAll(folder));
  TRY(_services.forks.changeFolderFlags(folder, FinderInfo::hasCustomIcon, FinderInfo::hasBeenInited));
  notes.insert(notes.end(), more.begin(), more.end());
  if (state.unfinished) notes.push_back(interrupted + "; it is finished now");
  tell(folder);
  TRY_VOID(BrandingRecord::finish(folder, isBranded));
  return notes;
}

Result<FolderBranding::Notes> FolderBranding::repairForeign(Folder& folder) const {
  TRY_VOID(completeIconFile(folder, _services.forks));
  Notes notes = TRY(setMarks(folder, noMarks()));
  const auto name = TRY(findIconFile(folder));
  const auto family = TRY(readFolderIconResource(folder, _services.forks));
  if (family && family->check().ok()) {
    TRY(_services.forks.changeFolderFlags(folder, FinderInfo::hasCustomIcon, FinderInfo::hasBeenInited));
    tell(folder);
    return notes;
  }
  // Nothing can be shown: then nothing should say so. A file with anything in it may be somebody's.
  TRY(_services.forks.changeFolderFlags(folder, 0, FinderInfo::hasCustomIcon));
  if (name) {
    const auto info = TRY(folder.statusOf(*name));
    const bool isEmpty = info && info->st_size == 0 && TRY(_services.forks.read(folder, *name)).fork.isEmpty();
    if (isEmpty) TRY_VOID(_services.forks.removeFile(folder, *name));
  }
  tell(folder);
  return notes;
}

Result<BrandingResult> FolderBranding::repair(const std::filesystem::path& path, WriteMode mode) const {
  Folder folder = TRY(openForWriting(path, mode));
  if (TRY(statusOf(folder)).isSound()) return BrandingResult{BrandingOutcome::Unchanged, {}};
  TRY_VOID(checkPlaces(folder, _services.forks));
  TRY_VOID(BrandingRecord::checkWritable(folder));
  const auto state = TRY(BrandingRecord::state(folder));
  if (mode == WriteMode::DryRun) {
    if (const auto lasting = lastingFault(folder, _services.forks, state); !lasting) return lasting.error();
    return BrandingResult{};
  }
  Notes notes = state ? TRY(repairBranded(folder, *state)) : TRY(repairForeign(folder));
  noteAgain(folder.path());
  // What is still wrong needs the user: another program's backup, a damaged resource of somebody else's.
  const auto after = TRY(statusOf(folder));
  if (after.isIncomplete())
    return cannotBeMended(folder, after.faults.empty() ? "the icon is incomplete" : after.faults.front());
  return BrandingResult{BrandingOutcome::Changed, std::move(notes)};
}

}  // namespace quorvane
