// SPDX-License-Identifier: GPL-3.0-or-later
// What makes a brand visible to file managers that read no icon families, and how a brand is mended.
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "app/core/FolderBranding.h"
#include "foundation/base/Limits.h"
#include "support/BrandingFixture.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using Attributes = AppleDoubleForkStore::Attributes;

class BrandingMarksTest : public test::BrandingFixture {
 protected:
  [[nodiscard]] std::string text(const std::string& name) const {
    const Bytes bytes = test::readFile(folder / name);
    return {bytes.begin(), bytes.end()};
  }
  [[nodiscard]] std::vector<std::string> pictures() const {
    return *BrandPicture::allIn(*Folder::open(folder, Folder::Access::Read));
  }
  BrandingResult apply(QColor color) {
    const auto done = branding.writeIconWithImage(test::plainImage(color), folder);
    EXPECT_TRUE(done.ok()) << (done.ok() ? "" : done.error().message());
    return done.ok() ? *done : BrandingResult();
  }
  void write(const std::string& name, const std::string& content) { test::writeFile(folder / name, content); }
  void markUnfinished(const std::string& operation, bool isBranded) {
    std::string record = text(".quorvane/record.json");
    const auto replace = [&record](const std::string& what, const std::string& by) {
      if (const auto at = record.find(what); at != std::string::npos) record.replace(at, what.size(), by);
    };
    replace("\"branded\": true", std::string("\"branded\": ") + (isBranded ? "true" : "false"));
    replace("{", "{\"unfinished\": \"" + operation + "\",");
    write(".quorvane/record.json", record);
  }
};
INSTANTIATE_TEST_SUITE_P(, BrandingMarksTest, ::testing::Values(Attributes::Use, Attributes::Ignore),
                         [](const auto& row) { return row.param == Attributes::Use ? "Attributes" : "Companions"; });

TEST_P(BrandingMarksTest, EachReaderIsToldOfOnePictureThatChangesItsName) {
  apply(Qt::red);
  ASSERT_EQ(pictures().size(), 1U);
  const std::string red = pictures().front();
  EXPECT_EQ(metadata.icons.at(folder), red);
  EXPECT_NE(text(".directory").find("Icon=" + (folder / red).string() + "\n"), std::string::npos);
  EXPECT_NE(text(".directory").find("Icon=./" + red + "\n"), std::string::npos);
  EXPECT_EQ(text(".hidden"), "Icon\r\n");
  apply(Qt::blue);
  ASSERT_EQ(pictures().size(), 1U);
  EXPECT_NE(pictures().front(), red);
  EXPECT_EQ(metadata.icons.at(folder), pictures().front());
  EXPECT_TRUE(branding.status(folder)->isSound());
}

TEST_P(BrandingMarksTest, TheUsersOwnSettingsComeBackToTheLetter) {
  write(".directory", "[Desktop Entry]\r\nIcon=mine");
  write(".hidden", "secret");
  ::chmod((folder / ".directory").c_str(), 0640);
  metadata.icons[folder] = "file:///mine.png";
  const std::string before = test::describeTree(folder, true);
  apply(Qt::red);
  apply(Qt::blue);
  ASSERT_EQ(*branding.revert(folder), BrandingOutcome::Changed);
  // The former icon is a custom icon again, and its file stays out of sight.
  EXPECT_EQ(text(".directory"), "[Desktop Entry]\r\nIcon=mine");
  EXPECT_EQ(text(".hidden"), "secret\nIcon\r\n");
  EXPECT_EQ(metadata.icons.at(folder), "file:///mine.png");
  EXPECT_TRUE(pictures().empty());
  EXPECT_TRUE(branding.status(folder)->isSound());
  apply(Qt::green);
  ASSERT_EQ(*branding.reset(folder), BrandingOutcome::Changed);
  EXPECT_EQ(test::describeTree(folder, true), before);
  EXPECT_EQ(metadata.icons.at(folder), "file:///mine.png");
}

TEST_P(BrandingMarksTest, SettingsThatComeBetweenTwoAppliesAreKeptFirst) {
  apply(Qt::red);
  write(".directory", "[Desktop Entry]\nIcon=mine\n");
  write(".hidden", "secret\n");
  apply(Qt::blue);
  EXPECT_NE(text(".directory").find(pictures().front()), std::string::npos);
  ASSERT_EQ(*branding.reset(folder), BrandingOutcome::Changed);
  EXPECT_EQ(text(".directory"), "[Desktop Entry]\nIcon=mine\n");
  EXPECT_EQ(text(".hidden"), "secret\n");
}

