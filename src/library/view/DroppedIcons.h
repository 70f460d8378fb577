// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>
#include <filesystem>
#include <vector>

class QMimeData;

namespace quorvane {

/// Files and pictures of other programs, dragged or pasted.
struct DroppedIcons {
  Q_DECLARE_TR_FUNCTIONS(DroppedIcons)

 public:
  std::vector<std::filesystem::path> files;  ///< in the pasteboard's order, as they were given; not looked at
  bool hasPicture = false;                   ///< a picture itself and no file
  QString refusal;                           ///< why there is neither, in a sentence; empty otherwise

  static DroppedIcons of(const QMimeData& data);

  /// Writes the picture of the data into a file of the folder, named by where it is from or else by that name. Empty
  /// when it cannot be written.
  static std::filesystem::path writePicture(const QMimeData& data, const std::filesystem::path& folder,
                                            const QString& otherwise);
};

}  // namespace quorvane
