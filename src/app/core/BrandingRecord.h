// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"
#include "iconfamily/IconServices.h"

namespace quorvane {

enum class BrandingOperation { Apply, Revert, Reset };

/// The operation's name: "apply", "revert", "reset".
std::string operationName(BrandingOperation operation);

/// Where a folder with a record stands.
struct BrandingState {
  bool isBranded = false;                       ///< after an apply; false after a revert
  std::optional<BrandingOperation> unfinished;  ///< one that was begun and never ended
};

/// Nothing of ours: what a folder without a brand should say to file managers.
WantedMarks noMarks();

/// What stood in a folder before the first apply, kept in the hidden folder ".quorvane" inside it until a reset:
///
///   original/     the former icon files and Finder info, as the ForkStore keeps them
///   marks/        what file managers were told before, as the FolderMarks keep it
///   backup.icns   a backup icon that stood there before us, under another program's care
///   record.json   the rest: times, whether there was such a backup, what was done last and whether it was finished
///
/// It is built under a temporary name and appears whole or not at all; once there, what it keeps is never changed.
class BrandingRecord {
 public:
  static constexpr const char* folderName = ".quorvane";

  /// nullopt without a record. Fails when something else of that name is there.
  static Result<std::optional<BrandingState>> state(const Folder& folder);
  /// Bytes of everything in it.
  static Result<std::uint64_t> size(const Folder& folder);
  /// Fails when something that a reset needs is missing or damaged.
  static Result<void> check(const Folder& folder, const ForkStore& forks);
  /// Fails when the record itself cannot be written, as far as it can be told untried. Success without one.
  static Result<void> checkWritable(const Folder& folder);
  /// The folder's custom icon from before the first apply; nullopt when it had none.
  static Result<std::optional<IconFamily>> originalIcon(const Folder& folder, const ForkStore& forks);
  /// What file managers were told before, for FolderMarks; nullopt when nothing was kept.
  static Result<std::optional<Folder>> originalMarks(const Folder& folder, Folder::Access access);

  /// Keeps what is there now, and notes that an apply has begun. `backupName` is the backup icon's file.
  static Result<void> make(Folder& folder, const IconServices& services, const std::string& backupName);
  /// Notes that an operation has begun. With a record only.
  static Result<void> begin(Folder& folder, BrandingOperation operation);
  /// Notes what an operation that failed leaves behind: where the folder stood before it began, with an earlier
  /// interruption still to be made good. With a record only.
  static Result<void> abandon(Folder& folder, const BrandingState& before);
  /// Notes that it has ended, and that our last change of the folder is done: a later change of its date is somebody
  /// else's. With a record only.
  static Result<void> finish(Folder& folder, bool isBranded);
  /// Gives back everything that was kept, then removes the record. Can be repeated after an interruption. Returns what
  /// the marks had to say.
  static Result<FolderMarks::Notes> restore(Folder& folder, const IconServices& services,
                                            const std::string& backupName);
};

}  // namespace quorvane
