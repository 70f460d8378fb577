// SPDX-License-Identifier: GPL-3.0-or-later
#include <cerrno>

#include "system/FileManagerNotices.h"

namespace quorvane {

Result<void> StampingNotices::noteDirectoryModified(Folder& folder) {
  const struct stat now = TRY(folder.status());
  const auto stamped = folder.setTimes(now.st_atim, now.st_mtim);
  const bool isForeign = !stamped && (stamped.error().systemCode() == EPERM || stamped.error().systemCode() == EACCES);
  return isForeign ? Result<void>() : stamped;
}

}  // namespace quorvane
