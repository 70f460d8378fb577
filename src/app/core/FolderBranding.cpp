// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/FolderBranding.h"

#include "app/core/BrandingRecord.h"
#include "app/core/BrandingTarget.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Log.h"
#include "iconfamily/CustomIcon.h"
#include "iconfamily/IconFile.h"

namespace quorvane {

namespace {

constexpr Size shownSize{512, 512};
constexpr Size canvasSize{128, 128};

/// The backup icon's family; nullopt without a backup. Fails on one that is no plain file or no icon.
Result<std::optional<IconFamily>> readBackup(const Folder& folder) {
  const auto bytes = TRY(folder.readFile(FolderBranding::backupName, limits::iconFileBytes));
  if (!bytes) return std::optional<IconFamily>();
  const IconFamily family = IconFamily::initWithData(*bytes);
  if (const auto checked = family.check(); !checked)
    return checked.error().at(folder.pathOf(FolderBranding::backupName));
  return std::optional(family);
}

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

/// Only the folder's date after a reset rests on this: the icon is in place, and stays a success without it.
void noteOurChange(Folder& folder) {
  if (const auto noted = BrandingRecord::noteChanged(folder); !noted) logMessage("branding", noted.error().message());
}

/// Once the work is done; it is no less done when nobody could be told.
void tellFileManagers(Folder& folder, const IconServices& services) {
  if (const auto told = services.notices.noteDirectoryModified(folder); !told)
    logMessage("branding", told.error().message());
}

}  // namespace

std::filesystem::path FolderBranding::_backupPathForFolder(const std::filesystem::path& folder) {
  return folder / backupName;
}

Result<Image> FolderBranding::_iconImageForPath(const std::filesystem::path& path) const {
  return imageOf(TRY(IconFamily::iconFamilyWithIconOfFile(path, _services)), path, shownSize, _services.kinds);
}

Result<Image> FolderBranding::originalIconImage(const std::filesystem::path& path) const {
  const Folder folder = TRY(Folder::open(path, Folder::Access::Read));
  if (const auto backup = TRY(readBackup(folder))) return imageOf(*backup, path, canvasSize, _services.kinds);
  return imageOf(TRY(IconFamily::iconFamilyWithIconOfFile(path, _services)), path, canvasSize, _services.kinds);
}

Result<Folder> FolderBranding::openForWriting(const std::filesystem::path& path, WriteMode mode) const {
  Folder folder = TRY(Folder::open(path, mode == WriteMode::Write ? Folder::Access::Write : Folder::Access::Read));
  TRY_VOID(checkTarget(folder.path()));
  TRY_VOID(checkBrandFiles(folder, brandFileNames(_services.forks, backupName)));
  return folder;
}

Result<bool> FolderBranding::backupIconForFolderAtPath(const std::filesystem::path& path) const {
  Folder folder = TRY(openForWriting(path, WriteMode::Write));
  return backupIcon(folder);
}

Result<bool> FolderBranding::backupIcon(Folder& folder) const {
  // Whatever stands there, an existing backup is never replaced.
  if (TRY(folder.statusOf(backupName))) return false;
  const IconFamily family = TRY(IconFamily::iconFamilyWithIconOfFile(folder.path(), _services));
  TRY(folder.writeFile(backupName, family.bytes()));
  return true;
}

Result<BrandingOutcome> FolderBranding::writeIconWithImage(const std::optional<Image>& image,
                                                           const std::filesystem::path& toPath, WriteMode mode) const {
  if (!image) return Error::invalidInput("there is no picture to make an icon of").at(toPath);
  Folder folder = TRY(openForWriting(toPath, mode));
  const IconFamily family = TRY(IconFamily::iconFamilyWithThumbnailsOfImage(*image));
  const bool hasRecord = TRY(BrandingRecord::exists(folder));
  const bool hasBackup = TRY(folder.statusOf(backupName)).has_value();
  if (hasRecord && hasBackup && TRY(hasIcon(folder, family, _services.forks))) return BrandingOutcome::Unchanged;
  TRY_VOID(checkPlaces(folder, _services.forks));
  if (mode == WriteMode::DryRun) return BrandingOutcome::Changed;

  if (!hasRecord) TRY_VOID(BrandingRecord::make(folder, _services.forks, backupName));
  // A backup that cannot be written does not stop an apply: the record holds the way back as well.
  if (const auto backup = backupIcon(folder); !backup) logMessage("branding", "no backup: " + backup.error().message());
  if (const auto written = setFolderIcon(family, folder, _services); !written) {
    if (!hasRecord) {
      // Nothing of a first apply that failed stays.
      (void)BrandingRecord::noteChanged(folder);
      const auto restored = BrandingRecord::restore(folder, _services.forks, backupName);
      if (!restored) logMessage("branding", "cannot undo: " + restored.error().message());
    }
    return written.error();
  }
  noteOurChange(folder);
  noteAgain(folder.path());
  return BrandingOutcome::Changed;
}

void FolderBranding::noteAgain(const std::filesystem::path& path) const {
  if (!_later) return;
  // Some file managers look too early the first time and keep what they saw.
  _later(secondNotice, [&notices = _services.notices, path] {
    if (auto folder = Folder::open(path, Folder::Access::Write)) (void)notices.noteDirectoryModified(*folder);
  });
}

Result<BrandingOutcome> FolderBranding::revert(const std::filesystem::path& path, WriteMode mode) const {
  Folder folder = TRY(openForWriting(path, mode));
  const auto family = TRY(readBackup(folder));
  if (!family) return BrandingOutcome::NothingToRevert;
  TRY_VOID(checkPlaces(folder, _services.forks));
  if (mode == WriteMode::DryRun) return BrandingOutcome::Changed;
  TRY_VOID(setFolderIcon(*family, folder, _services));
  // The icon is back; a backup that cannot be removed is no failure.
  if (const auto removed = folder.removeFile(backupName); !removed) logMessage("branding", removed.error().message());
  tellFileManagers(folder, _services);
  noteOurChange(folder);
  return BrandingOutcome::Changed;
}

Result<BrandingOutcome> FolderBranding::reset(const std::filesystem::path& path, WriteMode mode) const {
  Folder folder = TRY(openForWriting(path, mode));
  if (!TRY(BrandingRecord::exists(folder))) return BrandingOutcome::NothingToRevert;
  TRY_VOID(folder.checkWritable());
  if (mode == WriteMode::DryRun) return BrandingOutcome::Changed;
  TRY_VOID(BrandingRecord::restore(folder, _services.forks, backupName));
  tellFileManagers(folder, _services);
  return BrandingOutcome::Changed;
}

Result<FolderStatus> FolderBranding::status(const std::filesystem::path& path) const {
  const Folder folder = TRY(Folder::open(path, Folder::Access::Read));
  FolderStatus status;
  const auto fault = [&status](const Error& error) { status.faults.push_back(error.message()); };
  for (const std::string& name : brandFileNames(_services.forks, backupName))
    if (const auto info = TRY(folder.statusOf(name)); info && S_ISREG(info->st_mode))
      status.bytes += static_cast<std::uint64_t>(info->st_size);
  if (const auto info = _services.forks.readFolderInfo(folder)) {
    status.hasCustomFlag = (info->flags() & FinderInfo::hasCustomIcon) != 0;
  } else {
    fault(info.error());
  }
  if (const auto family = readFolderIconResource(folder, _services.forks)) {
    status.hasIconFamily = family->has_value() && (*family)->check().ok();
    if (family->has_value() && !status.hasIconFamily) status.faults.emplace_back("the icon resource is no icon family");
  } else {
    fault(family.error());
  }
  if (const auto backup = readBackup(folder)) {
    status.hasBackup = backup->has_value();
  } else {
    fault(backup.error());
  }
  if (const auto record = BrandingRecord::exists(folder)) {
    status.hasRecord = *record;
  } else {
    fault(record.error());
  }
  if (status.hasCustomFlag && !status.hasIconFamily)
    status.faults.emplace_back("the folder claims an icon that is not there");
  if (!status.hasCustomFlag && !status.hasIconFamily && status.faults.empty() && TRY(findIconFile(folder)))
    status.faults.emplace_back("an icon file stands there that holds no icon");
  if (status.hasIconFamily && !status.hasCustomFlag)
    status.faults.emplace_back("the folder does not say that it has an icon");
  status.hasCustomIcon = status.hasIconFamily && status.hasCustomFlag;
  return status;
}

}  // namespace quorvane
