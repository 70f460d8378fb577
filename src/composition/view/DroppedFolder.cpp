// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/view/DroppedFolder.h"

#include <QMimeData>
#include <QUrl>

#include "foundation/FileManagerExtras.h"

namespace quorvane {

DroppedFolder DroppedFolder::of(const QMimeData& data) {
  const QList<QUrl> addresses = data.hasUrls() ? data.urls() : QList<QUrl>();
  if (addresses.isEmpty()) return {std::nullopt, tr("Only a folder can be dropped here.")};
  if (addresses.size() > 1) return {std::nullopt, tr("Only one folder can be dropped at a time.")};
  const auto path = localPath(addresses.first());
  if (!path) return {std::nullopt, tr("Only folders on this computer can be dropped here.")};
  if (isDirectory(*path)) return {resolved(*path), QString()};
  std::error_code ignored;
  if (!std::filesystem::exists(*path, ignored)) return {std::nullopt, tr("The folder dropped does not exist.")};
  return {std::nullopt, tr("Only a folder can be dropped here, not a file.")};
}

}  // namespace quorvane
