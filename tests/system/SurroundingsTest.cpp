// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/Surroundings.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>

#include "support/TemporaryFolder.h"
#include "system/Mounts.h"
#include "system/SynchronisedTree.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;
using Kind = Surrounding::Kind;

TEST(SynchronisedTree, IsToldByTheMarkersOfKnownClientsOnly) {
  const struct {
    const char* marker;  // a folder when it ends with a slash
    const char* client;  // none: no marker
  } rows[] = {{".stfolder/", "Syncthing"},
              {".stfolder", "Syncthing"},
              {".dropbox.cache/", "Dropbox"},
              {".dropbox", "Dropbox"},
              {".dropbox/", nullptr},  // the client's settings in a home
              {".nextcloudsync.log", "Nextcloud"},
              {".owncloudsync.log", "ownCloud"},
              {".sync_0123456789ab.db", "Nextcloud or ownCloud"},
              {"._sync_0123456789ab.db", "Nextcloud or ownCloud"},
              {".sync/IgnoreList", "Resilio Sync"},
              {".sync/other", nullptr},
              {".synced.db", nullptr}};
  for (const auto& row : rows) {
    TemporaryFolder place;
    const fs::path marker = place / row.marker;
    fs::create_directories(marker.parent_path());
    if (!marker.filename().empty()) test::writeFile(marker, "");
    EXPECT_EQ(synchronisingClientAt(place.path()), row.client ? std::optional<std::string>(row.client) : std::nullopt)
        << row.marker;
  }
}

TEST(Mounts, AreReadFromTheKernelsTable) {
  const std::string table =
      "36 35 98:0 / / rw,noatime shared:1 master:2 - ext4 /dev/root rw\n"
      "37 36 0:45 / /mnt/two\\040words\\134 rw - fuse.sshfs host:/ rw\n"
      "38 36 0:46 / /mnt/x rw\n"
      "x9 36 0:46 / /mnt/x rw - nfs4 a b\n"
      "40 36 0:46 / /mnt/nfs rw - nfs4 server:/x rw";
  EXPECT_EQ(mountInTable(table, 36)->type, "ext4");
  EXPECT_EQ(mountInTable(table, 37)->point, "/mnt/two words\\");
  EXPECT_TRUE(isNetworkType(mountInTable(table, 37)->type));
  EXPECT_EQ(mountInTable(table, 40)->type, "nfs4");
  for (const std::uint64_t none : {38, 9, 39, 0}) EXPECT_FALSE(mountInTable(table, none)) << none;
  EXPECT_FALSE(isNetworkType("ext4"));

  const auto proc = mountOf("/proc/self");
  ASSERT_TRUE(proc);
  EXPECT_EQ(proc->point, "/proc");
  EXPECT_EQ(proc->type, "proc");
}

TEST(Surroundings, OthersMayWriteWhereMoreThanTheOwnersOwnGroupMay) {
  TemporaryFolder place;
  const auto may = [&](mode_t mode) {
    EXPECT_EQ(::chmod(place.path().c_str(), mode), 0);
    return othersMayWrite(place.path());
  };
  for (const mode_t mode : {0700, 0755, 01777, 03775}) EXPECT_FALSE(may(mode)) << std::oct << mode;
  EXPECT_TRUE(may(0777));
  EXPECT_TRUE(may(0702));
  if (::geteuid() != 0) return;
  EXPECT_FALSE(may(0775)) << "root's own group";
  ASSERT_EQ(::chown(place.path().c_str(), 0, 12345), 0);
  EXPECT_TRUE(may(0770));
}

TEST(Surroundings, AreToldWithTheWholeThatTheFolderIsPartOf) {
  TemporaryFolder place;
  const fs::path folder = place / "sync/shared/repository/sub";
  fs::create_directories(folder);
  Surroundings surroundings;
  EXPECT_TRUE(surroundings.of(folder).empty());

  fs::create_directory(place / "sync/.stfolder");
  fs::create_directories(place / "sync/shared/repository/.git/objects");
  fs::create_directories(place / "sync/shared/repository/.git/refs");
  test::writeFile(place / "sync/shared/repository/.git/HEAD", "");
  for (const char* each : {"sync/shared", "sync/shared/repository", "sync/shared/repository/sub"})
    ASSERT_EQ(::chmod((place / each).c_str(), 0777), 0);
  const std::vector<Surrounding> all{{Kind::GitTree, place / "sync/shared/repository", ""},
                                     {Kind::Synchronised, place / "sync", "Syncthing"},
                                     {Kind::OthersMayWrite, place / "sync/shared", ""}};
  EXPECT_EQ(Surroundings().of(folder), all);
  EXPECT_TRUE(surroundings.of(place / "missing").empty());
}

}  // namespace
}  // namespace quorvane
