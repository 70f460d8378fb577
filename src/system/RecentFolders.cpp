// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/RecentFolders.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QDateTime>
#include <algorithm>
#include <cerrno>

#include "foundation/BaseDirectories.h"
#include "foundation/FileDescriptor.h"
#include "foundation/FileManagerExtras.h"
#include "foundation/Folder.h"
#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

const QString recentKey = QStringLiteral("RecentFolders");
// Another program may be writing just now; more than a few times in a row is no accident.
constexpr int tries = 5;
constexpr std::chrono::milliseconds patience{2000};

/// What somebody opened is nobody else's business.
Result<void> makePrivate(const std::filesystem::path& file) {
  const FileDescriptor handle(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
  if (!handle.isOpen() || ::fchmod(handle.get(), 0600) != 0)
    return Error::system(errno, "cannot set permissions").at(file);
  return {};
}

}  // namespace

Result<std::filesystem::path> SharedRecentList::usualFile() {
  return TRY(baseDirectory(BaseDirectory::Data)) / "recently-used.xbel";
}

template <typename Edit>
Result<void> SharedRecentList::change(const Edit& edit) const {
  TRY_VOID(makePrivateDirectories(_file.parent_path()));
  const std::string name = _file.filename().string();
  Folder folder = TRY(Folder::open(_file.parent_path(), Folder::Access::Write, patience));
  Result<WriteOutcome> written = WriteOutcome::Unchanged;
  for (int i = 0; i < tries; ++i) {
    const auto before = TRY(folder.readFile(name, limits::recentListBytes));
    const std::string text = before ? std::string(before->begin(), before->end()) : std::string();
    auto edited = edit(text);
    if (!edited) return edited.error().at(_file);
    if (*edited == text) return {};
    written = folder.writeFile(name, Bytes(edited->begin(), edited->end()), before);
    if (written) return before ? Result<void>() : makePrivate(_file);
    if (written.error().kind() != ErrorKind::Refused) break;
  }
  return written.error();
}

Result<void> SharedRecentList::add(const std::filesystem::path& folder) const {
  const std::string now = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toStdString();
  return change([&](const std::string& text) { return recentlist::withFolder(text, folder, _application, now); });
}

Result<void> SharedRecentList::clear() const {
  std::error_code error;
  if (!std::filesystem::exists(_file, error)) return {};
  return change([&](const std::string& text) { return recentlist::withoutApplication(text, _application); });
}

std::vector<std::filesystem::path> RecentFolders::paths() const {
  std::vector<std::filesystem::path> found;
  const auto kept = _defaults.arrayForKey(recentKey).value_or(QVariantList());
  for (const QVariant& item : kept) {
    // Paths are bytes; somebody who edits the settings writes text.
    const std::filesystem::path path = item.toByteArray().toStdString();
    if (path.is_absolute() && found.size() < most && std::ranges::find(found, path) == found.end())
      found.push_back(path);
  }
  return found;
}

void RecentFolders::keep(const std::vector<std::filesystem::path>& paths) {
  QVariantList list;
  for (std::size_t i = 0; i < std::min(paths.size(), most); ++i)
    list.append(QByteArray::fromStdString(paths[i].native()));
  _defaults.setArray(list, recentKey);
}

void RecentFolders::add(const std::filesystem::path& folder) {
  auto all = paths();
  std::erase(all, folder);
  all.insert(all.begin(), folder);
  keep(all);
}

void RecentFolders::remove(const std::filesystem::path& folder) {
  auto all = paths();
  if (std::erase(all, folder) > 0) keep(all);
}

void RecentFolders::clear() {
  _defaults.removeObjectForKey(recentKey);
}

std::vector<RecentFolder> RecentFolders::lookAt(const std::vector<std::filesystem::path>& paths) {
  std::vector<RecentFolder> folders;
  for (const auto& path : paths) folders.push_back({.path = path, .isMissing = !isDirectory(path)});
  return folders;
}

}  // namespace quorvane
