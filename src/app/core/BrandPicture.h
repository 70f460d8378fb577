// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "foundation/Folder.h"
#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "iconfamily/IconFamily.h"

namespace quorvane {

/// The icon once more as a PNG picture inside the folder, for file managers that read no icon families. Its name is
/// made from its bytes, as those managers keep showing the old picture when one is replaced under the same name.
class BrandPicture {
 public:
  /// The family's 512 pixels; without those its largest picture. Fails when it holds none.
  static Result<BrandPicture> of(const IconFamily& family);

  /// Relative to the folder: ".quorvane/icon-HASH.png".
  [[nodiscard]] const std::string& path() const { return _path; }
  [[nodiscard]] ByteView bytes() const { return _bytes; }

  /// Whether it stands in the folder, and no other one beside it.
  [[nodiscard]] Result<bool> isAlone(const Folder& folder) const;
  /// Writes it beside those that are there. The folder that holds them must be there.
  Result<void> write(Folder& folder) const;

  /// The pictures in a folder, and what passes itself off as one, as paths relative to it, the newest first; none
  /// without the folder that holds them.
  static Result<std::vector<std::string>> allIn(const Folder& folder);
  /// Removes them save the one of that path.
  static Result<void> removeAll(Folder& folder, const std::optional<std::string>& except = {});
  /// The bytes of one of them.
  static Result<Bytes> read(const Folder& folder, const std::string& path);

 private:
  BrandPicture(std::string path, Bytes bytes) : _path(std::move(path)), _bytes(std::move(bytes)) {}

  std::string _path;
  Bytes _bytes;
};

}  // namespace quorvane
