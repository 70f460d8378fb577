// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/ScratchFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <utility>

#include "foundation/BaseDirectories.h"
#include "foundation/FileDescriptor.h"
#include "foundation/FolderRemoval.h"
#include "foundation/base/Log.h"

namespace quorvane {

namespace {

/// A folder, no link, that nobody but us can change.
bool isOurs(const std::filesystem::path& path) {
  struct stat info {};
  return ::lstat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == ::geteuid() &&
         (info.st_mode & 077) == 0;
}

}  // namespace

std::filesystem::path ScratchFolder::temporaryDirectory() {
  const char* named = std::getenv("TMPDIR");
  std::filesystem::path directory = named ? named : "";
  if (!directory.is_absolute()) directory = "/tmp";
  return directory / "";
}

ScratchFolder::ScratchFolder(std::filesystem::path path) : _path(std::move(path)) {}

const std::optional<std::filesystem::path>& ScratchFolder::make() {
  if (_made) return *_made;
  _made.emplace();
  if (const auto above = makePrivateDirectories(_path.parent_path()); !above) {
    logMessage("scratch", above.error().message());
  } else if (::mkdir(_path.c_str(), 0700) == 0 || (errno == EEXIST && isOurs(_path))) {
    *_made = _path;
  } else {
    logMessage("scratch", Error::system(errno, "cannot make a folder for temporary files").at(_path).message());
  }
  return *_made;
}

bool ScratchFolder::cleanUp() const {
  struct stat info {};
  if (::lstat(_path.c_str(), &info) != 0) return errno == ENOENT || errno == ENOTDIR;
  if (!isOurs(_path)) return false;
  const FileDescriptor above(::open(_path.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return above.isOpen() && removal::removeTree(above.get(), _path.filename().native(), _path.parent_path()).ok();
}

}  // namespace quorvane
