// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Thumbnail.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

#include "cli/ExitCode.h"
#include "cli/Terminal.h"
#include "foundation/FileCalls.h"
#include "foundation/FileDescriptor.h"
#include "foundation/FileReading.h"
#include "iconfamily/CustomIcon.h"
#include "imaging/PngCodec.h"

namespace quorvane::cli {

namespace {

bool isCalledByTumbler() {
  constexpr std::size_t nameBytes = 64;  // the kernel's names have up to 15
  const auto name = readPlainFile("/proc/" + std::to_string(::getppid()) + "/comm", nameBytes);
  return name.ok() && std::string_view(reinterpret_cast<const char*>(name->data()), name->size()) == "tumblerd\n";
}

/// Tumbler goes on reading the very file that it made, so nothing may take that one's place.
Result<void> writeInPlace(const std::filesystem::path& path, ByteView bytes) {
  const std::string what = "cannot write";
  const auto write = [&]() -> Result<void> {
    constexpr int flags = O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const FileDescriptor handle(::open(path.c_str(), flags, 0600));
    if (!handle.isOpen()) return Error::system(errno, what);
    const struct stat info = TRY(calls::status(handle.get(), what));
    if (!S_ISREG(info.st_mode)) return Error::refused(what + ": it is " + calls::kindWords(info.st_mode));
    if (::ftruncate(handle.get(), 0) != 0) return Error::system(errno, what);
    return calls::writeAll(handle.get(), bytes, what);
  };
  const auto done = write();
  return done.ok() ? done : done.error().at(path);
}

Result<void> write(const std::filesystem::path& folder, const std::filesystem::path& out, std::string_view size,
                   const ForkStore& forks) {
  constexpr int most = 1024;
  int pixels = 0;
  const auto [end, code] = std::from_chars(size.data(), size.data() + size.size(), pixels);
  if (code != std::errc() || end != size.data() + size.size() || pixels < 1 || pixels > most)
    return Error::invalidInput("'" + printable(size) + "' is no size of a thumbnail");
  const auto family = TRY(readCustomIcon(folder, forks));
  const auto image = family ? family->imageWithAllReps() : std::nullopt;
  if (!image) return Error(ErrorKind::NotFound, "has no custom icon").at(folder);
  return writeInPlace(out, TRY(encodePng(image->rendered(pixels, pixels))));
}

}  // namespace

bool isThumbnailCall(int argc, const char* const* argv) {
  return argc == 5 && std::strcmp(argv[1], "thumbnail") == 0;
}

int writeThumbnail(const char* const* argv, const ForkStore& forks) {
  if (!isCalledByTumbler()) return exitFailed;
  const auto done = write(argv[2], argv[3], argv[4], forks);
  if (done.ok()) return exitDone;
  std::fprintf(stderr, "quorvane: %s\n", printable(done.error().message()).c_str());
  return exitFailed;
}

}  // namespace quorvane::cli
