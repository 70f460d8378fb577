// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/CarbonFSRefCreation.h"

#include <gtest/gtest.h>

#include "foundation/FileManagerExtras.h"
#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

TEST(CarbonFSRefCreation, MakesAnEmptyFileOnlyWhenAskedAndNeverThroughALink) {
  test::TemporaryFolder root;
  const fs::path missing = root / "Icon\r";
  EXPECT_FALSE(getFSRef(missing, false));
  EXPECT_FALSE(fs::exists(missing));
  EXPECT_TRUE(getFSRef(missing, true));
  EXPECT_EQ(fs::file_size(missing), 0U);

  test::writeFile(root / "full", "x");
  EXPECT_TRUE(getFSRef(root / "full", true));
  EXPECT_TRUE(getFSRef(root.path(), true));
  fs::create_symlink("full", root / "link");
  EXPECT_TRUE(getFSRef(root / "link", false));
  EXPECT_EQ(fs::file_size(root / "full"), 1U);

  fs::create_symlink("created", root / "dangling");
  EXPECT_FALSE(getFSRef(root / "dangling", true));
  EXPECT_FALSE(fs::exists(root / "created"));
  for (const fs::path& path :
       {root / "no/such/folder", root / "new/", root / "full/x", fs::path(), root / std::string(256, 'n')})
    EXPECT_FALSE(getFSRef(path, true)) << path;
  test::inChild([&] {
    fs::current_path(root.path());
    EXPECT_TRUE(getFSRef("relative", true));
  });
  EXPECT_TRUE(fs::exists(root / "relative"));

  fs::create_directory_symlink(root.path(), root / "folder");
  EXPECT_TRUE(isDirectory(root / "folder"));
  for (const char* name : {"missing", "full", "dangling", "full/x"}) EXPECT_FALSE(isDirectory(root / name)) << name;
}

}  // namespace
}  // namespace quorvane
