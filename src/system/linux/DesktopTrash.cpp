// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QDateTime>
#include <cerrno>
#include <cstdio>

#include "foundation/BaseDirectories.h"
#include "foundation/FileCalls.h"
#include "foundation/FileDescriptor.h"
#include "foundation/Folder.h"
#include "foundation/FolderNames.h"
#include "foundation/base/Log.h"
#include "system/Trash.h"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

constexpr int mostNumbers = 10'000;
constexpr std::string_view infoEnding = ".trashinfo";
// Longer ones are no endings, but part of the name.
constexpr std::size_t longestEnding = 16;

/// NAME or, for a number above 0, NAME-1 ..., its ending kept and cut between characters where it would be too long.
std::string numbered(const std::string& name, int number, std::size_t most = names::maximumBytes) {
  std::string ending = fs::path(name).extension().string();
  if (ending.size() > longestEnding) ending.clear();
  std::string begin = name.substr(0, name.size() - ending.size());
  const std::string end = (number > 0 ? "-" + std::to_string(number) : "") + ending;
  std::size_t length = most - end.size();
  if (begin.size() > length) {
    while (length > 0 && (static_cast<unsigned char>(begin[length]) & 0xC0) == 0x80) --length;
    begin.resize(length);
  }
  return begin + end;
}

/// Moves an item back under its name or, where that is taken, a numbered one; where it stands then.
Result<fs::path> moveBack(const TrashedItem& item) {
  Folder source = TRY(Folder::open(item.trashed.parent_path(), Folder::Access::Write));
  const Folder target = TRY(Folder::open(item.original.parent_path(), Folder::Access::Write));
  for (int number = 0; number < mostNumbers; ++number) {
    const std::string name = numbered(item.original.filename().string(), number);
    const auto moved = source.renameNew(item.trashed.filename().string(), target, name);
    if (moved) return item.original.parent_path() / name;
    if (moved.error().systemCode() != EEXIST) return moved.error();
  }
  return Error::system(EEXIST, "cannot move").at(item.original);
}

void note(const Error& error) {
  logMessage("trash", error.message());
}

std::optional<fs::path> orNote(Result<fs::path> path) {
  if (!path) note(path.error());
  return std::move(path).toOptional();
}

/// Moves it, but over nothing; 0 or why not.
int move(const fs::path& from, const fs::path& to) {
  // Whoever puts it away holds its folder, so this must not wait for that.
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
  // A file system without exclusive renaming: a look must do.
  struct stat info {};
  if (::lstat(to.c_str(), &info) == 0) return EEXIST;
  return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

/// A trash folder, and what the paths in it start from: empty for whole paths.
struct Place {
  fs::path folder;
  fs::path top;
};

/// Makes a folder of the user's own that is there, if need be, on that file system; never through a link.
bool makeOwn(const fs::path& path, dev_t device) {
  ::mkdir(path.c_str(), 0700);
  struct stat info {};
  return ::lstat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_dev == device &&
         info.st_uid == ::geteuid();
}

/// The trash for what lies on a file system: the user's own for the one that it lies on itself, else the one at the top
/// of the other. nullopt when there is none and none can be made.
std::optional<Place> placeFor(const fs::path& path, dev_t device) {
  struct stat info {};
  if (const auto data = baseDirectory(BaseDirectory::Data)) {
    const fs::path own = *data / "Trash";
    const bool isThere = ::stat(own.c_str(), &info) == 0 || ::stat(data->c_str(), &info) == 0;
    if (isThere && info.st_dev == device && makePrivateDirectories(own)) return Place{own, {}};
  }
  std::error_code failed;
  fs::path top = fs::canonical(path.parent_path(), failed);
  if (failed) return std::nullopt;
  while (top.has_relative_path() && ::stat(top.parent_path().c_str(), &info) == 0 && info.st_dev == device)
    top = top.parent_path();
  const std::string user = std::to_string(::geteuid());
  // One that all users share must not let them at each other's things.
  const fs::path shared = top / ".Trash";
  const bool isShared = ::lstat(shared.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && (info.st_mode & S_ISVTX) != 0;
  if (isShared && makeOwn(shared / user, device)) return Place{shared / user, top};
  const fs::path own = top / (".Trash-" + user);
  return makeOwn(own, device) ? std::optional(Place{own, top}) : std::nullopt;
}

/// The trash of the desktop's rules: "files" holds the things, "info" says of each where it was.
class DesktopTrash : public Trash {
 public:
  std::optional<TrashedItem> put(const fs::path& path) override {
    struct stat info {};
    if (::lstat(path.c_str(), &info) != 0) return std::nullopt;
    const auto place = placeFor(path, info.st_dev);
    if (!place) return std::nullopt;
    for (const char* part : {"files", "info"}) ::mkdir((place->folder / part).c_str(), 0700);
    std::error_code failed;
    const fs::path whole = fs::canonical(path.parent_path(), failed) / path.filename();
    if (failed) return std::nullopt;
    const fs::path told = place->top.empty() ? whole : whole.lexically_relative(place->top);
    for (int number = 0; number < mostNumbers; ++number) {
      const std::string name = numbered(path.filename().string(), number, names::maximumBytes - infoEnding.size());
      const fs::path words = place->folder / "info" / (name + std::string(infoEnding));
      const int taken = _tell(words, told);
      if (taken == EEXIST) continue;
      if (taken != 0) return std::nullopt;
      const TrashedItem item{.original = path, .trashed = place->folder / "files" / name};
      const int code = move(path, item.trashed);
      if (code == 0) return item;
      ::unlink(words.c_str());
      if (code != EEXIST) return std::nullopt;
    }
    return std::nullopt;
  }

  std::optional<fs::path> restore(const TrashedItem& item) override {
    const auto moved = orNote(moveBack(item));
    if (!moved) return std::nullopt;
    const fs::path info = item.trashed.parent_path().parent_path() / "info";
    // It would only tell of something that is not there any more.
    if (auto folder = Folder::open(info, Folder::Access::Write))
      if (const auto gone = folder->removeFile(item.trashed.filename().string() + std::string(infoEnding)); !gone)
        note(gone.error());
    return moved;
  }

 private:
  /// Says in a new file where something was; 0 or why that cannot be.
  static int _tell(const fs::path& file, const fs::path& where) {
    const FileDescriptor handle(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!handle.isOpen()) return errno;
    const QByteArray text =
        "[Trash Info]\nPath=" + QByteArray::fromStdString(where.native()).toPercentEncoding("/") +
        "\nDeletionDate=" + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")).toLatin1() +
        "\n";
    // On a full disk it is kept without its words: it comes back all the same while the program runs.
    const auto written = calls::writeAll(
        handle.get(), ByteView(reinterpret_cast<const std::uint8_t*>(text.constData()), text.size()), "cannot write");
    if (!written) note(written.error().at(file));
    return 0;
  }
};

}  // namespace

std::optional<TrashedItem> FolderTrash::put(const fs::path& path) {
  for (int number = 0; number < mostNumbers; ++number) {
    const fs::path target = _folder / numbered(path.filename().string(), number);
    const int code = move(path, target);
    if (code == 0) return TrashedItem{.original = path, .trashed = target};
    if (code != EEXIST) return std::nullopt;
  }
  return std::nullopt;
}

std::optional<fs::path> FolderTrash::restore(const TrashedItem& item) {
  return orNote(moveBack(item));
}

std::unique_ptr<Trash> makeDesktopTrash() {
  return std::make_unique<DesktopTrash>();
}

}  // namespace quorvane
