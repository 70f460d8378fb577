// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/SettingsFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "foundation/BaseDirectories.h"
#include "foundation/FileCalls.h"
#include "foundation/FileReading.h"
#include "foundation/SettingsText.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Log.h"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

constexpr int keptNames = 1000;
// Editors that know nothing of our lock are met once in a while, not three times in a row.
constexpr int tries = 3;

}  // namespace

struct SettingsFile::Found {
  fs::path target;             ///< the file that is read and replaced: the path itself, or what a link there leads to
  std::optional<Bytes> bytes;  ///< nullopt: there is none
  SettingsText settings;
  std::optional<Error> fault;    ///< why what is there is no settings file of ours; it can be moved aside
  std::optional<Error> isFixed;  ///< why it must not be changed
};

Result<fs::path> SettingsFile::usualPath() {
  return TRY(ownDirectory(BaseDirectory::Config)) / "settings.json";
}

bool SettingsFile::Stamp::operator==(const Stamp& other) const {
  const auto same = [](const Item& a, const Item& b) {
    return a.device == b.device && a.inode == b.inode && a.size == b.size && a.modified.tv_sec == b.modified.tv_sec &&
           a.modified.tv_nsec == b.modified.tv_nsec && a.changed.tv_sec == b.changed.tv_sec &&
           a.changed.tv_nsec == b.changed.tv_nsec;
  };
  return same(entry, other.entry) && same(target, other.target);
}

SettingsFile::Stamp SettingsFile::_currentStamp() const {
  const auto item = [](int failed, const struct stat& info) -> Stamp::Item {
    if (failed != 0) return {};
    return {info.st_dev, info.st_ino, info.st_size, info.st_mtim, info.st_ctim};
  };
  struct stat entry {
  }, target{};
  const int noEntry = ::lstat(_path.c_str(), &entry), noTarget = ::stat(_path.c_str(), &target);
  return {.entry = item(noEntry, entry), .target = item(noTarget, target)};
}

bool SettingsFile::hasChanged() const {
  return _currentStamp() != _stamp;
}

Result<SettingsFile::Found> SettingsFile::_look() const {
  const std::string what = "cannot read settings";
  Found found{.target = _path, .bytes = {}, .settings = {}, .fault = {}, .isFixed = {}};
  const auto faulty = [&](const Error& fault) -> Result<Found> {
    found.fault = fault.at(found.target);
    return found;
  };
  struct stat info {};
  if (::lstat(_path.c_str(), &info) != 0) {
    if (errno == ENOENT) return found;
    return Error::system(errno, what).at(_path);
  }
  const bool isLink = S_ISLNK(info.st_mode);
  if (isLink) {
    if (info.st_uid != ::geteuid()) return Error::refused(what + ": it is somebody else's link").at(_path);
    std::error_code error;
    fs::path target = fs::canonical(_path, error);
    if (error == std::errc::no_such_file_or_directory || error == std::errc::too_many_symbolic_link_levels ||
        error == std::errc::not_a_directory)
      return faulty(Error::refused("the link leads nowhere"));
    if (error) return Error::system(error.value(), what).at(_path);
    found.target = std::move(target);
    if (::stat(found.target.c_str(), &info) != 0) return Error::system(errno, what).at(found.target);
  }
  auto bytes = readPlainFile(found.target, limits::settingsFileBytes);
  if (!bytes) {
    const Error& failure = bytes.error();
    if (failure.kind() == ErrorKind::NotFound)
      return Error::refused("it was changed by somebody else meanwhile").at(_path);
    // Such a file stays what it is; other failures may pass.
    const bool lasts = failure.kind() == ErrorKind::Refused || failure.kind() == ErrorKind::TooLarge ||
                       failure.systemCode() == EACCES || failure.systemCode() == ENXIO;
    return lasts ? faulty(failure) : Result<Found>(failure);
  }
  found.bytes = *std::move(bytes);
  auto settings = SettingsText::parse(*found.bytes);
  if (!settings) return faulty(settings.error());
  found.settings = *std::move(settings);
  const auto fixed = [&](const char* why) { found.isFixed = Error::refused(why).at(found.target); };
  if (isLink && info.st_uid != ::geteuid()) fixed("cannot keep settings: the link leads to somebody else's file");
  if ((info.st_mode & 0222) == 0) fixed("cannot keep settings: the file is read-only");
  return found;
}

