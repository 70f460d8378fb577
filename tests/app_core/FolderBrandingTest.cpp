// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/FolderBranding.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "iconfamily/CustomIcon.h"
#include "iconfamily/format/IcnsContainer.h"
#include "support/BrandingFixture.h"
#include "support/ChildProcess.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using Attributes = AppleDoubleForkStore::Attributes;

class FolderBrandingTest : public test::BrandingFixture {};
INSTANTIATE_TEST_SUITE_P(, FolderBrandingTest, ::testing::Values(Attributes::Use, Attributes::Ignore),
                         [](const auto& row) { return row.param == Attributes::Use ? "Attributes" : "Companions"; });

TEST_P(FolderBrandingTest, ApplyKeepsTheFirstIconAndIsIdempotent) {
  ASSERT_EQ(*branding.writeIconWithImage(test::plainImage(Qt::red), folder), BrandingOutcome::Changed);
  const Bytes red = shownIcon();
  const Bytes backup = test::readFile(folder / ".BackupIcon.icns");
  EXPECT_EQ(IconFamily::initWithData(backup), *IconFamily::iconFamilyWithThumbnailsOfImage(*kinds.systemIcon("fldr")));
  EXPECT_FALSE(notices.noted.empty());

  const std::string once = test::describeTree(tree.path(), true);
  EXPECT_EQ(*branding.writeIconWithImage(test::plainImage(Qt::red), folder), BrandingOutcome::Unchanged);
  EXPECT_EQ(test::describeTree(tree.path(), true), once);

  ASSERT_EQ(*branding.writeIconWithImage(test::plainImage(Qt::blue), folder), BrandingOutcome::Changed);
  EXPECT_NE(shownIcon(), red);
  EXPECT_EQ(test::readFile(folder / ".BackupIcon.icns"), backup);
}

TEST_P(FolderBrandingTest, RevertPutsTheIconFromBeforeTheFirstApplyBackOnce) {
  const auto former = *IconFamily::iconFamilyWithThumbnailsOfImage(test::plainImage(Qt::green));
  ASSERT_TRUE(former.setAsCustomIconForDirectory(folder, services).ok());
  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::red), folder).ok());
  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::blue), folder).ok());
  EXPECT_EQ(*branding.revert(folder), BrandingOutcome::Changed);
  EXPECT_EQ(shownIcon(), former.data());
  EXPECT_FALSE(fs::exists(folder / ".BackupIcon.icns"));
  EXPECT_EQ(*branding.revert(folder), BrandingOutcome::NothingToRevert);
  EXPECT_EQ(shownIcon(), former.data());
}

/// Fails from the second notice on.
class WearyNotices : public FileManagerNotices {
 public:
  Result<void> noteDirectoryModified(Folder&) override {
    if (_notices++ > 0) return Error::broken("nobody listens");
    return {};
  }

 private:
  int _notices = 0;
};

TEST_P(FolderBrandingTest, ARevertWhoseNoticeFailsIsStillOne) {
  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::red), folder).ok());
  WearyNotices weary;
  const IconServices others{.forks = forks, .kinds = kinds, .notices = weary, .marks = marks.get()};
  const auto reverted = FolderBranding(others).revert(folder);
  ASSERT_TRUE(reverted.ok()) << reverted.error().message();
  EXPECT_EQ(*reverted, BrandingOutcome::Changed);
  EXPECT_FALSE(fs::exists(folder / ".BackupIcon.icns"));
}

TEST_P(FolderBrandingTest, ABackupOfADamagedIconCanBePutBack) {
  {
    auto opened = Folder::open(folder, Folder::Access::Write);
    ASSERT_TRUE(opened->writeFile("Icon\r", {}).ok());
    ForkedFile damaged;
    damaged.fork.set({"icns", customIconResourceId, 0, {}, Bytes{'j', 'u', 'n', 'k'}});
    ASSERT_TRUE(forks.write(*opened, "Icon\r", damaged).ok());
    ASSERT_TRUE(forks.changeFolderFlags(*opened, FinderInfo::hasCustomIcon, 0).ok());
  }

  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::red), folder).ok());
  const auto reverted = branding.revert(folder);
  ASSERT_TRUE(reverted.ok()) << reverted.error().message();
  EXPECT_EQ(shownIcon(), IconFamily::iconFamilyWithThumbnailsOfImage(*kinds.systemIcon("fldr"))->data());
}

