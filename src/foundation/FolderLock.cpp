// SPDX-License-Identifier: GPL-3.0-or-later
// Writers exclude each other, and whoever holds the lock clears away what interrupted writers left.
#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <ctime>
#include <thread>

#include "foundation/FileCalls.h"
#include "foundation/Folder.h"
#include "foundation/FolderNames.h"
#include "foundation/FolderRemoval.h"
#include "foundation/base/Interruption.h"
#include "foundation/base/Log.h"

namespace quorvane {

namespace {

constexpr std::chrono::milliseconds lockPause{5};
// Without locks another writer may be at work; none takes this long for one file.
constexpr std::time_t certainlyLeftoverSeconds = 3600;

// True with the lock; false where the file system has none (some network file systems lock no folders).
Result<bool> lock(int handle, std::chrono::milliseconds wait) {
  const auto end = std::chrono::steady_clock::now() + wait;
  while (::flock(handle, LOCK_EX | LOCK_NB) != 0) {
    switch (errno) {
      case EINTR:
        continue;
      case EWOULDBLOCK:
        break;
      case EBADF:
      case EINVAL:
      case ENOLCK:
      case ENOSYS:
      case ENOTSUP:
        return false;
      default:
        return Error::system(errno, "cannot lock folder");
    }
    if (std::chrono::steady_clock::now() >= end) return Error::refused("another program is changing this folder");
    if (isInterruptionRequested()) return Error::refused("interrupted while another program is changing this folder");
    std::this_thread::sleep_for(lockPause);
  }
  return true;
}

/// Whether somebody is at work in a folder inside, which is not left over then.
bool isHeld(int parent, const std::string& name) {
  const FileDescriptor handle(
      ::openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  return handle.isOpen() && ::flock(handle.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

}  // namespace

Result<Folder> Folder::_make(FileDescriptor handle, std::filesystem::path path, Access access,
                             std::chrono::milliseconds wait) {
  Folder folder(std::move(handle), std::move(path), access);
  if (access == Access::Read) return folder;
  const auto locked = lock(folder._handle.get(), wait);
  if (!locked.ok()) return locked.error().at(folder._path);
  folder._sweep(*locked);
  return folder;
}

void Folder::_sweep(bool locked) const {
  // A leftover that cannot be removed must not keep the folder from being opened: nothing depends on it.
  const auto note = [&](const Error& error) { logMessage("folder", "leftover stays: " + error.message()); };
  const auto all = names();
  if (!all.ok()) return note(all.error());
  for (const std::string& name : *all) {
    if (!names::isTemporary(name)) continue;
    const auto found = statusOf(name);
    if (!found.ok() || !*found) continue;
    const struct stat& info = **found;
    if (!locked && std::time(nullptr) - info.st_mtime < certainlyLeftoverSeconds) continue;
    if (S_ISREG(info.st_mode)) {
      if (::unlinkat(_handle.get(), name.c_str(), 0) != 0) note(_failure(errno, "cannot remove", name));
    } else if (S_ISDIR(info.st_mode) && !isHeld(_handle.get(), name)) {
      if (auto gone = removal::removeTree(_handle.get(), name, _path); !gone.ok()) note(gone.error());
    }
  }
}

}  // namespace quorvane
