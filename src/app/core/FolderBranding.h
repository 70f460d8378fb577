// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"
#include "iconfamily/IconFamily.h"
#include "iconfamily/IconServices.h"
#include "imaging/Image.h"

namespace quorvane {

/// What is there of a brand in a folder.
struct FolderStatus {
  bool hasCustomIcon = false;       ///< a readable icon family and the folder's flag: a Mac shows it
  bool hasIconFamily = false;       ///< a readable family in the icon file's fork
  bool hasCustomFlag = false;       ///< the folder says that it has a custom icon
  bool hasBackup = false;           ///< .BackupIcon.icns is there: revert has something to put back
  bool hasRecord = false;           ///< we changed this folder, and reset can give back what was there before
  std::uint64_t bytes = 0;          ///< of all files of the brand
  std::vector<std::string> faults;  ///< what contradicts itself, in words

  /// Part of a custom icon without the rest.
  [[nodiscard]] bool isIncomplete() const { return hasIconFamily != hasCustomFlag || !faults.empty(); }
};

enum class BrandingOutcome {
  Changed,
  Unchanged,        ///< it was already as wanted; nothing was written
  NothingToRevert,  ///< no backup, or (for reset) no record
};

enum class WriteMode {
  Write,
  DryRun,  ///< reads, checks and composes everything, writes nothing; the verdict is the real run's
};

/// The folder flow without a window: keeps a folder's icon from before the first change, writes the composed icon, puts
/// the old one back. One operation works on one folder at a time and excludes other writers of ours on it.
///
/// Two ways back: `revert` puts the backed-up picture back as a custom icon, as the window's button does; `reset` gives
/// back exactly what stood there before the first apply, a former custom icon or none, bit for bit.
class FolderBranding {
 public:
  /// Runs something after a delay, as an event loop can. File managers are told of a new icon a second time then.
  using Later = std::function<void(std::chrono::milliseconds delay, std::function<void()> what)>;
  static constexpr std::chrono::milliseconds secondNotice{500};

  /// The services must outlive it and whatever it hands to `later`. Without `later` there is no second notice.
  explicit FolderBranding(const IconServices& services, Later later = {})
      : _services(services), _later(std::move(later)) {}

  /// The backup icon's path, ".BackupIcon.icns" directly inside the folder.
  static std::filesystem::path _backupPathForFolder(const std::filesystem::path& folder);
  static constexpr const char* backupName = ".BackupIcon.icns";

  /// The folder's present icon as it is shown, 512 x 512 points, scalable.
  [[nodiscard]] Result<Image> _iconImageForPath(const std::filesystem::path& path) const;
  /// The icon from before the first apply: the backup's picture when there is one, else the present icon. What the
  /// command line draws on, so that a second run does not draw a label over a label.
  [[nodiscard]] Result<Image> originalIconImage(const std::filesystem::path& path) const;

  /// Writes the folder's present icon as the backup. False, and nothing done, when something stands there already.
  Result<bool> backupIconForFolderAtPath(const std::filesystem::path& path) const;

  /// Builds a family from the image, backs up, stores the family as the folder's custom icon and tells the file
  /// managers. A backup that exists or cannot be written does not stop it. On failure the old icon stays.
  Result<BrandingOutcome> writeIconWithImage(const std::optional<Image>& image, const std::filesystem::path& toPath,
                                             WriteMode mode = WriteMode::Write) const;

  /// Puts the backed-up icon back as the custom icon and, only if that succeeds, removes the backup.
  Result<BrandingOutcome> revert(const std::filesystem::path& path, WriteMode mode = WriteMode::Write) const;

  /// Gives back what was there before the first apply and removes everything of ours.
  Result<BrandingOutcome> reset(const std::filesystem::path& path, WriteMode mode = WriteMode::Write) const;

  [[nodiscard]] Result<FolderStatus> status(const std::filesystem::path& path) const;

 private:
  [[nodiscard]] Result<Folder> openForWriting(const std::filesystem::path& path, WriteMode mode) const;
  Result<bool> backupIcon(Folder& folder) const;

  void noteAgain(const std::filesystem::path& path) const;

  const IconServices& _services;
  Later _later;
};

}  // namespace quorvane
