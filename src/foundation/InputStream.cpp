// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/InputStream.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>

#include "foundation/FileCalls.h"
#include "foundation/base/Interruption.h"

namespace quorvane {

namespace {

const std::string cannotRead = "cannot read";
// How long an interruption may go unnoticed.
constexpr int waitMilliseconds = 100;

}  // namespace

Result<InputStream> InputStream::open(const std::filesystem::path& path) {
  const bool isStandard = path == "-";
  FileDescriptor own;
  // Without blocking: a fifo that nobody writes to would hold us here, where an interruption is not looked for.
  if (!isStandard) own = FileDescriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  if (!isStandard && !own.isOpen()) return Error::system(errno, cannotRead).at(path);
  const int handle = isStandard ? STDIN_FILENO : own.get();
  const std::filesystem::path name = isStandard ? "standard input" : path;
  const auto info = calls::status(handle, cannotRead);
  if (!info) return info.error().at(name);
  if (::isatty(handle) == 1)
    return Error(ErrorKind::Unsupported, "is a terminal; a file or a pipe with the list is expected").at(name);
  if (S_ISDIR(info->st_mode) || S_ISBLK(info->st_mode))
    return Error::refused(cannotRead + ": it is " + calls::kindWords(info->st_mode)).at(name);
  InputStream stream(std::move(own), handle);
  if (S_ISREG(info->st_mode)) stream._size = static_cast<std::uint64_t>(info->st_size);
  return stream;
}

Result<std::size_t> InputStream::read(std::span<char> to) {
  while (!isInterruptionRequested()) {
    pollfd waited{.fd = _handle, .events = POLLIN, .revents = 0};
    const int ready = ::poll(&waited, 1, waitMilliseconds);
    if (ready < 0 && errno != EINTR) return Error::system(errno, cannotRead);
    if (ready <= 0) continue;
    const ssize_t got = ::read(_handle, to.data(), to.size());
    if (got >= 0) return static_cast<std::size_t>(got);
    if (errno != EINTR && errno != EAGAIN) return Error::system(errno, cannotRead);
  }
  return Error::refused("interrupted");
}

}  // namespace quorvane
