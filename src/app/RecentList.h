// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QThreadPool>
#include <filesystem>
#include <map>
#include <optional>
#include <vector>

#include "system/RecentFolders.h"

namespace quorvane {

/// The recent folders for the menu, which never waits for a disk: whether a folder is still there is looked up in a
/// thread of its own, and shown the next time.
class RecentList : public QObject {
  Q_OBJECT
 public:
  /// `shared`: the desktop's list, which is told as well.
  RecentList(UserDefaults& defaults, std::optional<SharedRecentList> shared);
  ~RecentList() override;

  void add(const std::filesystem::path& folder);
  /// Out of our own list; the desktop's tells its missing ones itself.
  void remove(const std::filesystem::path& folder);
  void clear();
  /// The newest first. Looks anew at what is missing, for the next call.
  [[nodiscard]] std::vector<RecentFolder> folders();

 private:
  RecentFolders _own;
  std::optional<SharedRecentList> _shared;
  std::map<std::filesystem::path, bool> _missing;  ///< as last seen
  QThreadPool _pool;                               ///< last: ends before what it uses
};

}  // namespace quorvane
