// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/FileReading.h"

#include <fcntl.h>

#include <cerrno>

#include "foundation/FileCalls.h"
#include "foundation/FileDescriptor.h"

namespace quorvane {

Result<Bytes> readPlainFile(const std::filesystem::path& path, std::size_t limit) {
  const std::string what = "cannot read";
  const auto read = [&]() -> Result<Bytes> {
    const FileDescriptor handle(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!handle.isOpen()) return Error::system(errno, what);
    const struct stat info = TRY(calls::status(handle.get(), what));
    if (!S_ISREG(info.st_mode)) return Error::refused(what + ": it is " + calls::kindWords(info.st_mode));
    return calls::readAll(handle.get(), limit, what);
  };
  auto bytes = read();
  if (!bytes) return std::move(bytes).error().at(path);
  return bytes;
}

}  // namespace quorvane
