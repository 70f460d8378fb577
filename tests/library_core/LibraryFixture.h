// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/plist/PropertyList.h"
#include "iconfamily/AppleDoubleForkStore.h"
#include "library/core/AddingIcons.h"
#include "library/core/IconLibrary.h"
#include "library/core/LibraryUndo.h"
#include "library/core/SetArchive.h"
#include "support/Bitmaps.h"
#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"
#include "system/FileManagerNotices.h"
#include "system/KindIcons.h"

namespace quorvane::test {

using Names = std::vector<std::string>;
namespace fs = std::filesystem;

/// A library in a temporary folder, with a folder as trash.
class LibraryFixture : public ::testing::Test {
 protected:
  LibraryFixture() {
    for (const char* name : {"library", "trash", "source"}) fs::create_directory(tree / name);
    picture(tree / "source/icon.icns");
  }

  /// A small icon family as a file, opaque grey of that level.
  static void picture(const fs::path& path, std::uint8_t level = 9) {
    fs::create_directories(path.parent_path());
    IconFamily family;
    family.setIconFamilyElement("is32", filledBitmap(16, 16, {level, level, level, 255}));
    family.setIconFamilyElement("s8mk", filledBitmap(16, 16, {level, level, level, 255}));
    writeFile(path, family.data());
  }
  static void list(const fs::path& path, const Names& names) { writeFile(path, plist::writeStringArray(names)); }
  static Names listed(const fs::path& path) {
    auto names = fs::exists(path) ? plist::readStringArray(readFile(path)) : Result<Names>(Names{"none"});
    return names ? *names : Names{"unreadable"};
  }
  static Names namesOf(const IconSet::Icons& icons) {
    Names names;
    for (const IconRecord& icon : icons) names.push_back(icon.name);
    return names;
  }
  static Names namesOf(const IconLibrary::Sets& sets) {
    Names names;
    for (const auto& set : sets) names.push_back(set->name());
    return names;
  }
  [[nodiscard]] std::shared_ptr<IconSet> set(const std::string& name) const {
    return IconSet::initWithPath(root / name, services);
  }
  /// A set with these icons, listed in this order.
  std::shared_ptr<IconSet> setOf(const std::string& name, const Names& icons) {
    fs::create_directories(root / name);
    for (const std::string& icon : icons) picture(root / name / icon);
    list(root / name / iconListName, icons);
    return set(name);
  }

  TemporaryFolder tree;
  fs::path root = tree / "library";
  AppleDoubleForkStore forks;
  OwnKindIcons kinds;
  StampingNotices notices;
  IconServices iconServices{.forks = forks, .kinds = kinds, .notices = notices};
  FolderTrash trash{tree / "trash"};
  LibraryServices services{.icons = iconServices, .trash = &trash};
  IconLibrary library{{.builtin = tree / "builtin", .custom = root, .former = tree / "home/Library/Quorvane"},
                      services};
};

}  // namespace quorvane::test
