// SPDX-License-Identifier: GPL-3.0-or-later
// What is there of a brand, and what is wrong with it.
#include "app/core/BrandingTarget.h"
#include "app/core/FolderBranding.h"
#include "iconfamily/CustomIcon.h"
#include "iconfamily/IconFile.h"

namespace quorvane {

namespace {

Result<std::uint64_t> sizeOfBrand(const Folder& folder, const ForkStore& forks, const std::string& backupName) {
  auto size = BrandingRecord::size(folder);
  std::uint64_t bytes = size.ok() ? *size : 0;
  for (const std::string& name : brandFileNames(forks, backupName))
    if (const auto info = TRY(folder.statusOf(name)); info && S_ISREG(info->st_mode))
      bytes += static_cast<std::uint64_t>(info->st_size);
  return bytes;
}

/// The parts of a custom icon that stand there without the parts that they need.
Result<std::vector<std::string>> iconFaults(const Folder& folder, const FolderStatus& status, const ForkStore& forks) {
  std::vector<std::string> faults;
  const bool hasFile = TRY(findIconFile(folder)).has_value();
  if (status.hasCustomFlag && !status.hasIconFamily) faults.emplace_back("the folder claims an icon that is not there");
  if (status.hasIconFamily && !status.hasCustomFlag) faults.emplace_back("the folder does not say that it has an icon");
  if (!status.hasCustomFlag && !status.hasIconFamily && hasFile)
    faults.emplace_back("an icon file stands there that holds no icon");
  for (const std::string& beside : forks.filesBeside(iconFileName))
    if (!hasFile && TRY(folder.statusOf(beside))) faults.emplace_back("a companion stands there without its icon file");
  return faults;
}

}  // namespace

Result<FolderStatus> FolderBranding::statusOf(const Folder& folder) const {
  FolderStatus status;
  const auto fault = [&status](const Error& error) { status.faults.push_back(error.message()); };
  status.bytes = TRY(sizeOfBrand(folder, _services.forks, backupName));
  if (const auto info = _services.forks.readFolderInfo(folder)) {
    status.hasCustomFlag = (info->flags() & FinderInfo::hasCustomIcon) != 0;
  } else {
    fault(info.error());
  }
  const auto family = readFolderIconResource(folder, _services.forks);
  if (family) {
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
  std::optional<BrandingState> state;
  if (auto read = BrandingRecord::state(folder)) {
    state = *read;
    status.hasRecord = state.has_value();
  } else {
    fault(read.error());
  }
  if (status.hasRecord) {
    if (const auto checked = BrandingRecord::check(folder, _services.forks); !checked) fault(checked.error());
  }
  if (status.faults.empty()) status.faults = TRY(iconFaults(folder, status, _services.forks));
  status.hasCustomIcon = status.hasIconFamily && status.hasCustomFlag;
  if (state) status.unfinished = state->unfinished;
  if (_services.marks == nullptr) return status;

  if (!state) {
    status.markFaults = TRY(markFaults(folder, noMarks()));
  } else if (!state->isBranded) {
    status.markFaults = TRY(markFaults(folder, TRY(marksFor(folder, {}))));
  } else if (status.hasIconFamily) {
    const auto picture = BrandPicture::of(**family);
    if (!picture) {
      fault(picture.error());
    } else {
      status.markFaults = TRY(markFaults(folder, TRY(marksFor(folder, picture->path()))));
      if (!TRY(picture->isAlone(folder)))
        status.markFaults.emplace_back("the picture for file managers is missing, damaged or another icon's");
    }
  }
  return status;
}

Result<FolderStatus> FolderBranding::status(const std::filesystem::path& path) const {
  // Looking takes no lock: what another run removes at that moment is looked for once more.
  constexpr int attempts = 3;
  const Folder folder = TRY(Folder::open(path, Folder::Access::Read));
  auto status = statusOf(folder);
  for (int i = 1; i < attempts && !status.ok() && status.error().kind() == ErrorKind::NotFound; ++i)
    status = statusOf(folder);
  return status;
}

}  // namespace quorvane
