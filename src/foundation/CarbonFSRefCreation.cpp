// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/CarbonFSRefCreation.h"

#include "foundation/Folder.h"
#include "foundation/base/Log.h"

namespace quorvane {

bool getFSRef(const std::filesystem::path& path, bool createFileIfNecessary) {
  if (path.native().find('\0') != std::string::npos) return false;
  std::error_code ignored;
  if (std::filesystem::exists(path, ignored)) return true;
  if (!createFileIfNecessary) return false;
  const std::filesystem::path parent = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
  const auto create = [&]() -> Result<void> {
    Folder folder = TRY(Folder::open(parent, Folder::Access::Write));
    TRY_VOID(folder.writeFile(path.filename().string(), {}, std::nullopt));
    return {};
  };
  if (const auto created = create(); !created.ok()) {
    logMessage("folder", created.error().message());
    return false;
  }
  return true;
}

}  // namespace quorvane
