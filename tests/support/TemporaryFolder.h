// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "foundation/base/Bytes.h"

namespace quorvane::test {

/// A fresh folder that is removed with everything in it when the object goes away.
class TemporaryFolder {
 public:
  /// Under $TMPDIR or /tmp, or under `parent` when given (to choose the file system).
  explicit TemporaryFolder(const std::filesystem::path& parent = {});
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return _path; }
  std::filesystem::path operator/(const std::filesystem::path& name) const { return _path / name; }

 private:
  std::filesystem::path _path;
};

/// Writes or reads a whole file; fails the test when it cannot.
void writeFile(const std::filesystem::path& path, ByteView bytes);
void writeFile(const std::filesystem::path& path, const std::string& text);
Bytes readFile(const std::filesystem::path& path);

inline Bytes bytesOf(const std::string& text) {
  return Bytes(text.begin(), text.end());
}

/// Everything about a tree that a person could see: one line an entry, sorted: path, kind, mode, owner, link target or
/// content hash, extended attributes, and modification time when `withTimes`. Two equal texts are equal trees.
std::string describeTree(const std::filesystem::path& root, bool withTimes = false);

}  // namespace quorvane::test
