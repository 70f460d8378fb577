// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/PictureFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace quorvane {

namespace {

class Handle {
 public:
  explicit Handle(const std::filesystem::path& path)
      // Without O_NONBLOCK opening a fifo waits for its other end.
      : _descriptor(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY)) {}
  ~Handle() {
    if (_descriptor >= 0) ::close(_descriptor);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  [[nodiscard]] int get() const { return _descriptor; }

 private:
  int _descriptor;
};

Result<Bytes> readAll(int descriptor, std::size_t expected, std::size_t limit) {
  // One byte more than expected, so that the end is seen without growing.
  Bytes bytes(expected + 1);
  std::size_t length = 0;
  while (true) {
    if (length == bytes.size()) {
      if (length > limit) return Error::tooLarge("file is too long");
      bytes.resize(std::min(limit + 1, length * 2));  // it grew meanwhile
    }
    const ssize_t count = ::read(descriptor, bytes.data() + length, bytes.size() - length);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return Error::system(errno, "cannot read");
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
  }
  if (length > limit) return Error::tooLarge("file is too long");
  bytes.resize(length);
  return bytes;
}

}  // namespace

Result<Bytes> readPictureFile(const std::filesystem::path& path, std::size_t limit) {
  const Handle handle(path);
  if (handle.get() < 0) return Error::system(errno, "cannot open").at(path);
  struct stat status {};
  if (::fstat(handle.get(), &status) != 0) return Error::system(errno, "cannot look at").at(path);
  if (S_ISDIR(status.st_mode)) return Error::refused("is a folder").at(path);
  if (!S_ISREG(status.st_mode)) return Error::refused("is not a plain file").at(path);
  const auto expected = static_cast<std::uint64_t>(status.st_size);
  if (expected > limit) return Error::tooLarge("file is too long").at(path);
  auto bytes = readAll(handle.get(), static_cast<std::size_t>(expected), limit);
  if (!bytes) return bytes.error().at(path);
  return bytes;
}

}  // namespace quorvane