void SettingsFile::_warn(const Error& fault) {
  if (_warned == fault.message()) return;
  _warned = fault.message();
  logMessage("settings", "not used: " + _warned);
}

Result<QVariantMap> SettingsFile::read() {
  _stamp = _currentStamp();
  const Found found = TRY(_look());
  if (found.fault) _warn(*found.fault);
  return found.settings.values();
}

Result<void> SettingsFile::_moveAside(Folder& folder) {
  const std::string what = "cannot move aside what stands in the place of settings";
  for (int number = 1; number < keptNames; ++number) {
    const fs::path kept = _path.native() + ".kept-" + std::to_string(number);
    int failed = ::renameat2(AT_FDCWD, _path.c_str(), AT_FDCWD, kept.c_str(), RENAME_NOREPLACE);
    if (failed != 0 && (errno == EINVAL || errno == ENOSYS)) {
      // A file system without exclusive renaming: a look must do.
      struct stat info {};
      if (::lstat(kept.c_str(), &info) == 0) continue;
      failed = ::rename(_path.c_str(), kept.c_str());
    }
    if (failed != 0 && errno == EEXIST) continue;
    if (failed != 0) return Error::system(errno, what).at(_path);
    logMessage("settings", "kept as " + kept.string() + ", beginning anew");
    return folder.flush();
  }
  return Error::refused(what + ": too many are kept already").at(_path);
}

Result<Folder> SettingsFile::_openLocked() {
  const fs::path above = _path.parent_path();
  TRY_VOID(makePrivateDirectories(above));
  auto folder = Folder::open(above, Folder::Access::Write, _isLockStuck ? std::chrono::milliseconds(0) : _wait);
  // Opening refuses nothing else than to wait any longer.
  _isLockStuck = !folder.ok() && folder.error().kind() == ErrorKind::Refused;
  return folder;
}

Result<void> SettingsFile::_replace(Folder& folder, const Found& found, const Bytes& text) {
  const std::string name = found.target.filename().string();
  const fs::path above = found.target.parent_path();
  const struct stat here = TRY(folder.status());
  struct stat there {};
  if (::stat(above.c_str(), &there) != 0) return Error::system(errno, "cannot keep settings").at(above);
  const bool isHere = calls::isSameItem(here, there);
  auto elsewhere = isHere ? Result<Folder>(Error::broken("")) : Folder::open(above, Folder::Access::Write, _wait);
  // It has been waited for long enough: not to be tried again.
  if (!isHere && !elsewhere.ok()) return Error(ErrorKind::System, elsewhere.error().why()).at(above);
  const auto written = (isHere ? folder : *elsewhere).writeFile(name, text, found.bytes);
  if (written.ok() || written.error().kind() == ErrorKind::Refused)
    return written.ok() ? Result<void>() : written.error();
  // What failed after the new file took its place must not be done again: it would count twice.
  const auto now = readPlainFile(found.target, limits::settingsFileBytes);
  if (!now.ok() || *now != text) return written.error();
  _unsettled = above;
  return {};
}

Result<void> SettingsFile::settle() {
  if (!_unsettled) return {};
  Folder folder = TRY(Folder::open(*_unsettled, Folder::Access::Write, _wait));
  TRY_VOID(folder.flush());
  _unsettled.reset();
  return {};
}

Result<QVariantMap> SettingsFile::_tryUpdate(Folder& folder, const SettingsChanges& changes) {
  Found found = TRY(_look());
  const bool isChanged = found.settings.apply(changes);
  if (isChanged) {
    if (found.isFixed) return *found.isFixed;
    const Bytes text = TRY(found.settings.text());
    if (found.fault) {
      _warn(*found.fault);
      TRY_VOID(_moveAside(folder));
      found.target = _path;
      found.bytes.reset();
    }
    TRY_VOID(_replace(folder, found, text));
  }
  return found.settings.values();
}

Result<QVariantMap> SettingsFile::update(const SettingsChanges& changes) {
  Folder folder = TRY(_openLocked());
  for (int count = 1;; ++count) {
    auto values = _tryUpdate(folder, changes);
    if (values.ok()) _stamp = _currentStamp();
    if (values.ok() || values.error().kind() != ErrorKind::Refused || count == tries) return values;
  }
}

}  // namespace quorvane
