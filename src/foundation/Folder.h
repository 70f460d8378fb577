// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// A folder of the user's, opened once; everything is done relative to that handle, so a folder that is renamed or
/// swapped for a link meanwhile is never mistaken. The only class that writes into people's folders.
///
/// Names are single path components (raw bytes, no "/", not "." or ".."). No last step follows a link: a link, folder,
/// fifo or device in the place of a file is refused (ErrorKind::Refused). Every error carries the path and the reason.
/// Move-only; closing ends the lock.
class Folder {
 public:
  enum class Access {
    Read,   ///< look only
    Write,  ///< waits for other writers of ours on this folder (bounded), then sweeps leftovers of interrupted runs
  };

  /// Opens an existing folder; a link to a folder is resolved once, here. Fails on anything else.
  static Result<Folder> open(const std::filesystem::path& path, Access access);
  /// The folder that holds this one (same access rules), for the companion of the folder itself; and the name that this
  /// folder has there. Fails for the root of the file system.
  struct Parent;
  [[nodiscard]] Result<Parent> openParent(Access access) const;
  /// A folder directly inside this one. Never through a link.
  [[nodiscard]] Result<Folder> openChild(const std::string& name, Access access) const;
  /// The same, made first when it is missing (mode and owner as writeFile() gives them, with execute bits).
  Result<Folder> makeChild(const std::string& name);

  Folder(Folder&&) noexcept;
  Folder& operator=(Folder&&) noexcept;
  ~Folder();

  /// The path as resolved when it was opened: for words and messages, and to hand to other programs.
  [[nodiscard]] const std::filesystem::path& path() const { return _path; }
  [[nodiscard]] struct stat status() const;

  /// What stands under a name; nullopt when nothing does. Does not follow links.
  [[nodiscard]] Result<std::optional<struct stat>> statusOf(const std::string& name) const;
  /// All names except "." and "..", unsorted.
  [[nodiscard]] Result<std::vector<std::string>> names() const;
  /// The bytes of a plain file; nullopt when there is none. Refuses links, other kinds, and more than `limit` bytes.
  [[nodiscard]] Result<std::optional<Bytes>> readFile(const std::string& name, std::size_t limit) const;

  /// Writes a whole file: under a hidden temporary name, flushed, renamed over, the folder flushed, read back and
  /// compared. A replaced file's owner, group, mode and extended attributes go over to the new one (its access list with
  /// them); a new one gets the folder's owner when we are root, its group, and its mode without execute bits under the
  /// umask. A hard link's other name keeps the old content. On failure nothing under `name` has changed.
  Result<void> writeFile(const std::string& name, ByteView bytes);
  /// Removes a plain file; success when there is none. Refuses folders; a link itself is removed, never its target,
  /// only with `evenLink`.
  Result<void> removeFile(const std::string& name, bool evenLink = false);
  /// Removes a folder directly inside with everything in it, never through links; success when there is none.
  Result<void> removeChild(const std::string& name);
  /// Renames within this folder or into another one; replaces a plain file, or an empty folder by a folder.
  Result<void> rename(const std::string& from, const Folder& to, const std::string& name);
  /// Gives a plain file a second name in another folder of the same file system, or, where that cannot be, copies bytes,
  /// owner, mode, times and extended attributes. The copy stays what it was when the original is later replaced.
  Result<void> preserve(const std::string& name, const Folder& in, const std::string& as) const;

  /// An extended attribute of the folder itself; nullopt when there is none or the file system knows none.
  [[nodiscard]] Result<std::optional<Bytes>> attribute(const std::string& name) const;
  /// Fails with ErrorKind::Unsupported where the file system takes none.
  Result<void> setAttribute(const std::string& name, ByteView value);
  /// Success when there was none.
  Result<void> removeAttribute(const std::string& name);
  /// The same for a plain file inside.
  [[nodiscard]] Result<std::optional<Bytes>> attributeOf(const std::string& file, const std::string& name) const;
  Result<void> setAttributeOf(const std::string& file, const std::string& name, ByteView value);

  /// Access and modification times of the folder itself, or of a plain file inside.
  Result<void> setTimes(const timespec& accessed, const timespec& modified);
  Result<void> setTimesOf(const std::string& file, const timespec& accessed, const timespec& modified);

  /// Flushes the folder's entries.
  Result<void> flush();

 private:
  Folder(int handle, std::filesystem::path path) : _handle(handle), _path(std::move(path)) {}
  int _handle = -1;
  std::filesystem::path _path;
};

struct Folder::Parent {
  Folder folder;
  std::string name;
};

}  // namespace quorvane
