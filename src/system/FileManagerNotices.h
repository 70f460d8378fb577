// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Folder.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// Tells the desktop's file managers that the look of a folder has changed.
class FileManagerNotices {
 public:
  virtual ~FileManagerNotices() = default;
  virtual Result<void> noteDirectoryModified(Folder& folder) = 0;
};

/// Re-stamps the folder with the very times it has: file managers that watch its parent then look at it again. A folder
/// of somebody else cannot be stamped; that is no failure, their own watch has to do.
class StampingNotices : public FileManagerNotices {
 public:
  Result<void> noteDirectoryModified(Folder& folder) override;
};

}  // namespace quorvane
