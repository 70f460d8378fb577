// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>
#include <filesystem>
#include <optional>

#include "ui/LocalPath.h"

class QMimeData;

namespace quorvane {

/// What is dragged over the canvas, judged.
struct DroppedFolder {
  Q_DECLARE_TR_FUNCTIONS(DroppedFolder)

 public:
  std::optional<std::filesystem::path> path;  ///< the one folder, links resolved; nullopt when it is refused
  QString refusal;                            ///< the reason in a sentence; empty for a folder

  /// Exactly one address of a folder that exists on this computer is taken. Everything else is refused: files, several
  /// folders, addresses on other computers, texts and pictures. Looks into the file system.
  static DroppedFolder of(const QMimeData& data);
};

}  // namespace quorvane