TEST_P(FolderBrandingTest, ResetLeavesTheTreeAsItWasBitForBit) {
  test::writeFile(folder / "letter.txt", std::string("Dear all"));
  test::writeFile(tree / "._Neighbour", std::string("not ours"));
  ::chmod(folder.c_str(), 02750);
  const timespec times[2] = {{.tv_sec = 1'000'000'000, .tv_nsec = 5},
                             {.tv_sec = 1'000'000'001, .tv_nsec = 123'456'789}};
  ::utimensat(AT_FDCWD, folder.c_str(), times, 0);
  // The folder above gets a companion for a moment; its date is not ours to keep.
  const auto picture = [&] { return test::describeTree(folder, true); };
  const std::string before = picture();

  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::red), folder).ok());
  EXPECT_NE(picture(), before);
  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::blue), folder).ok());
  ASSERT_TRUE(branding.revert(folder).ok());
  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::yellow), folder).ok());
  ASSERT_EQ(*branding.reset(folder), BrandingOutcome::Changed);
  EXPECT_EQ(picture(), before);
  EXPECT_EQ(test::readFile(tree / "._Neighbour"), (Bytes{'n', 'o', 't', ' ', 'o', 'u', 'r', 's'}));
  EXPECT_FALSE(fs::exists(tree / "._Invoices"));
  EXPECT_EQ(*branding.reset(folder), BrandingOutcome::NothingToRevert);
}

TEST_P(FolderBrandingTest, ResetGivesAFormerCustomIconAndAForeignBackupBack) {
  const auto former = *IconFamily::iconFamilyWithThumbnailsOfImage(test::plainImage(Qt::green));
  ASSERT_TRUE(former.setAsCustomIconForDirectory(folder, services, true).ok());
  ::chmod((folder / "Icon\r").c_str(), 0640);
  test::writeFile(folder / ".BackupIcon.icns", former.data());
  const std::string before = test::describeTree(tree.path());
  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::red), folder).ok());
  ASSERT_TRUE(branding.revert(folder).ok());
  ASSERT_TRUE(branding.reset(folder).ok());
  EXPECT_EQ(test::describeTree(tree.path()), before);
}

TEST_P(FolderBrandingTest, ResetKeepsADateThatSomebodyElseSet) {
  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::red), folder).ok());
  const timespec times[2] = {{.tv_sec = 7, .tv_nsec = 0}, {.tv_sec = 8, .tv_nsec = 9}};
  ::utimensat(AT_FDCWD, folder.c_str(), times, 0);
  ASSERT_TRUE(branding.reset(folder).ok());
  struct stat info {};
  ::stat(folder.c_str(), &info);
  EXPECT_EQ(info.st_mtim.tv_sec, 8);
}

TEST_P(FolderBrandingTest, FileManagersAreToldOnceMoreHalfASecondAfterAnApplyOnly) {
  std::vector<std::function<void()>> pending;
  const FolderBranding withLater(services, [&](std::chrono::milliseconds delay, std::function<void()> what) {
    EXPECT_EQ(delay.count(), 500);
    pending.push_back(std::move(what));
  });
  ASSERT_TRUE(withLater.writeIconWithImage(test::plainImage(Qt::red), folder).ok());
  ASSERT_EQ(pending.size(), 1U);
  const std::size_t before = notices.noted.size();
  pending.front()();
  EXPECT_EQ(notices.noted.size(), before + 1);
  ASSERT_TRUE(withLater.revert(folder).ok());
  EXPECT_EQ(pending.size(), 1U);
}

