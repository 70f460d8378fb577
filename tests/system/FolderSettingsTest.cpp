// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of ".directory" and ".hidden".
#include <gtest/gtest.h>

#include "system/FolderMarks.h"
#include "system/linux/DirectoryFile.h"
#include "system/linux/HiddenFile.h"

namespace quorvane {
namespace {

const directoryfile::IconPaths paths{.absolute = "/a\\b\n/.quorvane/icon-1.png", .relative = "./.quorvane/icon-1.png"};
const directoryfile::IconPaths others{.absolute = "/c/.quorvane/icon-2.png", .relative = "./.quorvane/icon-2.png"};
const directoryfile::IconPaths notText{.absolute = {}, .relative = "./.quorvane/icon-2.png"};
const std::string icon = "Icon=/a\\\\b\\n/.quorvane/icon-1.png";
const std::string second = "[Desktop\\sEntry]\nIcon=./.quorvane/icon-1.png\n";

std::optional<std::string> restored(const std::string& text, const std::optional<std::string>& original) {
  return directoryfile::restored(text, original, isMarkPicture);
}

TEST(DirectoryFile, NamesTheIconOnceForEachReader) {
  EXPECT_EQ(directoryfile::withIcon("", paths), "[Desktop Entry]\n" + icon + "\n" + second);
  // The user's own icon gives way, all else stays where it is.
  EXPECT_EQ(directoryfile::withIcon("# mine\n[Desktop Entry]\nIcon[de]=x\nName=N\n Icon = y\n[Other]\nIcon=z\n", paths),
            "# mine\n[Desktop Entry]\n" + icon + "\nName=N\n[Other]\nIcon=z\n" + second);
  EXPECT_EQ(directoryfile::withIcon("[Desktop Entry]\r\nName=N\r\n", notText),
            "[Desktop Entry]\r\nName=N\r\n[Desktop\\sEntry]\r\nIcon=./.quorvane/icon-2.png\r\n");
}

TEST(DirectoryFile, ComesBackToTheLetterWhateverItWas) {
  const std::string rows[] = {"",
                              "\n",
                              "[Desktop Entry]",
                              "[Desktop Entry]\nIcon=folder-red",
                              "\xEF\xBB\xBF[Desktop Entry]\r\nIcon[de]=a\r\nIcon=b\r\n\r\n; c\r\nName = d",
                              "Icon=outside\n[ Desktop Entry ]\n[Desktop Entry][$i]\nIcon=x\n[Desktop Entry]\nIcon=y\n",
                              "[ViewProperties]\nIcon=z",
                              "[Desktop\\sEntry]\n",
                              "[Desktop\\sEntry]\nIcon=own\n[Dolphin]\nSort=1\n",
                              "no group at all \xFF\r\r\n=\n[\n]"};
  for (const std::string& original : rows) {
    SCOPED_TRACE(original);
    for (const auto& wanted : {paths, others, notText}) {
      const std::string branded = directoryfile::withIcon(original, wanted);
      EXPECT_TRUE(directoryfile::namesIcon(branded, isMarkPicture));
      EXPECT_EQ(directoryfile::withIcon(branded, wanted), branded);
      EXPECT_EQ(directoryfile::withIcon(directoryfile::withIcon(branded, others), wanted), branded);
      EXPECT_EQ(restored(branded, original), original);
      EXPECT_EQ(restored(original, original), original);
    }
  }
  EXPECT_EQ(restored(directoryfile::withIcon("", paths), {}), std::nullopt);
}

TEST(DirectoryFile, WhatOthersWroteMeanwhileStays) {
  const std::string original = "[Desktop Entry]\nIcon=mine\nName=N\n";
  const std::string branded = directoryfile::withIcon(original, paths);
  // A view was changed: our lines go, the user's icon comes back.
  EXPECT_EQ(restored(branded + "[View]\nMode=1\n", original), "[Desktop Entry]\nIcon=mine\nName=N\n[View]\nMode=1\n");
  EXPECT_EQ(restored(branded + "[View]\nMode=1\n", {}), "[Desktop Entry]\nName=N\n[View]\nMode=1\n");
  // KDE's own writer joins the groups.
  EXPECT_EQ(restored("[Desktop Entry]\nIcon=./.quorvane/icon-1.png\nName=N\n", original), original);
  // Somebody chose another icon: that is theirs to keep.
  EXPECT_EQ(restored("[Desktop Entry]\nIcon=chosen\nName=N\n" + second, original),
            "[Desktop Entry]\nIcon=chosen\nName=N\n");
  EXPECT_EQ(restored("[Desktop Entry]\nIcon=chosen\n", original), "[Desktop Entry]\nIcon=chosen\n");
}

TEST(HiddenFile, TakesTheNameInAndGivesTheRestBack) {
  const std::string name = "Icon\r";
  EXPECT_EQ(hiddenfile::withName("", name), "Icon\r\n");
  EXPECT_EQ(hiddenfile::withName("a", name), "a\nIcon\r\n");
  EXPECT_EQ(hiddenfile::withName("Icon\r", name), "Icon\r");
  EXPECT_FALSE(hiddenfile::hides("Icon\nIcons\r\n", name));
  EXPECT_EQ(hiddenfile::restored("Icon\r\n", {}, name), std::nullopt);
  for (const std::string original : {"", "a", "a\r\nb\n\n", "Icon\r\nx", "Icon\r"})
    EXPECT_EQ(hiddenfile::restored(hiddenfile::withName(original, name), original, name), original);
  EXPECT_EQ(hiddenfile::restored("a\nIcon\r\nnew\n", "a", name), "a\nnew\n");
  EXPECT_EQ(hiddenfile::restored("new\nIcon\r\n", {}, name), "new\n");
}

TEST(MarkPicture, OnlyOurPicturesAreOurs) {
  EXPECT_TRUE(isMarkPicture(".quorvane/icon-1.png"));
  EXPECT_TRUE(isMarkPicture("/x/.quorvane/icon-1.png"));
  for (const char* other : {"", "icon-1.png", "a.quorvane/icon-1.png", ".quorvane/icon-1.svg", ".quorvane/icon-/x.png",
                            ".quorvane/backup.png"})
    EXPECT_FALSE(isMarkPicture(other)) << other;
}

}  // namespace
}  // namespace quorvane
