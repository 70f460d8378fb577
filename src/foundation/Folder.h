// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "foundation/FileDescriptor.h"
#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// What became of a file that was to be written.
enum class WriteOutcome {
  Written,
  Unchanged,  ///< exactly these bytes stood there already; nothing was touched
};

/// A folder of the user's, opened once; everything is done relative to that handle, so a folder that is renamed or
/// swapped for a link meanwhile is never mistaken. The only class that writes into people's folders.
///
/// Names are single path components (raw bytes, no "/", not "." or "..", at most 255 bytes). No last step follows a
/// link: a link, folder, fifo or device in the place of a file is refused (ErrorKind::Refused) and never opened. Every
/// error carries the path and the reason. Operations that change something need Access::Write. Move-only.
///
/// Locks. A folder opened for writing is locked for other writers of ours, in this process too, until the object goes
/// away; the lock is on the folder itself and leaves no file behind. Where several are needed, the folder that is being
/// changed is locked first and its parent after it, never the other way round, so that writers at different depths of a
/// tree cannot wait for each other. openChild() and makeChild() lock downwards: they are for folders of our own inside,
/// which nobody locks first. As every wait is bounded, a breach of this order ends in an error, not in a standstill.
class Folder {
 public:
  enum class Access {
    Read,   ///< look only
    Write,  ///< waits for other writers of ours on this folder (bounded), then sweeps leftovers of interrupted runs.
            ///< A folder that cannot be written opens all the same; the first change says why it cannot be made.
  };
  /// How long a writer waits for another one.
  static constexpr std::chrono::milliseconds patience{10'000};

  /// Opens an existing folder; a link to a folder is resolved once, here. Fails on anything else.
  static Result<Folder> open(const std::filesystem::path& path, Access access,
                             std::chrono::milliseconds wait = patience);
  /// The folder that holds this one (same access rules), for the companion of the folder itself; and the name that this
  /// folder has there. ErrorKind::Unsupported for the root of the whole file system.
  struct Parent;
  [[nodiscard]] Result<Parent> openParent(Access access) const;
  /// A folder directly inside this one. Never through a link.
  [[nodiscard]] Result<Folder> openChild(const std::string& name, Access access) const;
  /// The same for writing, made first when it is missing (mode and owner as writeFile() gives them, with execute bits).
  Result<Folder> makeChild(const std::string& name);

  /// A fresh name for something that is built under it and renamed when it is complete. What is left under such a name
  /// after an interruption is swept by the next opening for writing; but no folder that somebody has open for writing.
  static std::string temporaryName();

  /// The path as resolved when it was opened: for words and messages, and to hand to other programs.
  [[nodiscard]] const std::filesystem::path& path() const { return _path; }
  [[nodiscard]] Result<struct stat> status() const;
  /// The path of an item inside, for messages.
  [[nodiscard]] std::filesystem::path pathOf(const std::string& name) const { return _path / name; }

  /// What stands under a name; nullopt when nothing does. Does not follow links.
  [[nodiscard]] Result<std::optional<struct stat>> statusOf(const std::string& name) const;
  /// All names except "." and "..", unsorted.
  [[nodiscard]] Result<std::vector<std::string>> names() const;
  /// The bytes of a plain file; nullopt when there is none. Refuses links, other kinds, and more than `limit` bytes.
  [[nodiscard]] Result<std::optional<Bytes>> readFile(const std::string& name, std::size_t limit) const;
  /// A plain file opened for reading; nullopt when there is none. Refuses links and other kinds.
  [[nodiscard]] Result<std::optional<FileDescriptor>> openFile(const std::string& name) const;

  /// Writes a whole file: under a hidden temporary name, flushed, read back and compared, renamed over, the folder
  /// flushed, and read once more. A replaced file's owner, group, mode and extended attributes go over to the new one
  /// (its access list with them); a new one gets the folder's owner when we are root, its group where we may, and its
  /// mode without execute bits under the umask. An owner that only root could keep becomes ours; a group that we may
  /// not give leaves its members no more than everybody has. A hard link's other name keeps the old content. On failure
  /// nothing under `name` has changed, unless only what comes after the renaming failed.
  Result<WriteOutcome> writeFile(const std::string& name, ByteView bytes);
  /// The same for a file that was read before and edited: refused when the file (nullopt: no file) is no longer what it
  /// was then, so that nobody's change in between is lost.
  Result<WriteOutcome> writeFile(const std::string& name, ByteView bytes, const std::optional<Bytes>& asRead);
  /// Removes a plain file; success when there is none. Refuses folders; a link itself is removed, never its target,
  /// only with `evenLink`.
  Result<void> removeFile(const std::string& name, bool evenLink = false);
  /// Removes a folder directly inside with everything in it, never through links or into another file system; success
  /// when there is none. It vanishes at once: what an interruption leaves stands under a temporary name.
  Result<void> removeChild(const std::string& name);
  /// Removes a folder directly inside if it is empty; success when there is none.
  Result<void> removeEmptyChild(const std::string& name);
  /// Renames within this folder or into another one; replaces a plain file, or an empty folder by a folder. Of two
  /// names of one file the new one stays.
  Result<void> rename(const std::string& from, const Folder& to, const std::string& name);
  /// The same to a name that nothing has there: never replaces anything (then the reason is EEXIST). The item's own
  /// name in other letters, where the file system tells none apart, counts as free.
  Result<void> renameNew(const std::string& from, const Folder& to, const std::string& name);
  /// Gives a plain file a second name in another folder of the same file system, or, where that cannot be, copies
  /// bytes, owner, mode, times and extended attributes. The copy stays what it was when the original is later replaced
  /// (but shares attributes and times that are changed in place). Fails when `as` exists. Needs Access::Write only for
  /// `in`.
  Result<void> preserve(const std::string& name, const Folder& in, const std::string& as) const;

  /// Fails when no entries can be made in the folder, with the system's reason, as far as it can be told untried.
  [[nodiscard]] Result<void> checkWritable() const;
  /// Whether the file system keeps extended attributes of users, as far as it can be told untried.
  [[nodiscard]] bool takesAttributes() const;

  /// An extended attribute of the folder itself; nullopt when there is none or the file system knows none.
  [[nodiscard]] Result<std::optional<Bytes>> attribute(const std::string& name) const;
  /// Read back before success. Fails with ErrorKind::Unsupported where the file system takes none.
  Result<void> setAttribute(const std::string& name, ByteView value);
  /// Success when there was none.
  Result<void> removeAttribute(const std::string& name);
  /// The same for a plain file inside.
  [[nodiscard]] Result<std::optional<Bytes>> attributeOf(const std::string& file, const std::string& name) const;
  Result<void> setAttributeOf(const std::string& file, const std::string& name, ByteView value);
  Result<void> removeAttributeOf(const std::string& file, const std::string& name);

  /// Access and modification times of the folder itself, or of a plain file inside. UTIME_OMIT and UTIME_NOW in tv_nsec
  /// are understood; explicit times can be set by the owner and root only.
  Result<void> setTimes(const timespec& accessed, const timespec& modified);
  Result<void> setTimesOf(const std::string& file, const timespec& accessed, const timespec& modified);

  /// Flushes the folder's entries.
  Result<void> flush();

 private:
  Folder(FileDescriptor handle, std::filesystem::path path, Access access)
      : _handle(std::move(handle)), _path(std::move(path)), _access(access) {}

  /// Locks and sweeps when `access` asks for it.
  static Result<Folder> _make(FileDescriptor handle, std::filesystem::path path, Access access,
                              std::chrono::milliseconds wait);
  void _sweep(bool locked) const;
  /// Refuses when the folder was opened for looking only, or when `name` is none.
  [[nodiscard]] Result<void> _mayChange(const std::string& what) const;
  [[nodiscard]] Result<void> _mayChange(const std::string& what, const std::string& name) const;
  /// What is to be renamed; refuses all but plain files and folders, too.
  [[nodiscard]] Result<struct stat> _mayRename(const std::string& what, const std::string& from, const Folder& to,
                                               const std::string& name) const;
  [[nodiscard]] Error _failure(int code, const std::string& what, const std::string& name) const;

  /// Opens a plain file for reading; nullopt when there is none. `what` begins the error's words.
  [[nodiscard]] Result<std::optional<FileDescriptor>> _openPlain(const std::string& name,
                                                                 const std::string& what) const;
  Result<WriteOutcome> _replace(const std::string& name, ByteView bytes, const std::optional<Bytes>* asRead);
  [[nodiscard]] Result<void> _copy(const std::string& name, const Folder& in, const std::string& as) const;

  FileDescriptor _handle;
  std::filesystem::path _path;
  Access _access;
};

struct Folder::Parent {
  Folder folder;
  std::string name;
};

}  // namespace quorvane