TEST_P(BrandingMarksTest, WhatCannotBeMarkedIsANoteAndNoFailure) {
  metadata.isReachable = false;
  test::writeFile(tree / "victim", std::string("precious"));
  fs::create_symlink(tree / "victim", folder / ".directory");
  fs::create_directory(folder / ".hidden");
  const std::string before = test::describeTree(tree.path());
  EXPECT_EQ(apply(Qt::red).notes.size(), 3U);
  EXPECT_TRUE(branding.status(folder)->isSound());
  EXPECT_EQ(apply(Qt::red), BrandingOutcome::Unchanged);
  ASSERT_TRUE(branding.reset(folder).ok());
  EXPECT_EQ(test::describeTree(tree.path()), before);
}

TEST_P(BrandingMarksTest, AMovedOrCopiedFolderIsMended) {
  apply(Qt::red);
  const Bytes icon = shownIcon();
  const fs::path old = folder;
  folder = tree / "Moved";
  fs::rename(old, folder);
  // Companions beside a folder stay behind; a Mac's file manager would take them along.
  if (fs::exists(tree / "._Invoices")) fs::rename(tree / "._Invoices", tree / "._Moved");
  EXPECT_FALSE(branding.status(folder)->markFaults.empty());
  ASSERT_EQ(*branding.repair(folder, WriteMode::DryRun), BrandingOutcome::Changed);
  EXPECT_FALSE(branding.status(folder)->isSound());
  ASSERT_EQ(*branding.repair(folder), BrandingOutcome::Changed);
  EXPECT_TRUE(branding.status(folder)->isSound());
  EXPECT_EQ(shownIcon(), icon);
  EXPECT_EQ(metadata.icons.at(folder), pictures().front());
  EXPECT_EQ(*branding.repair(folder), BrandingOutcome::Unchanged);

  // The session still knows the old place, where a new folder would inherit a broken picture.
  fs::create_directory(old);
  EXPECT_FALSE(branding.status(old)->isSound());
  EXPECT_EQ(*branding.reset(old), BrandingOutcome::Changed);
  EXPECT_FALSE(metadata.icons.contains(old));
}

TEST_P(BrandingMarksTest, WhateverIsMissingIsNamedAndMendedByRepairAndByApply) {
  const std::string plain = test::describeTree(tree.path());
  apply(Qt::red);
  const Bytes icon = shownIcon();
  const std::string picture = pictures().front();
  const std::vector<std::pair<std::string, std::function<void()>>> rows{
      {"no flag",
       [&] {
         auto opened = Folder::open(folder, Folder::Access::Write);
         ASSERT_TRUE(forks.changeFolderFlags(*opened, 0, FinderInfo::hasCustomIcon).ok());
       }},
      {"no icon file", [&] { fs::remove(folder / "Icon\r"); }},
      {"no companion", [&] { fs::remove(folder / "._Icon\r"); }},
      {"damaged companion", [&] { write("._Icon\r", "nonsense"); }},
      {"nothing but the flag",
       [&] {
         fs::remove(folder / "Icon\r");
         fs::remove(folder / "._Icon\r");
       }},
      {"no picture", [&] { fs::remove(folder / picture); }},
      {"damaged picture", [&] { write(picture, "nonsense"); }},
      {"link instead of the picture",
       [&] {
         fs::remove(folder / picture);
         fs::create_symlink(folder / ".BackupIcon.icns", folder / picture);
       }},
      {"folder instead of the picture",
       [&] {
         fs::remove(folder / picture);
         fs::create_directories(folder / picture / "inside");
       }},
      {"picture too large", [&] { fs::resize_file(folder / picture, limits::iconFileBytes + 1); }},
      {"second picture, a link",
       [&] { fs::create_symlink(folder / ".BackupIcon.icns", folder / ".quorvane/icon-0.png"); }},
      {"second picture, a folder", [&] { fs::create_directory(folder / ".quorvane/icon-0.png"); }},
      {"second picture", [&] { write(".quorvane/icon-0.png", "nonsense"); }},
      {"no .directory", [&] { fs::remove(folder / ".directory"); }},
      {"another icon in .directory", [&] { write(".directory", "[Desktop Entry]\nIcon=./.quorvane/icon-9.png\n"); }},
      {"no .hidden", [&] { fs::remove(folder / ".hidden"); }},
      {"no setting", [&] { metadata.icons.clear(); }},
      {"interrupted apply", [&] { markUnfinished("apply", true); }},
      {"interrupted first apply", [&] { markUnfinished("apply", false); }},
  };
  for (const bool byApply : {false, true}) {
    for (const auto& [what, breakIt] : rows) {
      SCOPED_TRACE(what + (byApply ? ", apply" : ", repair"));
      breakIt();
      EXPECT_FALSE(branding.status(folder)->isSound());
      // A malformed companion is somebody's work: apply leaves it alone.
      if (byApply && what != "damaged companion") {
        EXPECT_EQ(apply(Qt::red), BrandingOutcome::Changed);
      } else {
        const auto repaired = branding.repair(folder);
        ASSERT_TRUE(repaired.ok()) << repaired.error().message();
      }
      const auto after = branding.status(folder);
      EXPECT_TRUE(after->isSound()) << (after->faults.empty() ? "" : after->faults.front());
      EXPECT_EQ(shownIcon(), icon);
      EXPECT_EQ(pictures(), std::vector{picture});
    }
  }
  ASSERT_TRUE(branding.reset(folder).ok());
  EXPECT_EQ(test::describeTree(tree.path()), plain);
}

