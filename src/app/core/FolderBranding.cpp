// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/FolderBranding.h"

#include "app/core/BrandingTarget.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Log.h"
#include "iconfamily/CustomIcon.h"
#include "iconfamily/IconFile.h"

namespace quorvane {

namespace {

constexpr Size shownSize{512, 512};
constexpr Size canvasSize{128, 128};

/// The family's picture; of one that holds none, the picture of the folder's kind, as the desktop shows then.
Result<Image> imageOf(const IconFamily& family, const std::filesystem::path& path, Size size, const KindIcons& kinds) {
  auto image = family.imageWithAllReps();
  if (!image || !image->bitmapRepresentation()) image = kinds.iconForKindOfFile(path);
  if (!image) return Error::invalidInput("its icon holds no picture").at(path);
  image->setScalesWhenResized(true);
  image->setSize(size);
  return *std::move(image);
}

/// Whether the folder shows exactly this family already.
Result<bool> hasIcon(const Folder& folder, const IconFamily& family, const ForkStore& forks) {
  const unsigned flags = TRY(forks.readFolderInfo(folder)).flags();
  if ((flags & (FinderInfo::hasCustomIcon | FinderInfo::hasBeenInited)) != FinderInfo::hasCustomIcon) return false;
  const auto present = TRY(readFolderIconResource(folder, forks));
  return present && *present == family;
}

/// What was to be done is done, or is being taken back: this alone is for the log.
template <typename T>
void logFailure(const Result<T>& result) {
  if (!result.ok()) logMessage("branding", result.error().message());
}

}  // namespace

std::filesystem::path FolderBranding::_backupPathForFolder(const std::filesystem::path& folder) {
  return folder / backupName;
}

std::string FolderBranding::interruptedWords(BrandingOperation operation) {
  return "an earlier " + operationName(operation) + " was interrupted here";
}

Result<std::optional<IconFamily>> FolderBranding::readBackup(const Folder& folder) {
  const auto bytes = TRY(folder.readFile(backupName, limits::iconFileBytes));
  if (!bytes) return std::optional<IconFamily>();
  const IconFamily family = IconFamily::initWithData(*bytes);
  if (const auto checked = family.check(); !checked) return checked.error().at(folder.pathOf(backupName));
  return std::optional(family);
}

Result<IconFamily> FolderBranding::familyFromBefore(const Folder& folder) const {
  const auto state = BrandingRecord::state(folder);
  const bool isOurs = state.ok() && *state && ((*state)->isBranded || (*state)->unfinished);
  if (!isOurs) return IconFamily::iconFamilyWithIconOfFile(folder.path(), _services);
  // The present icon is a brand: an earlier apply could not write the backup.
  const auto original = TRY(BrandingRecord::originalIcon(folder, _services.forks));
  if (original && original->check()) return *original;
  const auto image = _services.kinds.iconForKindOfFile(folder.path());
  if (!image) return Error::invalidInput("there is no picture of its kind").at(folder.path());
  return _services.familyOfImage(*image);
}

Result<Image> FolderBranding::_iconImageForPath(const std::filesystem::path& path) const {
  return imageOf(TRY(IconFamily::iconFamilyWithIconOfFile(path, _services)), path, shownSize, _services.kinds);
}

Result<IconFamily> FolderBranding::originalFamily(const Folder& folder) const {
  auto backup = TRY(readBackup(folder));
  return backup ? *std::move(backup) : familyFromBefore(folder);
}

Result<Image> FolderBranding::originalIconImage(const std::filesystem::path& path) const {
  const Folder folder = TRY(Folder::open(path, Folder::Access::Read));
  return imageOf(TRY(originalFamily(folder)), path, canvasSize, _services.kinds);
}

Result<Folder> FolderBranding::openForWriting(const std::filesystem::path& path, WriteMode mode) const {
  Folder folder = TRY(Folder::open(path, mode == WriteMode::Write ? Folder::Access::Write : Folder::Access::Read));
  TRY_VOID(checkTarget(folder.path()));
  TRY_VOID(checkBrandFiles(folder, brandFileNames(_services.forks, backupName)));
  // Opening sweeps, in the record too, whatever is found to be done.
  if (mode == WriteMode::Write) static_cast<void>(folder.openChild(BrandingRecord::folderName, Folder::Access::Write));
  return folder;
}

Result<bool> FolderBranding::backupIconForFolderAtPath(const std::filesystem::path& path) const {
  Folder folder = TRY(openForWriting(path, WriteMode::Write));
  return backupIcon(folder);
}

Result<bool> FolderBranding::backupIcon(Folder& folder) const {
  // Whatever stands there, an existing backup is never replaced.
  if (TRY(folder.statusOf(backupName))) return false;
  TRY_VOID(folder.writeFile(backupName, TRY(familyFromBefore(folder)).bytes()));
  return true;
}

Result<WantedMarks> FolderBranding::marksFor(const Folder& folder, const std::optional<std::string>& picture) {
  std::string name = TRY(findIconFile(folder)).value_or(iconFileName);
  return WantedMarks{.picture = picture, .hiddenFile = std::move(name), .formerlyHidden = {}};
}

Result<FolderBranding::Notes> FolderBranding::setMarks(Folder& folder, const WantedMarks& wanted) const {
  if (_services.marks == nullptr) return Notes();
  const auto state = BrandingRecord::state(folder);
  std::optional<Folder> original;
  if (!state.ok() || *state) {
    auto kept = BrandingRecord::originalMarks(folder, Folder::Access::Write);
    // A damaged record leads on without the files from before; one that just cannot be read now must not.
    if (!kept.ok() && (state.ok() || kept.error().kind() == ErrorKind::System)) return kept.error();
    if (kept.ok()) original = std::move(*kept);
  }
  return _services.marks->set(folder, wanted, original ? &*original : nullptr);
}

Result<std::vector<std::string>> FolderBranding::markFaults(const Folder& folder, const WantedMarks& wanted) const {
  if (_services.marks == nullptr) return std::vector<std::string>();
  return _services.marks->faults(folder, wanted);
}

void FolderBranding::tell(Folder& folder) const {
  if (_services.marks != nullptr) _services.marks->forgetThumbnails(folder.path());
  // It is no less done when nobody could be told.
  logFailure(_services.notices.noteDirectoryModified(folder));
}

Result<bool> FolderBranding::isBrandedWith(const Folder& folder, const IconFamily& family,
                                           const BrandPicture& picture) const {
  if (!TRY(hasIcon(folder, family, _services.forks))) return false;
  if (_services.marks == nullptr) return true;
  return TRY(picture.isAlone(folder)) && TRY(markFaults(folder, TRY(marksFor(folder, picture.path())))).empty();
}

Result<FolderBranding::Notes> FolderBranding::writeBrand(Folder& folder, const IconFamily& family,
                                                         const BrandPicture& picture) const {
  const auto former = TRY(BrandPicture::allIn(folder));
  if (_services.marks != nullptr) TRY_VOID(picture.write(folder));
  Notes notes;
  const auto mark = [&]() -> Result<void> {
    notes = TRY(setMarks(folder, TRY(marksFor(folder, picture.path()))));
    return {};
  };
  const bool isThere = TRY(hasIcon(folder, family, _services.forks));
  if (const auto done = isThere ? mark() : setFolderIcon(family, folder, _services, false, mark); !done) {
    // The former icon is back; what names the new picture goes before the picture does.
    const auto formerPicture = former.size() == 1 ? std::optional(former.front()) : std::nullopt;
    if (const auto wanted = marksFor(folder, formerPicture)) logFailure(setMarks(folder, *wanted));
    logFailure(BrandPicture::removeAll(folder, formerPicture));
    return done.error();
  }
  logFailure(BrandPicture::removeAll(folder, picture.path()));
  tell(folder);
  return notes;
}

Result<BrandingResult> FolderBranding::writeIconWithImage(const std::optional<Image>& image,
                                                          const std::filesystem::path& toPath, WriteMode mode) const {
  if (!image) return Error::invalidInput("there is no picture to make an icon of").at(toPath);
  Folder folder = TRY(openForWriting(toPath, mode));
  return writeFamily(TRY(IconFamily::iconFamilyWithThumbnailsOfImage(*image)), folder, mode);
}

Result<BrandingResult> FolderBranding::applyLook(const Look& look, const std::optional<BaseReference>& base,
                                                 IconMaker& maker, const std::filesystem::path& path,
                                                 WriteMode mode) const {
  // Held from here on: somebody else's apply in between would make its icon the one that is drawn on.
  Folder folder = TRY(openForWriting(path, mode));
  const auto original = [&]() -> Result<IconMaker::Base> {
    const auto kindIcon = [&] { return _services.kinds.iconForKindOfFile(folder.path()); };
    auto picture = maker.base(TRY(originalFamily(folder)), kindIcon);
    if (!picture) return std::move(picture).error().at(path);
    return picture;
  };
  const IconMaker::Base picture = TRY(base ? maker.base(*base) : original());
  return writeFamily(TRY(maker.icon(look, picture)), folder, mode);
}

Result<BrandingResult> FolderBranding::writeFamily(const IconFamily& family, Folder& folder, WriteMode mode) const {
  const BrandPicture picture = TRY(BrandPicture::of(family));
  const auto state = TRY(BrandingRecord::state(folder));
  const bool hasBackup = TRY(folder.statusOf(backupName)).has_value();
  if (state && state->isBranded && !state->unfinished && hasBackup && TRY(isBrandedWith(folder, family, picture)))
    return BrandingResult{BrandingOutcome::Unchanged, {}};
  TRY_VOID(checkPlaces(folder, _services.forks));
  TRY_VOID(BrandingRecord::checkWritable(folder));
  if (mode == WriteMode::DryRun) return BrandingResult{};

  if (state) {
    TRY_VOID(BrandingRecord::begin(folder, BrandingOperation::Apply));
  } else {
    TRY_VOID(BrandingRecord::make(folder, _services, backupName));
  }
  // A backup that cannot be written does not stop an apply: the record holds the way back as well.
  logFailure(backupIcon(folder));
  auto written = writeBrand(folder, family, picture);
  if (!written) {
    logFailure(BrandingRecord::abandon(folder, state.value_or(BrandingState())));
    // Nothing of a first apply that failed stays.
    if (!state) logFailure(BrandingRecord::restore(folder, _services, backupName));
    return written.error();
  }
  BrandingResult result{BrandingOutcome::Changed, *std::move(written)};
  if (state && state->unfinished)
    result.notes.push_back(interruptedWords(*state->unfinished) + "; this run made it good");
  // What is in place stays a success: at worst the next run takes this one for interrupted.
  logFailure(BrandingRecord::finish(folder, true));
  noteAgain(folder.path());
  return result;
}

void FolderBranding::noteAgain(const std::filesystem::path& path) const {
  if (!_later) return;
  // Some file managers look too early the first time and keep what they saw.
  _later(secondNotice, [&notices = _services.notices, path] {
    // Whoever holds it now, this run perhaps, tells of it anew.
    constexpr std::chrono::milliseconds noWait{0};
    if (auto folder = Folder::open(path, Folder::Access::Write, noWait)) (void)notices.noteDirectoryModified(*folder);
  });
}

Result<FolderBranding::Notes> FolderBranding::putBackup(Folder& folder, const IconFamily& backup) const {
  const auto former = TRY(BrandPicture::allIn(folder));
  Notes notes = TRY(setMarks(folder, TRY(marksFor(folder, {}))));
  if (const auto done = setFolderIcon(backup, folder, _services); !done) {
    if (const auto wanted = marksFor(folder, former.size() == 1 ? std::optional(former.front()) : std::nullopt))
      logFailure(setMarks(folder, *wanted));
    return done.error();
  }
  logFailure(BrandPicture::removeAll(folder));
  // The icon is back; a backup that cannot be removed is no failure.
  logFailure(folder.removeFile(backupName));
  tell(folder);
  return notes;
}

Result<BrandingResult> FolderBranding::revert(const std::filesystem::path& path, WriteMode mode) const {
  Folder folder = TRY(openForWriting(path, mode));
  const auto family = TRY(readBackup(folder));
  // Without a record that can be read there is still the backup.
  const auto state = BrandingRecord::state(folder).ok() ? TRY(BrandingRecord::state(folder)) : std::nullopt;
  // The backup is the last to go: without it a way back was cut off just before its end, or an apply at its beginning.
  const bool isToFinish =
      !family && state && state->unfinished && (state->unfinished != BrandingOperation::Apply || !state->isBranded);
  if (!family && !isToFinish) return BrandingResult{BrandingOutcome::NothingToRevert, {}};
  TRY_VOID(checkPlaces(folder, _services.forks));
  TRY_VOID(BrandingRecord::checkWritable(folder));
  if (mode == WriteMode::DryRun) return BrandingResult{};
  if (isToFinish && state->unfinished == BrandingOperation::Apply)
    return BrandingResult{BrandingOutcome::Changed, TRY(giveUp(folder, interruptedWords(*state->unfinished)))};
  if (isToFinish) return BrandingResult{BrandingOutcome::Changed, TRY(repairBranded(folder, *state))};
  if (state) TRY_VOID(BrandingRecord::begin(folder, BrandingOperation::Revert));
  auto notes = putBackup(folder, *family);
  if (state) logFailure(notes.ok() ? BrandingRecord::finish(folder, false) : BrandingRecord::abandon(folder, *state));
  return BrandingResult{BrandingOutcome::Changed, TRY(std::move(notes))};
}

Result<BrandingResult> FolderBranding::reset(const std::filesystem::path& path, WriteMode mode) const {
  Folder folder = TRY(openForWriting(path, mode));
  const bool hasRecord = TRY(BrandingRecord::state(folder)).has_value();
  // What a session remembers of a folder comes back with a new folder under the old path.
  if (!hasRecord && TRY(markFaults(folder, noMarks())).empty())
    return BrandingResult{BrandingOutcome::NothingToRevert, {}};
  TRY_VOID(folder.checkWritable());
  if (hasRecord) TRY_VOID(BrandingRecord::check(folder, _services.forks));
  TRY_VOID(BrandingRecord::checkWritable(folder));
  if (mode == WriteMode::DryRun) return BrandingResult{};
  Notes notes =
      hasRecord ? TRY(BrandingRecord::restore(folder, _services, backupName)) : TRY(setMarks(folder, noMarks()));
  tell(folder);
  return BrandingResult{BrandingOutcome::Changed, std::move(notes)};
}

}  // namespace quorvane
