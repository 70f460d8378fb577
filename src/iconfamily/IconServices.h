// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"
#include "iconfamily/ForkStore.h"
#include "iconfamily/IconFamily.h"
#include "system/FileManagerNotices.h"
#include "system/FolderMarks.h"
#include "system/KindIcons.h"

namespace quorvane {

/// What icons and custom icons need of the platform, chosen once by the main function or a test. Owns nothing.
struct IconServices {
  ForkStore& forks;
  const KindIcons& kinds;
  FileManagerNotices& notices;
  FolderMarks* marks = nullptr;  ///< none: branded folders get nothing but the custom icon
};

}  // namespace quorvane
