// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ChildProcess.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace quorvane::test {

namespace {

constexpr int cannotMount = 77;
constexpr unsigned nobody = 65534;

}  // namespace

pid_t startChild(const std::function<void()>& body) {
  std::fflush(nullptr);
  const pid_t child = ::fork();
  if (child != 0) return child;
  body();
  std::fflush(nullptr);
  ::_exit(::testing::Test::HasFailure() ? 1 : 0);
}

bool waitForChild(pid_t child) {
  int status = 0;
  return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void inChild(const std::function<void()>& body) {
  EXPECT_TRUE(waitForChild(startChild(body))) << "failed in the child process, see above";
}

void asOrdinaryUser(const std::function<void()>& body) {
  inChild([&] {
    if (::geteuid() == 0) {
      ASSERT_TRUE(::setgroups(0, nullptr) == 0 && ::setresgid(nobody, nobody, nobody) == 0 &&
                  ::setresuid(nobody, nobody, nobody) == 0);
    }
    body();
  });
}

bool withMounted(const std::string& type, const std::string& options, const std::string& place,
                 const std::function<void()>& body) {
  const pid_t child = startChild([&] {
    if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("none", place.c_str(), type.c_str(), 0, options.c_str()) != 0)
      ::_exit(cannotMount);
    body();
  });
  int status = 0;
  ::waitpid(child, &status, 0);
  if (WIFEXITED(status) && WEXITSTATUS(status) == cannotMount) return false;
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "failed in the child process, see above";
  return true;
}

std::string listing(const std::string& folder) {
  std::set<std::string> lines;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::string line = entry.path().filename().string();
    if (entry.is_directory()) {
      line += "/";
    } else if (entry.is_regular_file()) {
      std::ifstream file(entry.path(), std::ios::binary);
      line += "=";
      line.append(std::istreambuf_iterator<char>(file), {});
    }
    lines.insert(line);
  }
  std::string all;
  for (const auto& line : lines) all += line + "\n";
  return all;
}

}  // namespace quorvane::test
