// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ctime>
#include <optional>
#include <string>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"
#include "iconfamily/ForkStore.h"

namespace quorvane {

/// What stood in a folder before the first apply, kept in the hidden folder ".quorvane" inside it until a reset:
///
///   original/     the former icon files and Finder info, as the ForkStore keeps them
///   backup.icns   a backup icon that stood there before us, under another program's care
///   record.json   the rest: times, and whether there was such a backup
///
/// It is built under a temporary name and appears whole or not at all; once there, what it keeps is never changed.
class BrandingRecord {
 public:
  static constexpr const char* folderName = ".quorvane";

  /// True when a complete record is there. Fails when something else of that name is.
  static Result<bool> exists(const Folder& folder);
  /// Keeps what is there now. `backupName` is the backup icon's file.
  static Result<void> make(Folder& folder, const ForkStore& forks, const std::string& backupName);
  /// Remembers that our last change of the folder is done: a later change of its date is somebody else's.
  static Result<void> noteChanged(Folder& folder);
  /// Gives back everything that was kept, then removes the record. Can be repeated after an interruption.
  static Result<void> restore(Folder& folder, ForkStore& forks, const std::string& backupName);
};

}  // namespace quorvane
