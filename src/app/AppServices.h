// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "app/Updater.h"
#include "app/core/BasePicture.h"
#include "system/RecentFolders.h"

class QWidget;

namespace quorvane {

class FolderWork;
class LookStore;
class SharedPanels;
class UserDefaults;
class UserPrompts;

/// What the controller needs of the world, chosen once by the main function or a test. Nothing is owned; all must
/// outlive the controller.
struct AppServices {
  using Path = std::filesystem::path;
  /// Asks for one path and tells it; tells nothing when the user gives up. May return at once.
  using Chooser = std::function<void(QWidget& window, std::function<void(const Path&)> chosen)>;

  UserDefaults& defaults;
  UserPrompts& prompts;
  SharedPanels& panels;
  FolderWork& work;
  LookStore* looks = nullptr;  ///< none: looks cannot be kept

  /// Called on a thread of its own.
  std::function<Result<Image>(const BaseReference&)> readPicture = readBasePicture;
  Chooser chooseFolder = {};
  Chooser choosePicture = {};
  std::function<void(const Path& folder)> noteRecentFolder = {};
  std::function<std::vector<RecentFolder>()> recentFolders = {};  ///< the last one first
  std::function<void()> clearRecentFolders = {};
  std::function<void(const Path& folder)> removeRecentFolder = {};
  std::function<void(const Path& folder)> revealInFileManager = {};
  /// Opens a page of the maker's web site; false when there is nothing to open it with.
  std::function<bool(const QString& page)> visitPage = {};
  /// Begins a message to the maker; false as before.
  std::function<bool()> writeToMaker = {};
  /// The product's folder on the maker's web site, ending in "/": the feeds lie there.
  QString feedFolder = {};
  /// Called when it is first needed. None: the program does not look for newer versions, and nothing offers to.
  std::function<std::unique_ptr<Updater>()> makeUpdater = {};
};

}  // namespace quorvane
