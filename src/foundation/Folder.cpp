// SPDX-License-Identifier: GPL-3.0-or-later
// Opening folders: by path, upwards, downwards.
#include "foundation/Folder.h"

#include <fcntl.h>

#include <cerrno>

#include "foundation/FileCalls.h"
#include "foundation/FileOwnership.h"
#include "foundation/FolderNames.h"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

constexpr int openFolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK;

// The path that really leads to an open folder now; `given` when the system cannot tell.
fs::path resolvedPath(int handle, const fs::path& given) {
  struct stat opened {
  }, found{};
  if (::fstat(handle, &opened) != 0) return given;
  std::error_code error;
  for (const bool canonical : {false, true}) {
    fs::path candidate =
        canonical ? fs::canonical(given, error) : fs::read_symlink("/proc/self/fd/" + std::to_string(handle), error);
    if (!error && ::stat(candidate.c_str(), &found) == 0 && calls::isSameItem(opened, found)) return candidate;
  }
  const fs::path absolute = fs::absolute(given, error);
  return error ? given : absolute;
}

// The name under which `child` stands in the folder `parent`; `guess` is tried before all entries are.
Result<std::string> nameInParent(const Folder& parent, const struct stat& child, const std::string& guess) {
  const auto leadsToChild = [&](const std::string& name) {
    const auto found = parent.statusOf(name);
    return found.ok() && found->has_value() && calls::isSameItem(**found, child);
  };
  if (leadsToChild(guess)) return guess;
  for (const std::string& name : TRY(parent.names()))
    if (leadsToChild(name)) return name;
  return Error(ErrorKind::NotFound, "does not hold the folder any more").at(parent.path());
}

}  // namespace

Result<Folder> Folder::open(const fs::path& path, Access access, std::chrono::milliseconds wait) {
  if (path.native().find('\0') != std::string::npos) return Error::invalidInput("path with a zero byte");
  FileDescriptor handle(::open(path.c_str(), openFolderFlags));
  if (!handle.isOpen()) return Error::system(errno, "cannot open folder").at(path);
  fs::path resolved = resolvedPath(handle.get(), path);
  return _make(std::move(handle), std::move(resolved), access, wait);
}

Result<Folder::Parent> Folder::openParent(Access access) const {
  FileDescriptor handle(::openat(_handle.get(), "..", openFolderFlags));
  if (!handle.isOpen()) return Error::system(errno, "cannot open the folder above").at(_path);
  const struct stat self = TRY(status());
  const struct stat above = TRY(calls::status(handle.get(), "cannot open the folder above"));
  if (calls::isSameItem(self, above)) return Error(ErrorKind::Unsupported, "has no folder above it").at(_path);
  fs::path path = resolvedPath(handle.get(), _path.parent_path());
  Folder parent = TRY(_make(std::move(handle), std::move(path), access, patience));
  std::string name = TRY(nameInParent(parent, self, resolvedPath(_handle.get(), _path).filename().string()));
  return Parent{std::move(parent), std::move(name)};
}

Result<Folder> Folder::openChild(const std::string& name, Access access) const {
  const std::string what = "cannot open folder";
  const auto info = TRY(statusOf(name));
  if (!info) return _failure(ENOENT, what, name);
  if (!S_ISDIR(info->st_mode))
    return Error::refused(what + ": " + calls::kindWords(info->st_mode) + " stands there").at(pathOf(name));
  FileDescriptor handle(::openat(_handle.get(), name.c_str(), openFolderFlags | O_NOFOLLOW));
  if (!handle.isOpen()) return _failure(errno, what, name);
  return _make(std::move(handle), pathOf(name), access, patience);
}

Result<Folder> Folder::makeChild(const std::string& name) {
  const std::string what = "cannot make folder";
  TRY_VOID(_mayChange(what, name));
  const struct stat own = TRY(status());
  if (::mkdirat(_handle.get(), name.c_str(), ownership::newFolderMode(own)) != 0) {
    if (errno != EEXIST) return _failure(errno, what, name);
    return openChild(name, Access::Write);
  }
  Result<Folder> child = openChild(name, Access::Write);
  Result<void> done = child.ok() ? ownership::giveToFolder(child->_handle.get(), own) : child.error();
  if (done.ok()) done = flush();
  if (!done.ok()) {
    ::unlinkat(_handle.get(), name.c_str(), AT_REMOVEDIR);
    return done.error().at(pathOf(name));
  }
  return child;
}

std::string Folder::temporaryName() {
  return names::makeTemporary();
}

Result<struct stat> Folder::status() const {
  auto info = calls::status(_handle.get(), "cannot look at folder");
  if (!info.ok()) return info.error().at(_path);
  return info;
}

Result<void> Folder::_mayChange(const std::string& what) const {
  if (_access != Access::Write) return Error::broken(what + ": the folder was opened for looking only").at(_path);
  return {};
}

Result<void> Folder::_mayChange(const std::string& what, const std::string& name) const {
  if (auto good = names::check(name); !good.ok())
    return Error::invalidInput(what + ": " + good.error().why()).at(_path);
  return _mayChange(what);
}

Error Folder::_failure(int code, const std::string& what, const std::string& name) const {
  return Error::system(code, what).at(pathOf(name));
}

}  // namespace quorvane