TEST_P(BrandingMarksTest, AnInterruptedWayBackIsFinishedAndALostBrandGivenUp) {
  write(".directory", "[Desktop Entry]\nIcon=mine\n");
  const std::string plain = test::describeTree(folder, true);
  for (const std::string operation : {"reset", "lost"}) {
    SCOPED_TRACE(operation);
    apply(Qt::red);
    if (operation == "reset") {
      markUnfinished("reset", true);
    } else {
      fs::remove(folder / "._Icon\r");
      fs::remove(folder / pictures().front());
    }
    const auto repaired = branding.repair(folder);
    ASSERT_TRUE(repaired.ok()) << repaired.error().message();
    EXPECT_FALSE(repaired->notes.empty());
    // Whoever removed the files changed the folder, whose date then stays.
    if (operation == "reset") {
      EXPECT_EQ(test::describeTree(folder, true), plain);
    }
    EXPECT_EQ(text(".directory"), "[Desktop Entry]\nIcon=mine\n");
    EXPECT_TRUE(branding.status(folder)->isSound());
  }
  apply(Qt::red);
  markUnfinished("revert", true);
  ASSERT_EQ(*branding.repair(folder), BrandingOutcome::Changed);
  EXPECT_FALSE(fs::exists(folder / ".BackupIcon.icns"));
  EXPECT_TRUE(pictures().empty());
  EXPECT_TRUE(branding.status(folder)->isSound());
}

TEST_P(BrandingMarksTest, ASettingFirstSeenLaterComesBackToItsOwnUser) {
  metadata.icons[folder] = "file:///mine.png";
  metadata.isReachable = false;
  apply(Qt::red);
  metadata.isReachable = true;
  ASSERT_EQ(*branding.repair(folder), BrandingOutcome::Changed);
  ASSERT_EQ(*branding.reset(folder), BrandingOutcome::Changed);
  EXPECT_EQ(metadata.icons.at(folder), "file:///mine.png");

  apply(Qt::red);
  const std::string own = "custom-icon-" + std::to_string(::geteuid());
  fs::rename(folder / ".quorvane/marks" / own, folder / ".quorvane/marks/custom-icon-1234567");
  ASSERT_EQ(*branding.reset(folder), BrandingOutcome::Changed);
  EXPECT_FALSE(metadata.icons.contains(folder));

  // What a stranger's record says leads nowhere else.
  apply(Qt::red);
  write(".quorvane/marks/" + own, "smb://elsewhere/mine.png");
  ASSERT_EQ(*branding.reset(folder), BrandingOutcome::Changed);
  EXPECT_FALSE(metadata.icons.contains(folder));
}

