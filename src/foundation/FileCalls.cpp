// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/FileCalls.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace quorvane::calls {

namespace {

// As many bytes as there are, up to `count`; fewer only at the end of the file.
Result<std::size_t> readFully(int handle, std::uint8_t* to, std::size_t count, off_t from, const std::string& what) {
  std::size_t done = 0;
  while (done < count) {
    const ssize_t got = ::pread(handle, to + done, count - done, from + static_cast<off_t>(done));
    if (got == 0) break;
    if (got > 0) {
      done += static_cast<std::size_t>(got);
    } else if (errno != EINTR) {
      return Error::system(errno, what);
    }
  }
  return done;
}

}  // namespace

Result<Bytes> readAll(int handle, std::size_t limit, const std::string& what) {
  const struct stat info = TRY(status(handle, what));
  const auto tooLarge = [&] { return Error::tooLarge(what + ": more than " + std::to_string(limit) + " bytes"); };
  if (info.st_size > 0 && static_cast<std::size_t>(info.st_size) > limit) return tooLarge();
  Bytes bytes;
  // One byte more than the file should have shows its end without another round.
  std::size_t room = static_cast<std::size_t>(std::max<off_t>(info.st_size, 0)) + 1;
  for (;;) {
    const std::size_t start = bytes.size();
    bytes.resize(start + room);
    const std::size_t got = TRY(readFully(handle, bytes.data() + start, room, static_cast<off_t>(start), what));
    bytes.resize(start + got);
    if (bytes.size() > limit) return tooLarge();
    if (got < room) return bytes;
    room = std::size_t{64} << 10;
  }
}

Result<bool> holds(int handle, ByteView bytes, const std::string& what) {
  const struct stat info = TRY(status(handle, what));
  if (static_cast<std::size_t>(info.st_size) != bytes.size()) return false;
  std::array<std::uint8_t, 16384> piece;
  for (std::size_t at = 0;;) {
    // Asks for one byte past the end as well, so that a file that grew is noticed.
    const std::size_t got = TRY(readFully(handle, piece.data(), piece.size(), static_cast<off_t>(at), what));
    if (got > bytes.size() - at || !std::equal(piece.begin(), piece.begin() + got, bytes.begin() + at)) return false;
    at += got;
    if (got < piece.size()) return at == bytes.size();
  }
}

Result<void> writeAll(int handle, ByteView bytes, const std::string& what) {
  while (!bytes.empty()) {
    const ssize_t put = ::write(handle, bytes.data(), bytes.size());
    if (put > 0) {
      bytes = bytes.subspan(static_cast<std::size_t>(put));
    } else if (put == 0) {
      return Error::system(EIO, what);
    } else if (errno != EINTR) {
      return Error::system(errno, what);
    }
  }
  return {};
}

Result<void> flush(int handle, const std::string& what) {
  while (::fsync(handle) != 0) {
    if (errno == EINVAL || errno == ENOTSUP || errno == ENOSYS) return {};  // cannot be flushed by itself
    if (errno != EINTR) return Error::system(errno, what);
  }
  return {};
}

Result<struct stat> status(int handle, const std::string& what) {
  struct stat info {};
  if (::fstat(handle, &info) != 0) return Error::system(errno, what);
  return info;
}

Result<std::optional<Bytes>> attribute(int handle, const std::string& name) {
  const std::string what = "cannot read attribute " + name;
  for (;;) {
    const ssize_t size = ::fgetxattr(handle, name.c_str(), nullptr, 0);
    if (size < 0) {
      if (errno == ENODATA || errno == ENOTSUP) return std::optional<Bytes>();
      return Error::system(errno, what);
    }
    Bytes value(static_cast<std::size_t>(size) + 1);
    const ssize_t got = ::fgetxattr(handle, name.c_str(), value.data(), value.size());
    if (got >= 0) {
      value.resize(static_cast<std::size_t>(got));
      return std::optional(std::move(value));
    }
    if (errno != ERANGE && errno != ENODATA) return Error::system(errno, what);  // else it changed in between
  }
}

Result<void> setAttribute(int handle, const std::string& name, ByteView value) {
  const std::string what = "cannot write attribute " + name;
  if (::fsetxattr(handle, name.c_str(), value.data(), value.size(), 0) != 0) return Error::system(errno, what);
  TRY_VOID(flush(handle, what));
  const std::optional<Bytes> stored = TRY(attribute(handle, name));
  if (!stored || !std::equal(stored->begin(), stored->end(), value.begin(), value.end()))
    return Error(ErrorKind::System, what + ": what was read back differs");
  return {};
}

Result<void> removeAttribute(int handle, const std::string& name) {
  const std::string what = "cannot remove attribute " + name;
  if (::fremovexattr(handle, name.c_str()) != 0) {
    const int code = errno;
    // Where there are no attributes, there is nothing to remove; what can still be read is there.
    if (code == ENODATA || (code == ENOTSUP && !TRY(attribute(handle, name)))) return {};
    return Error::system(code, what);
  }
  return flush(handle, what);
}

bool isSameItem(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

std::string kindWords(mode_t mode) {
  switch (mode & S_IFMT) {
    case S_IFREG:
      return "a file";
    case S_IFDIR:
      return "a folder";
    case S_IFLNK:
      return "a link";
    case S_IFIFO:
      return "a fifo";
    case S_IFSOCK:
      return "a socket";
    default:
      return "a device";
  }
}

}  // namespace quorvane::calls
