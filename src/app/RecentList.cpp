// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RecentList.h"

#include <QRunnable>

#include "foundation/base/Log.h"

namespace quorvane {

namespace {

void logFailure(const Result<void>& result) {
  if (!result) logMessage("window", result.error().message());
}

}  // namespace

RecentList::RecentList(UserDefaults& defaults, std::optional<SharedRecentList> shared)
    : _own(defaults), _shared(std::move(shared)) {
  _pool.setMaxThreadCount(1);
}

RecentList::~RecentList() {
  _pool.waitForDone();
}

void RecentList::add(const std::filesystem::path& folder) {
  _own.add(folder);
  _missing[folder] = false;
  if (_shared) _pool.start(QRunnable::create([this, folder] { logFailure(_shared->add(folder)); }));
}

void RecentList::remove(const std::filesystem::path& folder) {
  _own.remove(folder);
  _missing.erase(folder);
}

void RecentList::clear() {
  _own.clear();
  if (_shared) _pool.start(QRunnable::create([this] { logFailure(_shared->clear()); }));
}

std::vector<RecentFolder> RecentList::folders() {
  const auto paths = _own.paths();
  std::vector<RecentFolder> folders;
  for (const auto& path : paths) {
    const auto seen = _missing.find(path);
    folders.push_back({path, seen != _missing.end() && seen->second});
  }
  _pool.start(QRunnable::create([this, paths] {
    auto seen = RecentFolders::lookAt(paths);
    QMetaObject::invokeMethod(
        this,
        [this, seen = std::move(seen)] {
          for (const RecentFolder& folder : seen) _missing[folder.path] = folder.isMissing;
        },
        Qt::QueuedConnection);
  }));
  return folders;
}

}  // namespace quorvane