TEST_P(BrandingMarksTest, AnInterruptionIsNotForgottenByARunThatFails) {
  const std::string plain = test::describeTree(folder);
  for (const std::string operation : {"apply", "reset"}) {
    SCOPED_TRACE(operation);
    apply(Qt::red);
    markUnfinished(operation, false);
    fs::rename(folder / ".quorvane/marks", folder / ".quorvane/away");
    write(".quorvane/marks", "no folder");
    EXPECT_FALSE(branding.writeIconWithImage(test::plainImage(Qt::blue), folder).ok());
    EXPECT_FALSE(branding.revert(folder).ok());
    fs::remove(folder / ".quorvane/marks");
    fs::rename(folder / ".quorvane/away", folder / ".quorvane/marks");
    const auto status = branding.status(folder);
    ASSERT_TRUE(status->unfinished.has_value());
    EXPECT_EQ(operationName(*status->unfinished), operation);
    ASSERT_EQ(*branding.reset(folder), BrandingOutcome::Changed);
    EXPECT_EQ(test::describeTree(folder), plain);
  }
}

TEST_P(BrandingMarksTest, AWayBackCutOffAfterItsBackupWentIsFinishedByTheNextRevert) {
  for (const std::string operation : {"revert", "reset", "apply"}) {
    SCOPED_TRACE(operation);
    apply(Qt::red);
    markUnfinished(operation, false);
    fs::remove(folder / ".BackupIcon.icns");
    ASSERT_EQ(*branding.revert(folder), BrandingOutcome::Changed);
    EXPECT_TRUE(branding.status(folder)->isSound());
    EXPECT_TRUE(pictures().empty());
    EXPECT_EQ(*branding.revert(folder), BrandingOutcome::NothingToRevert);
  }
}

TEST_P(BrandingMarksTest, ARecordThatCannotBeGivenBackIsNamedAndNothingBegun) {
  apply(Qt::red);
  const fs::path kept = folder / ".quorvane";
  const std::vector<std::pair<fs::path, std::function<void(const fs::path&)>>> rows{
      {kept / "marks", [](const fs::path& path) { test::writeFile(path, std::string("no folder")); }},
      {kept / "marks/.directory", [&](const fs::path& path) { fs::create_symlink(tree / "victim", path); }},
      {kept / "backup.icns", [](const fs::path& path) { fs::create_directory(path); }},
  };
  for (const auto& [path, plant] : rows) {
    SCOPED_TRACE(path);
    const std::string record = text(".quorvane/record.json");
    if (path.filename() == "backup.icns") {
      std::string changed = record;
      const std::string had = "\"had_backup\": false";
      changed.replace(changed.find(had), had.size(), "\"had_backup\": true");
      write(".quorvane/record.json", changed);
    }
    const fs::path away = tree / "away";
    if (fs::exists(path)) fs::rename(path, away);
    plant(path);
    const std::string before = test::describeTree(tree.path());
    EXPECT_FALSE(branding.status(folder)->isSound());
    EXPECT_FALSE(branding.reset(folder, WriteMode::DryRun).ok());
    EXPECT_FALSE(branding.reset(folder).ok());
    EXPECT_EQ(test::describeTree(tree.path()), before);
    fs::remove(path);
    if (fs::exists(away)) fs::rename(away, path);
    write(".quorvane/record.json", record);
  }
  EXPECT_FALSE(branding.writeIconWithImage(test::plainImage(Qt::red), kept).ok());
}

TEST_P(BrandingMarksTest, ARepairThatWouldFailFailsInADryRunToo) {
  apply(Qt::red);
  fs::remove(folder / ".hidden");
  write(".BackupIcon.icns", "nonsense");
  for (const auto mode : {WriteMode::DryRun, WriteMode::Write}) {
    const auto repaired = branding.repair(folder, mode);
    ASSERT_FALSE(repaired.ok());
    EXPECT_NE(repaired.error().message().find(".BackupIcon.icns"), std::string::npos);
    EXPECT_EQ(fs::exists(folder / ".hidden"), mode == WriteMode::Write);
  }
}

TEST_P(BrandingMarksTest, WithoutABackupTheFormerIconComesFromTheRecord) {
  apply(Qt::red);
  const Bytes backup = test::readFile(folder / ".BackupIcon.icns");
  fs::remove(folder / ".BackupIcon.icns");
  apply(Qt::blue);
  EXPECT_EQ(test::readFile(folder / ".BackupIcon.icns"), backup);
}

}  // namespace
}  // namespace quorvane
