// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/core/BrandPicture.h"
#include "app/core/BrandingRecord.h"
#include "app/core/IconMaker.h"
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
  /// What keeps file managers that know no custom icons from showing it, or from showing the plain folder again; in
  /// words. Moving or copying a folder is enough.
  std::vector<std::string> markFaults;
  std::optional<BrandingOperation> unfinished;  ///< one that was interrupted

  /// Part of a custom icon without the rest.
  [[nodiscard]] bool isIncomplete() const { return hasIconFamily != hasCustomFlag || !faults.empty(); }
  /// All is as one of our operations leaves it, or nothing of ours is there.
  [[nodiscard]] bool isSound() const { return !isIncomplete() && markFaults.empty() && !unfinished; }
};

enum class BrandingOutcome {
  Changed,
  Unchanged,        ///< it was already as wanted; nothing was written
  NothingToRevert,  ///< no backup, or (for reset) no record
};

/// What an operation did, and what the user should know of it besides: sentences for people, without the folder's path.
struct BrandingResult {
  BrandingOutcome outcome = BrandingOutcome::Changed;
  std::vector<std::string> notes;

  /// Tests and callers to whom the notes do not matter.
  bool operator==(BrandingOutcome other) const { return outcome == other; }
};

enum class WriteMode {
  Write,
  DryRun,  ///< reads, checks and composes everything, writes nothing; the verdict is the real run's
};

/// The folder flow without a window: keeps a folder's icon from before the first change, writes the composed icon, puts
/// the old one back. One operation works on one folder at a time and excludes other writers of ours on it.
///
/// Two ways back: `revert` puts the backed-up picture back as a custom icon, as the window's button does; `reset` gives
/// back exactly what stood there before the first apply, a former custom icon or none, bit for bit. Safe to share
/// between threads.
class FolderBranding {
 public:
  /// Runs something after a delay, as an event loop can. File managers are told of a new icon a second time then.
  using Later = std::function<void(std::chrono::milliseconds delay, std::function<void()> what)>;
  static constexpr std::chrono::milliseconds secondNotice{500};

  /// The services must outlive it and whatever it hands to `later`. Without `later` there is no second notice.
  explicit FolderBranding(const IconServices& services, Later later = {})
      : _services(services), _later(std::move(later)) {}

  [[nodiscard]] const IconServices& services() const { return _services; }

  /// The backup icon's path, ".BackupIcon.icns" directly inside the folder.
  static std::filesystem::path _backupPathForFolder(const std::filesystem::path& folder);
  static constexpr const char* backupName = ".BackupIcon.icns";

  /// The folder's present icon as it is shown, 512 x 512 points, scalable.
  [[nodiscard]] Result<Image> _iconImageForPath(const std::filesystem::path& path) const;
  /// The icon from before the first apply: the backup's picture when there is one, else the present icon. What looks
  /// are drawn on, so that a second run does not draw a label over a label.
  [[nodiscard]] Result<Image> originalIconImage(const std::filesystem::path& path) const;

  /// Writes the folder's present icon as the backup. False, and nothing done, when something stands there already.
  Result<bool> backupIconForFolderAtPath(const std::filesystem::path& path) const;

  /// Builds a family from the image, backs up, stores the family as the folder's custom icon and tells the file
  /// managers. A backup that exists or cannot be written does not stop it. On failure the old icon stays.
  Result<BrandingResult> writeIconWithImage(const std::optional<Image>& image, const std::filesystem::path& toPath,
                                            WriteMode mode = WriteMode::Write) const;

  /// The same with an icon that is made while the folder is held: the look drawn on the base, or, without one, on the
  /// icon from before the first apply.
  Result<BrandingResult> applyLook(const Look& look, const std::optional<BaseReference>& base, IconMaker& maker,
                                   const std::filesystem::path& path, WriteMode mode = WriteMode::Write) const;

  /// Puts the backed-up icon back as the custom icon and, only if that succeeds, removes the backup.
  Result<BrandingResult> revert(const std::filesystem::path& path, WriteMode mode = WriteMode::Write) const;

  /// Gives back what was there before the first apply and removes everything of ours.
  Result<BrandingResult> reset(const std::filesystem::path& path, WriteMode mode = WriteMode::Write) const;

  [[nodiscard]] Result<FolderStatus> status(const std::filesystem::path& path) const;

  /// Makes a branded folder sound again: finishes what was interrupted, writes the marks anew after the folder was
  /// moved or copied, makes an icon that is damaged or missing from its picture. Unchanged when nothing was wrong. What
  /// no longer can be made whole goes back to what was there before the first apply; the notes say so.
  Result<BrandingResult> repair(const std::filesystem::path& path, WriteMode mode = WriteMode::Write) const;

 private:
  using Notes = FolderMarks::Notes;

  [[nodiscard]] Result<Folder> openForWriting(const std::filesystem::path& path, WriteMode mode) const;
  Result<bool> backupIcon(Folder& folder) const;
  /// The icon from before the first apply.
  [[nodiscard]] Result<IconFamily> originalFamily(const Folder& folder) const;
  Result<BrandingResult> writeFamily(const IconFamily& family, Folder& folder, WriteMode mode) const;
  /// The backup's family; nullopt without a backup. Fails on one that is no plain file or no icon.
  static Result<std::optional<IconFamily>> readBackup(const Folder& folder);
  /// The icon from before the first apply, where there is no backup of it.
  [[nodiscard]] Result<IconFamily> familyFromBefore(const Folder& folder) const;
  [[nodiscard]] Result<FolderStatus> statusOf(const Folder& folder) const;

  /// The marks of a branded folder, or (without a picture) of one whose former icon was put back.
  static Result<WantedMarks> marksFor(const Folder& folder, const std::optional<std::string>& picture);
  Result<Notes> setMarks(Folder& folder, const WantedMarks& wanted) const;
  [[nodiscard]] Result<std::vector<std::string>> markFaults(const Folder& folder, const WantedMarks& wanted) const;

  /// Whether the folder shows exactly this icon everywhere already.
  [[nodiscard]] Result<bool> isBrandedWith(const Folder& folder, const IconFamily& family,
                                           const BrandPicture& picture) const;
  /// Icon, picture and marks, after begin() and before finish(): all or none of them.
  Result<Notes> writeBrand(Folder& folder, const IconFamily& family, const BrandPicture& picture) const;
  /// The backup as custom icon and the marks from before the first apply, then no backup and no picture.
  Result<Notes> putBackup(Folder& folder, const IconFamily& backup) const;

  Result<Notes> repairBranded(Folder& folder, const BrandingState& state) const;
  Result<Notes> repairIcon(Folder& folder, const IconFamily& family) const;
  Result<Notes> repairForeign(Folder& folder) const;
  Result<Notes> giveUp(Folder& folder, const std::string& why) const;

  static std::string interruptedWords(BrandingOperation operation);
  /// File managers look at the folder again.
  void tell(Folder& folder) const;
  void noteAgain(const std::filesystem::path& path) const;

  const IconServices& _services;
  Later _later;
};

}  // namespace quorvane
