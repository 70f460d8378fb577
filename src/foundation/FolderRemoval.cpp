// SPDX-License-Identifier: GPL-3.0-or-later
// Taking things out of a folder, and moving them.
#include "foundation/FolderRemoval.h"

#include <dirent.h>
#include <fcntl.h>

#include <cerrno>
#include <memory>
#include <vector>

#include "foundation/FileCalls.h"
#include "foundation/FileDescriptor.h"
#include "foundation/Folder.h"
#include "foundation/FolderNames.h"
#include "foundation/base/Limits.h"

namespace quorvane {

namespace fs = std::filesystem;

namespace removal {

namespace {

constexpr const char* what = "cannot remove";

Result<void> removeTree(int parent, const std::string& name, const fs::path& path, dev_t device, int depth) {
  if (depth > limits::removedFolderDepth) return Error::tooLarge(std::string(what) + ": nested too deep").at(path);
  FileDescriptor handle(::openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (!handle.isOpen()) return Error::system(errno, what).at(path);
  const auto info = calls::status(handle.get(), what);
  if (!info.ok()) return info.error().at(path);
  if (info->st_dev != device)
    return Error::refused(std::string(what) + ": another file system is mounted there").at(path);
  const int folder = handle.get();
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(::fdopendir(folder), ::closedir);
  if (!stream) return Error::system(errno, what).at(path);
  handle.release();
  // All names first: removing while reading may skip some.
  std::vector<std::string> inside;
  errno = 0;
  while (const dirent* entry = ::readdir(stream.get())) inside.emplace_back(entry->d_name);
  if (errno != 0) return Error::system(errno, what).at(path);
  for (const std::string& item : inside) {
    if (item == "." || item == "..") continue;
    if (::unlinkat(folder, item.c_str(), 0) == 0 || errno == ENOENT) continue;
    const int code = errno;
    struct stat found {};
    const bool isFolder = ::fstatat(folder, item.c_str(), &found, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(found.st_mode);
    if (!isFolder) return Error::system(code, what).at(path / item);
    TRY_VOID(removeTree(folder, item, path / item, device, depth + 1));
  }
  if (::unlinkat(parent, name.c_str(), AT_REMOVEDIR) != 0 && errno != ENOENT)
    return Error::system(errno, what).at(path);
  return {};
}

}  // namespace

Result<void> removeTree(int parent, const std::string& name, const fs::path& parentPath) {
  const auto info = calls::status(parent, what);
  if (!info.ok()) return info.error().at(parentPath);
  return removeTree(parent, name, parentPath / name, info->st_dev, 1);
}

}  // namespace removal

Result<void> Folder::removeFile(const std::string& name, bool evenLink) {
  const std::string what = "cannot remove";
  TRY_VOID(_mayChange(what, name));
  const auto info = TRY(statusOf(name));
  if (!info) return {};
  if (!S_ISREG(info->st_mode) && !(evenLink && S_ISLNK(info->st_mode)))
    return Error::refused(what + ": " + calls::kindWords(info->st_mode) + " stands there").at(pathOf(name));
  if (::unlinkat(_handle.get(), name.c_str(), 0) != 0 && errno != ENOENT) return _failure(errno, what, name);
  return flush();
}

Result<void> Folder::removeChild(const std::string& name) {
  const std::string what = "cannot remove";
  TRY_VOID(_mayChange(what, name));
  const auto info = TRY(statusOf(name));
  if (!info) return {};
  if (!S_ISDIR(info->st_mode))
    return Error::refused(what + ": " + calls::kindWords(info->st_mode) + " stands there").at(pathOf(name));
  if (info->st_dev != TRY(status()).st_dev)
    return Error::refused(what + ": another file system is mounted there").at(pathOf(name));
  std::string last = name;
  if (!names::isTemporary(name)) {
    last = temporaryName();
    if (::renameat2(_handle.get(), name.c_str(), _handle.get(), last.c_str(), RENAME_NOREPLACE) != 0) {
      if (errno != EINVAL && errno != ENOSYS) return _failure(errno, what, name);
      last = name;  // a file system that knows no exclusive renaming: removed where it stands
    }
  }
  TRY_VOID(removal::removeTree(_handle.get(), last, _path));
  return flush();
}

Result<struct stat> Folder::_mayRename(const std::string& what, const std::string& from, const Folder& to,
                                       const std::string& name) const {
  TRY_VOID(_mayChange(what, from));
  TRY_VOID(to._mayChange(what, name));
  const auto source = TRY(statusOf(from));
  if (!source) return _failure(ENOENT, what, from);
  if (!S_ISREG(source->st_mode) && !S_ISDIR(source->st_mode))
    return Error::refused(what + ": " + calls::kindWords(source->st_mode) + " stands there").at(pathOf(from));
  return *source;
}

Result<void> Folder::rename(const std::string& from, const Folder& to, const std::string& name) {
  const std::string what = "cannot rename";
  const auto source = TRY(_mayRename(what, from, to, name));
  const auto target = TRY(to.statusOf(name));
  if (target && (target->st_mode & S_IFMT) != (source.st_mode & S_IFMT))
    return Error::refused(what + ": " + calls::kindWords(target->st_mode) + " stands there").at(to.pathOf(name));
  // The system does nothing when both are names of one file, and would leave both.
  const bool isSame = target && calls::isSameItem(*target, source);
  const bool isOneName = isSame && from == name && calls::isSameItem(TRY(status()), TRY(to.status()));
  const int failed = isSame && !isOneName ? ::unlinkat(_handle.get(), from.c_str(), 0)
                                          : ::renameat(_handle.get(), from.c_str(), to._handle.get(), name.c_str());
  if (failed != 0) return to._failure(errno, what, name);
  TRY_VOID(calls::flush(to._handle.get(), what));
  return flush();
}

Result<void> Folder::removeEmptyChild(const std::string& name) {
  const std::string what = "cannot remove";
  TRY_VOID(_mayChange(what, name));
  if (::unlinkat(_handle.get(), name.c_str(), AT_REMOVEDIR) != 0 && errno != ENOENT) return _failure(errno, what, name);
  return flush();
}

Result<void> Folder::renameNew(const std::string& from, const Folder& to, const std::string& name) {
  const std::string what = "cannot rename";
  const auto source = TRY(_mayRename(what, from, to, name));
  const auto target = TRY(to.statusOf(name));
  const bool isOtherSpelling = target && from != name && S_ISDIR(target->st_mode) && calls::isSameItem(*target, source);
  if (target && !isOtherSpelling) return to._failure(EEXIST, what, name);
  int failed =
      ::renameat2(_handle.get(), from.c_str(), to._handle.get(), name.c_str(), isOtherSpelling ? 0 : RENAME_NOREPLACE);
  // A file system without exclusive renaming: the look before must do.
  if (failed != 0 && (errno == EINVAL || errno == ENOSYS))
    failed = ::renameat(_handle.get(), from.c_str(), to._handle.get(), name.c_str());
  if (failed != 0) return to._failure(errno, what, name);
  TRY_VOID(calls::flush(to._handle.get(), what));
  return flush();
}

}  // namespace quorvane
