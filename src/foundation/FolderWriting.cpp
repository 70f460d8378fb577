// SPDX-License-Identifier: GPL-3.0-or-later
// Files come whole or not at all: built under a temporary name, then renamed.
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "foundation/FileCalls.h"
#include "foundation/FileOwnership.h"
#include "foundation/Folder.h"
#include "foundation/FolderNames.h"
#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

const std::string cannotWrite = "cannot write";

Error changedMeanwhile() {
  return Error::refused(cannotWrite + ": it was changed by somebody else meanwhile");
}

// A file under a temporary name, which goes away with the object unless it got its final name.
class TemporaryFile {
 public:
  static Result<TemporaryFile> create(int folder, mode_t mode) {
    for (int attempt = 0; attempt < 100; ++attempt) {
      TemporaryFile file;
      file._folder = folder;
      file._name = names::makeTemporary();
      file._handle = FileDescriptor(
          ::openat(folder, file._name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
      if (file._handle.isOpen()) {
        file._exists = true;
        return file;
      }
      if (errno != EEXIST && errno != EINTR) return Error::system(errno, cannotWrite);
    }
    return Error::system(EEXIST, cannotWrite);
  }

  TemporaryFile(TemporaryFile&& other) noexcept
      : _folder(other._folder),
        _name(std::move(other._name)),
        _handle(std::move(other._handle)),
        _exists(std::exchange(other._exists, false)) {}
  TemporaryFile& operator=(TemporaryFile&&) = delete;
  ~TemporaryFile() {
    if (_exists) ::unlinkat(_folder, _name.c_str(), 0);
  }

  [[nodiscard]] int handle() const { return _handle.get(); }
  [[nodiscard]] const std::string& name() const { return _name; }

  /// Flushes and closes; after it the content is as safe as the system can tell.
  Result<void> finish() {
    TRY_VOID(calls::flush(_handle.get(), cannotWrite));
    if (const int code = _handle.close(); code != 0) return Error::system(code, cannotWrite);
    return {};
  }

  /// Takes its final name, under which nothing may stand.
  Result<void> moveTo(const std::string& name) {
    int failed = ::renameat2(_folder, _name.c_str(), _folder, name.c_str(), RENAME_NOREPLACE);
    if (failed != 0 && (errno == EINVAL || errno == ENOSYS)) {
      // A file system without exclusive renaming: a look must do.
      if (_identity(name) != Identity{}) return changedMeanwhile();
      failed = ::renameat(_folder, _name.c_str(), _folder, name.c_str());
    }
    if (failed != 0) return errno == EEXIST ? changedMeanwhile() : Error::system(errno, cannotWrite);
    _exists = false;
    return {};
  }

  /// Takes the place of the file that stands under its final name, if that is the one that is meant. `isMeant` is asked
  /// about a name. The two change places first, so that the answer holds for the very file that goes; one that somebody
  /// else put there in the last moment gets its place back. (Killed just then, it would stay under our temporary name.)
  template <typename IsMeant>
  Result<void> replace(const std::string& name, const IsMeant& isMeant) {
    TRY_VOID(isMeant(name));
    auto placed = _identity(_name);
    if (!_exchange(name)) {
      if (errno == ENOENT) return changedMeanwhile();
      if (errno != EINVAL && errno != ENOSYS) return Error::system(errno, cannotWrite);
      // A file system that cannot exchange: the look before must do.
      if (::renameat(_folder, _name.c_str(), _folder, name.c_str()) != 0) return Error::system(errno, cannotWrite);
      _exists = false;
      return {};
    }
    Result<void> meant = isMeant(_name);
    if (meant.ok()) return {};  // what was replaced goes with this object
    // Again until what comes out is what was put in: whatever comes out else is newer and belongs there.
    for (auto taken = _identity(_name); _exchange(name);) {
      const auto next = _identity(_name);
      if (next == placed) break;
      placed = taken;
      taken = next;
    }
    return meant;
  }

 private:
  /// Which file stands under a name; all zero when none does.
  struct Identity {
    dev_t device = 0;
    ino_t inode = 0;
    bool operator==(const Identity&) const = default;
  };

  TemporaryFile() = default;

  [[nodiscard]] Identity _identity(const std::string& name) const {
    struct stat info {};
    if (::fstatat(_folder, name.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0) return {};
    return {info.st_dev, info.st_ino};
  }
  [[nodiscard]] bool _exchange(const std::string& name) const {
    return ::renameat2(_folder, _name.c_str(), _folder, name.c_str(), RENAME_EXCHANGE) == 0;
  }

  int _folder = -1;
  std::string _name;
  FileDescriptor _handle;
  bool _exists = false;
};

}  // namespace

Result<WriteOutcome> Folder::writeFile(const std::string& name, ByteView bytes) {
  return _replace(name, bytes, nullptr);
}

Result<WriteOutcome> Folder::writeFile(const std::string& name, ByteView bytes, const std::optional<Bytes>& asRead) {
  return _replace(name, bytes, &asRead);
}

Result<WriteOutcome> Folder::_replace(const std::string& name, ByteView bytes, const std::optional<Bytes>* asRead) {
  TRY_VOID(_mayChange(cannotWrite, name));
  const auto here = [&](const Result<void>& result) { return result.ok() ? result : result.error().at(pathOf(name)); };
  const auto old = TRY(_openPlain(name, cannotWrite));
  // Whether a name leads to the file that stood there when we began, with the content that the caller read.
  const auto isAsBefore = [&](const std::string& which) -> Result<void> {
    const auto now = TRY(statusOf(which));
    if (!now) return changedMeanwhile();
    const struct stat opened = TRY(calls::status(old->get(), cannotWrite));
    if (!calls::isSameItem(opened, *now)) return changedMeanwhile();
    if (asRead != nullptr && !TRY(calls::holds(old->get(), **asRead, cannotWrite))) return changedMeanwhile();
    return {};
  };
  if (asRead != nullptr && asRead->has_value() != old.has_value()) return changedMeanwhile().at(pathOf(name));
  if (old) {
    TRY_VOID(here(isAsBefore(name)));
    const auto same = calls::holds(old->get(), bytes, cannotWrite);
    if (!same.ok()) return same.error().at(pathOf(name));
    if (*same) return WriteOutcome::Unchanged;
  }

  const auto readBack = [&](const std::string& which) -> Result<void> {
    const auto written = TRY(_openPlain(which, cannotWrite));
    if (!written || !TRY(calls::holds(written->get(), bytes, cannotWrite)))
      return Error(ErrorKind::System, cannotWrite + ": what was read back differs");
    return {};
  };
  const auto build = [&]() -> Result<void> {
    const struct stat own = TRY(status());
    TemporaryFile file = TRY(TemporaryFile::create(_handle.get(), old ? 0600 : ownership::newFileMode(own)));
    TRY_VOID(calls::writeAll(file.handle(), bytes, cannotWrite));
    TRY_VOID(old ? ownership::copyProperties(old->get(), file.handle()) : ownership::giveToFolder(file.handle(), own));
    TRY_VOID(file.finish());
    TRY_VOID(readBack(file.name()));
    return old ? file.replace(name, isAsBefore) : file.moveTo(name);
  };
  TRY_VOID(here(build()));
  TRY_VOID(flush());
  TRY_VOID(here(readBack(name)));
  return WriteOutcome::Written;
}

Result<void> Folder::preserve(const std::string& name, const Folder& in, const std::string& as) const {
  const std::string what = "cannot keep a copy";
  TRY_VOID(in._mayChange(what, as));
  const auto info = TRY(statusOf(name));
  if (!info) return _failure(ENOENT, what, name);
  if (!S_ISREG(info->st_mode))
    return Error::refused(what + ": " + calls::kindWords(info->st_mode) + " stands there").at(pathOf(name));
  if (::linkat(_handle.get(), name.c_str(), in._handle.get(), as.c_str(), 0) != 0) {
    switch (errno) {
      case EXDEV:
      case EPERM:  // also where the system forbids links to other people's files
      case EMLINK:
      case ENOSYS:
      case ENOTSUP:
        return _copy(name, in, as);
      default:
        return in._failure(errno, what, as);
    }
  }
  const auto kept = TRY(in.statusOf(as));
  if (!kept || !S_ISREG(kept->st_mode)) {
    ::unlinkat(in._handle.get(), as.c_str(), 0);
    return changedMeanwhile().at(pathOf(name));
  }
  return calls::flush(in._handle.get(), what);
}

Result<void> Folder::_copy(const std::string& name, const Folder& in, const std::string& as) const {
  const std::string what = "cannot keep a copy";
  const auto source = TRY(_openPlain(name, what));
  if (!source) return _failure(ENOENT, what, name);
  const auto build = [&]() -> Result<void> {
    const struct stat info = TRY(calls::status(source->get(), what));
    const Bytes bytes = TRY(calls::readAll(source->get(), limits::preservedCopyBytes, what));
    TemporaryFile file = TRY(TemporaryFile::create(in._handle.get(), 0600));
    TRY_VOID(calls::writeAll(file.handle(), bytes, what));
    TRY_VOID(ownership::copyProperties(source->get(), file.handle()));
    const timespec times[2] = {info.st_atim, info.st_mtim};
    if (::futimens(file.handle(), times) != 0) return Error::system(errno, what);
    if (!TRY(calls::holds(file.handle(), bytes, what)))
      return Error(ErrorKind::System, what + ": what was read back differs");
    TRY_VOID(file.finish());
    TRY_VOID(file.moveTo(as));
    return calls::flush(in._handle.get(), what);
  };
  const auto built = build();
  return built.ok() ? built : built.error().at(pathOf(name));
}

}  // namespace quorvane
