// SPDX-License-Identifier: GPL-3.0-or-later
// Looking at what is in a folder.
#include <dirent.h>
#include <fcntl.h>

#include <cerrno>
#include <memory>
#include <thread>

#include "foundation/FileCalls.h"
#include "foundation/Folder.h"
#include "foundation/FolderNames.h"

namespace quorvane {

namespace {

// A file server may hold a lease on a file (Samba does while a client has it open); a first attempt asks for it back.
constexpr int leaseAttempts = 100;
constexpr std::chrono::milliseconds leasePause{20};

}  // namespace

Result<std::optional<struct stat>> Folder::statusOf(const std::string& name) const {
  if (auto good = names::check(name); !good.ok()) return good.error().at(_path);
  struct stat info {};
  if (::fstatat(_handle.get(), name.c_str(), &info, AT_SYMLINK_NOFOLLOW) == 0) return std::optional(info);
  if (errno == ENOENT) return std::optional<struct stat>();
  return _failure(errno, "cannot look at", name);
}

Result<std::vector<std::string>> Folder::names() const {
  const std::string what = "cannot list folder";
  // Opened anew: a copy of the handle would share its reading position.
  FileDescriptor handle(::openat(_handle.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!handle.isOpen()) return Error::system(errno, what).at(_path);
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(::fdopendir(handle.get()), ::closedir);
  if (!stream) return Error::system(errno, what).at(_path);
  handle.release();
  std::vector<std::string> all;
  for (;;) {
    errno = 0;
    const dirent* entry = ::readdir(stream.get());
    if (entry == nullptr) break;
    std::string name = entry->d_name;
    if (name != "." && name != "..") all.push_back(std::move(name));
  }
  if (errno != 0) return Error::system(errno, what).at(_path);
  return all;
}

Result<std::optional<Bytes>> Folder::readFile(const std::string& name, std::size_t limit) const {
  const std::string what = "cannot read";
  const auto file = TRY(_openPlain(name, what));
  if (!file) return std::optional<Bytes>();
  auto bytes = calls::readAll(file->get(), limit, what);
  if (!bytes.ok()) return bytes.error().at(pathOf(name));
  return std::optional(std::move(*bytes));
}

Result<std::optional<FileDescriptor>> Folder::openFile(const std::string& name) const {
  return _openPlain(name, "cannot read");
}

Result<std::optional<FileDescriptor>> Folder::_openPlain(const std::string& name, const std::string& what) const {
  // Looked at before it is opened: opening a fifo or device can block or act.
  const auto before = TRY(statusOf(name));
  if (!before) return std::optional<FileDescriptor>();
  const auto refuse = [&](mode_t mode) {
    return Error::refused(what + ": " + calls::kindWords(mode) + " stands there").at(pathOf(name));
  };
  if (!S_ISREG(before->st_mode)) return refuse(before->st_mode);
  for (int attempt = 1;; ++attempt) {
    FileDescriptor file(
        ::openat(_handle.get(), name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (file.isOpen()) {
      const auto info = calls::status(file.get(), what);
      if (!info.ok()) return info.error().at(pathOf(name));
      if (!S_ISREG(info->st_mode)) return refuse(info->st_mode);
      return std::optional(std::move(file));
    }
    switch (errno) {
      case ENOENT:
        return std::optional<FileDescriptor>();
      case ELOOP:
        return refuse(S_IFLNK);
      case EINTR:
        continue;
      case EWOULDBLOCK:
        if (attempt >= leaseAttempts) return _failure(errno, what, name);
        std::this_thread::sleep_for(leasePause);
        continue;
      default:
        return _failure(errno, what, name);
    }
  }
}

}  // namespace quorvane
