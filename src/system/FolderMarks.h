// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/Folder.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// What the desktop's own file managers should be told of a folder.
struct WantedMarks {
  /// The PNG picture to show, as a path relative to the folder ("FOLDER/NAME.png"); none: whatever they would show
  /// without us.
  std::optional<std::string> picture;
  /// A file inside that only Macs know how to hide; none: nothing is hidden.
  std::optional<std::string> hiddenFile;
  /// All names under which such a file may have been hidden before.
  std::vector<std::string> formerlyHidden;
};

/// The marks by which file managers that do not know custom icons are made to show one: the seam to the desktop.
///
/// A mark that cannot be set for a reason that lasts (no session, a file system or a folder that does not allow it,
/// something else of the user's in its place) becomes a note in the result and is no failure; a full disk or a read
/// error is one. Safe to use from several threads, for different folders.
class FolderMarks {
 public:
  using Notes = std::vector<std::string>;

  virtual ~FolderMarks() = default;

  /// Keeps in the empty folder `into` what is needed to give the user's own marks back to the letter.
  [[nodiscard]] virtual Result<void> saveOriginal(const Folder& folder, Folder& into) const = 0;
  /// Makes the marks what is wanted. What is no longer wanted is given back from `original`, the folder that
  /// saveOriginal() filled; without one, only what is recognisably ours is taken out. What could not be seen then, and
  /// would be replaced now, is kept there first. What the user set in its place
  /// since stays. Changes nothing that is right already. Notes are sentences for people. Where nothing at all is wanted
  /// any more, what the system does not let be given back from `original` is a failure in any case.
  virtual Result<Notes> set(Folder& folder, const WantedMarks& wanted, Folder* original) = 0;
  /// What set() would change, in words; empty when all is as wanted, as far as it can be told here.
  [[nodiscard]] virtual Result<std::vector<std::string>> faults(const Folder& folder,
                                                                const WantedMarks& wanted) const = 0;
  /// Drops cached pictures of the folder. Nothing rests on it.
  virtual void forgetThumbnails(const std::filesystem::path& folder) const = 0;
};

/// True for a picture path that one of our marks may name.
bool isMarkPicture(std::string_view path);
/// The folder inside which such pictures stand, and how their names begin and end.
inline constexpr const char* markPictureFolder = ".quorvane";
inline constexpr const char* markPicturePrefix = "icon-";
inline constexpr const char* markPictureSuffix = ".png";

/// The desktop's per-folder settings, which are kept outside the folder, under its path.
class FolderMetadata {
 public:
  virtual ~FolderMetadata() = default;
  /// The picture set for a folder; nullopt when there is none. Unsupported without a session that keeps such settings.
  [[nodiscard]] virtual Result<std::optional<std::string>> customIcon(const std::filesystem::path& folder) const = 0;
  /// Sets it (a path relative to the folder), or unsets it; read back before success.
  virtual Result<void> setCustomIcon(const std::filesystem::path& folder,
                                     const std::optional<std::string>& picture) = 0;
};

/// The session's own; nothing is connected before the first use, and no answer is waited for without end.
std::unique_ptr<FolderMetadata> makeDesktopMetadata();
/// Marks by ".directory", ".hidden" and `metadata`, which must outlive them.
std::unique_ptr<FolderMarks> makeDesktopMarks(FolderMetadata& metadata);

}  // namespace quorvane