TEST_P(FolderBrandingTest, DryRunWritesNothing) {
  const std::string before = test::describeTree(tree.path(), true);
  EXPECT_EQ(*branding.writeIconWithImage(test::plainImage(Qt::red), folder, WriteMode::DryRun),
            BrandingOutcome::Changed);
  EXPECT_EQ(*branding.revert(folder, WriteMode::DryRun), BrandingOutcome::NothingToRevert);
  EXPECT_EQ(test::describeTree(tree.path(), true), before);
}

TEST_P(FolderBrandingTest, PlantedThingsAreRefusedAndTheOldIconStays) {
  const auto former = *IconFamily::iconFamilyWithThumbnailsOfImage(test::plainImage(Qt::green));
  test::writeFile(tree / "victim", std::string("precious"));
  for (const std::string name : {"Icon\r", "._Icon\r", ".BackupIcon.icns", ".quorvane", "Icon\xEF\x80\x8D"}) {
    for (const char kind : {'l', 'L', 'd', 'f', 't'}) {
      if (name == ".quorvane" && kind == 't') continue;
      SCOPED_TRACE(name + " as " + kind);
      fs::remove_all(folder);
      fs::create_directory(folder);
      ASSERT_TRUE(former.setAsCustomIconForDirectory(folder, services).ok());
      const bool isIcon = name == "Icon\r" || name == "._Icon\r";
      fs::remove(folder / name);
      const auto planted = folder / name;
      if (kind == 'l') fs::create_symlink(tree / "victim", planted);
      if (kind == 'L') fs::create_symlink(tree / "nowhere", planted);
      if (kind == 'd') fs::create_directories(planted / "inner");
      if (kind == 'f') {
        ASSERT_EQ(::mkfifo(planted.c_str(), 0600), 0);
      }
      if (kind == 't') {
        // Plain files with nonsense in them: only what is read as ours matters.
        if (name != "._Icon\r") continue;
        test::writeFile(planted, std::string("nonsense"));
      }
      const std::string before = test::describeTree(tree.path());
      const auto outcome = branding.writeIconWithImage(test::plainImage(Qt::red), folder);
      ASSERT_FALSE(outcome.ok());
      EXPECT_NE(outcome.error().message().find(tree.path().filename().string()), std::string::npos);
      EXPECT_EQ(test::describeTree(tree.path()), before);
      if (!isIcon) {
        EXPECT_EQ(shownIcon(), former.data());
      }
      EXPECT_TRUE(branding.status(folder).ok());
    }
  }
  EXPECT_EQ(test::readFile(tree / "victim"), (Bytes{'p', 'r', 'e', 'c', 'i', 'o', 'u', 's'}));
}

TEST_P(FolderBrandingTest, ADryRunRefusesWhatTheRealRunWouldRefuse) {
  // The folder is theirs; the one above, where the flags go without attributes, is not.
  ::chmod(tree.path().c_str(), 0755);
  ::chmod(folder.c_str(), 0777);
  const std::string before = test::describeTree(tree.path());
  test::asOrdinaryUser([&] {
    if (::access(tree.path().c_str(), W_OK) == 0) return;  // an ordinary user's own run
    const auto dry = branding.writeIconWithImage(test::plainImage(Qt::red), folder, WriteMode::DryRun);
    EXPECT_EQ(dry.ok(), GetParam() == Attributes::Use);
    const auto real = branding.writeIconWithImage(test::plainImage(Qt::red), folder);
    EXPECT_EQ(real.ok(), dry.ok());
  });
  if (GetParam() == Attributes::Ignore) {
    EXPECT_EQ(test::describeTree(tree.path()), before);
  }
}

TEST_P(FolderBrandingTest, WhatIsNoFolderOrNobodysToBrandIsRefused) {
  test::writeFile(tree / "file", std::string("x"));
  for (const fs::path& path :
       {tree / "file", tree / "missing", fs::path("/"), fs::path("/proc/self"), fs::path("/home")})
    EXPECT_FALSE(branding.writeIconWithImage(test::plainImage(Qt::red), path, WriteMode::DryRun).ok()) << path;
  EXPECT_FALSE(branding.writeIconWithImage(std::nullopt, folder).ok());
  EXPECT_TRUE(fs::is_empty(folder));
}

