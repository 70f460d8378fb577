// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/UserDefaults.h"
#include "foundation/base/Result.h"
#include "system/RecentListText.h"

namespace quorvane {

/// The list of recently used things that all programs of the desktop share. A list that is damaged, is a link, or
/// cannot be changed is left alone. Safe to use from any thread, and from several programs: a change that somebody else
/// made in between is never lost to ours.
class SharedRecentList {
 public:
  SharedRecentList(std::filesystem::path file, recentlist::Application application)
      : _file(std::move(file)), _application(std::move(application)) {}
  /// The user's own, "recently-used.xbel" where the desktop keeps data.
  static Result<std::filesystem::path> usualFile();

  /// Notes that the folder (an absolute path) was opened now.
  Result<void> add(const std::filesystem::path& folder) const;
  /// Takes our part out; what other programs noted stays.
  Result<void> clear() const;

 private:
  template <typename Edit>
  Result<void> change(const Edit& edit) const;

  std::filesystem::path _file;
  recentlist::Application _application;
};

/// One line of the menu of recent folders.
struct RecentFolder {
  std::filesystem::path path;
  bool isMissing = false;  ///< nothing is there any more, or no folder
  bool operator==(const RecentFolder&) const = default;
};

/// Our own list for the menu, kept in the settings, the newest first. Belongs to the settings' thread.
class RecentFolders {
 public:
  static constexpr std::size_t most = 10;

  explicit RecentFolders(UserDefaults& defaults) : _defaults(defaults) {}

  /// Puts the folder (an absolute path) to the front.
  void add(const std::filesystem::path& folder);
  void remove(const std::filesystem::path& folder);
  void clear();
  [[nodiscard]] std::vector<std::filesystem::path> paths() const;
  /// Looks at each folder, which a slow disk may hold up. Safe on any thread.
  static std::vector<RecentFolder> lookAt(const std::vector<std::filesystem::path>& paths);

 private:
  void keep(const std::vector<std::filesystem::path>& paths);

  UserDefaults& _defaults;
};

}  // namespace quorvane
