// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/FileWriting.h"

#include "foundation/Folder.h"

namespace quorvane {

Result<void> writePlainFile(const std::filesystem::path& path, ByteView bytes) {
  if (!path.has_filename()) return Error::invalidInput("the path names no file").at(path);
  Folder folder = TRY(Folder::open(path.has_parent_path() ? path.parent_path() : ".", Folder::Access::Write));
  TRY_VOID(folder.writeFile(path.filename().string(), bytes));
  return {};
}

}  // namespace quorvane
