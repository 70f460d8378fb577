// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <filesystem>
#include <map>

#include "Library.h"
#include "foundation/base/Result.h"

namespace quorvane::baseicons {

/// The vector sources, below the folder resources. Each is read once.
class Sources {
 public:
  explicit Sources(std::filesystem::path folder) : _folder(std::move(folder)) {}

  /// A file below the folder.
  Result<QByteArray> read(const QString& name);
  [[nodiscard]] bool has(const QString& name) const;
  /// All that has been read, by path.
  [[nodiscard]] const std::map<std::filesystem::path, QByteArray>& files() const { return _files; }

 private:
  std::filesystem::path _folder;
  std::map<std::filesystem::path, QByteArray> _files;
};

/// The icon's picture, drawn for that many pixels a side: 8-bit ARGB, premultiplied. Of
/// library/drawings/NAME-PIXELS.svg.in when there is one, else of drawings/NAME.svg.in, which serves 128 and up;
/// resources/README.md has the form.
Result<QImage> drawPicture(Sources& sources, const IconRow& icon, int pixels);

}  // namespace quorvane::baseicons
