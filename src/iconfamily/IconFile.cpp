// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/IconFile.h"

namespace quorvane {

Result<std::optional<std::string>> findIconFile(const Folder& folder) {
  for (const std::string& name : iconFileNames)
    if (TRY(folder.statusOf(name))) return std::optional(name);
  return std::optional<std::string>();
}

}  // namespace quorvane