TEST_P(FolderBrandingTest, StatusNamesWhatIsThereAndWhatContradictsItself) {
  EXPECT_FALSE(branding.status(folder)->hasCustomIcon);
  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::red), folder).ok());
  const auto whole = *branding.status(folder);
  EXPECT_TRUE(whole.hasCustomIcon && whole.hasBackup && whole.hasRecord && !whole.isIncomplete());
  EXPECT_GT(whole.bytes, 1000U);
  fs::remove(folder / "._Icon\r");
  const auto half = *branding.status(folder);
  EXPECT_TRUE(half.isIncomplete());
  EXPECT_FALSE(half.hasCustomIcon);
  // Applying again mends it.
  ASSERT_EQ(*branding.writeIconWithImage(test::plainImage(Qt::red), folder), BrandingOutcome::Changed);
  EXPECT_FALSE(branding.status(folder)->isIncomplete());
  // What an apply leaves that was killed before the first icon was written.
  ASSERT_TRUE(branding.reset(folder).ok());
  test::writeFile(folder / "Icon\r", std::string());
  EXPECT_TRUE(branding.status(folder)->isIncomplete());
}

class FailingNotices final : public FileManagerNotices {
 public:
  Result<void> noteDirectoryModified(Folder& folder) override {
    return Error::system(EIO, "cannot set times").at(folder.path());
  }
};

TEST_P(FolderBrandingTest, WhatFailsHasChangedNothingAndWhatIsDoneIsNoFailure) {
  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::red), folder).ok());
  const Bytes red = shownIcon();
  FailingNotices failing;
  const IconServices hinderedServices{.forks = forks, .kinds = kinds, .notices = failing, .marks = marks.get()};
  const FolderBranding hindered{hinderedServices};
  // The record says when the folder was last changed, so that a reset knows whether its date is ours.
  const auto allButTheRecord = [&] {
    const Bytes record = test::readFile(folder / ".quorvane" / "record.json");
    test::writeFile(folder / ".quorvane" / "record.json", std::string());
    const std::string description = test::describeTree(folder);
    test::writeFile(folder / ".quorvane" / "record.json", record);
    return description;
  };
  const std::string before = allButTheRecord();
  EXPECT_FALSE(hindered.writeIconWithImage(test::plainImage(Qt::blue), folder).ok());
  EXPECT_EQ(shownIcon(), red);
  EXPECT_EQ(allButTheRecord(), before);
  EXPECT_TRUE(branding.status(folder)->isSound());
  EXPECT_EQ(*hindered.reset(folder), BrandingOutcome::Changed);
  EXPECT_TRUE(fs::is_empty(folder));

  // The record is of no use to a revert, which is done when it comes to it.
  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::red), folder).ok());
  test::writeFile(folder / ".quorvane" / "record.json", std::string("{"));
  EXPECT_EQ(*branding.revert(folder), BrandingOutcome::Changed);
}

TEST_P(FolderBrandingTest, AResetThatCannotBeFinishedIsNotBegun) {
  test::writeFile(folder / ".BackupIcon.icns",
                  IconFamily::iconFamilyWithThumbnailsOfImage(test::plainImage(Qt::green))->data());
  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::red), folder).ok());
  fs::remove(folder / ".quorvane" / "backup.icns");
  const std::string before = test::describeTree(tree.path());
  EXPECT_FALSE(branding.reset(folder).ok());
  EXPECT_EQ(test::describeTree(tree.path()), before);
}

TEST_P(FolderBrandingTest, ResetClearsAwayWhatAKilledWriterLeftInTheFolderAbove) {
  ASSERT_TRUE(branding.writeIconWithImage(test::plainImage(Qt::red), folder).ok());
  fs::remove(tree / "._Invoices");
  test::writeFile(tree / ".quorvane-abcd2345.tmp", std::string("half"));
  ASSERT_TRUE(branding.reset(folder).ok());
  EXPECT_FALSE(fs::exists(tree / ".quorvane-abcd2345.tmp"));
}

}  // namespace
}  // namespace quorvane
