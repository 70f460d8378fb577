// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <utility>

namespace quorvane {

/// Something that lies in the trash.
struct TrashedItem {
  std::filesystem::path original;  ///< where it stood
  std::filesystem::path trashed;   ///< where it lies now
};

/// Where things go that may be wanted back. Main thread, or one thread at a time.
class Trash {
 public:
  virtual ~Trash() = default;
  /// Moves a file, link or folder there. nullopt when there is no trash for it; then it stands where it stood.
  virtual std::optional<TrashedItem> put(const std::filesystem::path& path) = 0;
  /// Moves it back to where it stood or, where something stands there now, beside it under a numbered name. The path
  /// that it has then; nullopt when it cannot be moved, and lies where it lay.
  virtual std::optional<std::filesystem::path> restore(const TrashedItem& item) = 0;
};

/// The desktop's own trash.
std::unique_ptr<Trash> makeDesktopTrash();

/// A folder as trash, for tests and where the desktop's is not wanted: things lie in it under their own names or, where
/// that is taken, numbered.
class FolderTrash : public Trash {
 public:
  /// The folder must exist, on the file system of what is put into it.
  explicit FolderTrash(std::filesystem::path folder) : _folder(std::move(folder)) {}
  std::optional<TrashedItem> put(const std::filesystem::path& path) override;
  std::optional<std::filesystem::path> restore(const TrashedItem& item) override;

 private:
  std::filesystem::path _folder;
};

}  // namespace quorvane
