// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/FolderCompanion.h"

#include "iconfamily/Companion.h"

namespace quorvane::companion {

Result<FolderCompanion> ofFolder(const Folder& folder, Folder::Access access) {
  auto parent = folder.openParent(access);
  if (!parent.ok() && parent.error().kind() != ErrorKind::Unsupported) return parent.error();
  if (!parent.ok() || TRY(parent->folder.status()).st_dev != TRY(folder.status()).st_dev)
    return FolderCompanion{std::nullopt, insideName};
  auto file = nameFor(parent->name);
  if (!file.ok()) return file.error().at(folder.path());
  return FolderCompanion{std::move(parent->folder), std::move(*file)};
}

}  // namespace quorvane::companion
