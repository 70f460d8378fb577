// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/GitTree.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/TemporaryFolder.h"
#include "system/GitFiles.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;
using Patterns = std::vector<std::string>;

/// What git takes for a repository's own folder.
void makeRepository(const fs::path& path) {
  fs::create_directories(path / "objects");
  fs::create_directories(path / "refs");
  test::writeFile(path / "HEAD", "ref: refs/heads/main\n");
}

TEST(GitFiles, PathsAreReadAsGitReadsThem) {
  EXPECT_EQ(gitfiles::repositoryPath("gitdir: ../a b\r\n").value(), "../a b");
  EXPECT_EQ(gitfiles::repositoryPath("gitdir: \xFF\n\n").value(), "\xFF");
  EXPECT_EQ(gitfiles::commonPath("../..\n").value(), "../..");
  for (const std::string& text : Patterns{"", "gitdir:", "gitdir: \n", "../a", std::string("gitdir: a\0b", 11)})
    EXPECT_FALSE(gitfiles::repositoryPath(text).ok()) << text;
  EXPECT_FALSE(gitfiles::commonPath("\n").ok());
}

TEST(GitFiles, PatternsMatchOneNameOrPathOnly) {
  EXPECT_EQ(gitfiles::patternForName("Icon\r"), "Icon[\r]");
  EXPECT_EQ(gitfiles::patternForName("!a*"), "\\!a\\*");
  EXPECT_EQ(gitfiles::patternForName("#?[\\"), "\\#\\?\\[\\\\");
  EXPECT_EQ(gitfiles::patternForPath("a[1]/two words "), "/a\\[1]/two words\\ ");
  EXPECT_EQ(gitfiles::patternForPath("#a\rb"), "/#a\rb");
  for (const std::string& path : Patterns{"", "a\nb", std::string("a\0b", 3)})
    EXPECT_FALSE(gitfiles::patternForPath(path)) << path;
}

TEST(GitFiles, OnlyMissingPatternsAreAdded) {
  const Patterns patterns{"a", "Icon[\r]", "a"};
  EXPECT_EQ(gitfiles::withPatterns("", patterns), "a\nIcon[\r]\n");
  EXPECT_EQ(gitfiles::withPatterns("# mine\r\nb", patterns), "# mine\r\nb\na\nIcon[\r]\n");
  EXPECT_EQ(gitfiles::withPatterns("Icon[\r]\na", patterns), "Icon[\r]\na");
  EXPECT_EQ(gitfiles::missingPatterns("a \nIcon[\r]x\n", patterns), (Patterns{"a", "Icon[\r]"}));
}

TEST(GitTree, IsFoundWhereGitFindsIt) {
  TemporaryFolder place;
  for (const char* each : {"plain/sub/deep", "linked/sub", "module/sub", "broken/sub", "nowhere/sub", "none/.git/sub"})
    fs::create_directories(place / each);
  makeRepository(place / "plain/.git");
  makeRepository(place / "plain/.git/modules/m");
  fs::create_directories(place / "plain/.git/worktrees/w");
  test::writeFile(place / "plain/.git/worktrees/w/HEAD", "ref: refs/heads/w\n");
  test::writeFile(place / "plain/.git/worktrees/w/commondir", "../..\n");
  test::writeFile(place / "linked/.git", "gitdir: " + (place / "plain/.git/worktrees/w").string() + "\n");
  test::writeFile(place / "module/.git", "gitdir: ../plain/.git/modules/m\n");
  test::writeFile(place / "broken/.git", "nothing\n");
  test::writeFile(place / "nowhere/.git", "gitdir: ../missing\n");
  fs::create_directory_symlink("plain/sub", place / "link");

  const struct {
    const char* folder;
    const char* root;
    const char* repository;
    const char* inside;
  } trees[] = {{"plain", "plain", "plain/.git", "."},
               {"plain/sub/deep", "plain", "plain/.git", "sub/deep"},
               {"link", "plain", "plain/.git", "sub"},
               {"linked/sub", "linked", "plain/.git", "sub"},
               {"module/sub", "module", "plain/.git/modules/m", "sub"}};
  for (const auto& each : trees) {
    const auto tree = gitTreeOf(place / each.folder);
    ASSERT_TRUE(tree.ok() && *tree) << each.folder;
    EXPECT_EQ((*tree)->root, place / each.root);
    EXPECT_EQ((*tree)->repository, place / each.repository);
    EXPECT_EQ((*tree)->inside, each.inside);
    EXPECT_TRUE((*tree)->isOurs);
  }
  for (const char* outside : {"", "none", "none/.git/sub", "plain/.git/refs"}) {
    const auto tree = gitTreeOf(place / outside);
    EXPECT_TRUE(tree.ok() && !*tree) << outside;
  }
  for (const char* bad : {"broken", "nowhere"}) {
    const auto tree = gitTreeOf(place / bad / "sub");
    ASSERT_FALSE(tree.ok()) << bad;
    EXPECT_EQ(tree.error().where(), place / bad / ".git");
  }
}

TEST(GitTree, OnlyOurOwnPrivateListIsWritten) {
  TemporaryFolder place;
  makeRepository(place / "tree/.git");
  const auto tree = gitTreeOf(place / "tree").value().value();
  const Patterns patterns{"a", "b"};
  ASSERT_TRUE(addExcludes(tree, patterns).ok());  // there was not even a folder "info"
  EXPECT_EQ(test::readFile(tree.excludeFile()), test::bytesOf("a\nb\n"));
  EXPECT_EQ(addExcludes(tree, patterns).value(), WriteOutcome::Unchanged);
  EXPECT_TRUE(missingExcludes(tree, patterns).value().empty());

  test::writeFile(place / "victim", "mine");
  fs::remove(tree.excludeFile());
  fs::create_symlink(place / "victim", tree.excludeFile());
  EXPECT_EQ(addExcludes(tree, patterns).error().kind(), ErrorKind::Refused);
  fs::remove_all(place / "tree/.git/info");
  fs::create_directory(place / "elsewhere");
  fs::create_directory_symlink(place / "elsewhere", place / "tree/.git/info");
  EXPECT_EQ(addExcludes(tree, patterns).error().kind(), ErrorKind::Refused);
  EXPECT_EQ(test::readFile(place / "victim"), test::bytesOf("mine"));
  EXPECT_TRUE(fs::is_empty(place / "elsewhere"));

  // A tree of one user that leads into the repository of another.
  if (::geteuid() != 0) return;
  ASSERT_EQ(::lchown((place / "tree/.git").c_str(), 12345, 12345), 0);
  const auto foreign = gitTreeOf(place / "tree").value().value();
  EXPECT_FALSE(foreign.isOurs);
  EXPECT_EQ(addExcludes(foreign, patterns).error().kind(), ErrorKind::Refused);
}

}  // namespace
}  // namespace quorvane
