// SPDX-License-Identifier: GPL-3.0-or-later
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <array>
#include <string_view>

#include "system/Surroundings.h"

namespace quorvane {

namespace {

/// A user's own group: his primary one, with no other members listed.
bool isOwnGroup(gid_t group, uid_t user) {
  // Groups that do not fit have many members.
  std::array<char, 16384> userText{}, groupText{};
  passwd account{}, *foundUser = nullptr;
  ::group members{}, *foundGroup = nullptr;
  if (::getpwuid_r(user, &account, userText.data(), userText.size(), &foundUser) != 0 || foundUser == nullptr ||
      account.pw_gid != group)
    return false;
  if (::getgrgid_r(group, &members, groupText.data(), groupText.size(), &foundGroup) != 0 || foundGroup == nullptr)
    return false;
  // Others can have it as their primary group without being listed; the shared ones of that kind ("users", "staff") do
  // not bear a user's name.
  if (std::string_view(members.gr_name) != account.pw_name) return false;
  for (char** member = members.gr_mem; *member != nullptr; ++member)
    if (std::string_view(*member) != account.pw_name) return false;
  return true;
}

}  // namespace

bool othersMayWrite(const std::filesystem::path& folder) {
  struct stat info {};
  if (::stat(folder.c_str(), &info) != 0 || !S_ISDIR(info.st_mode)) return false;
  if ((info.st_mode & S_ISVTX) != 0) return false;  // others can add things but not touch ours
  if ((info.st_mode & S_IWOTH) != 0) return true;
  if ((info.st_mode & S_IWGRP) == 0) return false;
  // With an access list these bits are its mask: somebody is named in it.
  if (::getxattr(folder.c_str(), "system.posix_acl_access", nullptr, 0) > 0) return true;
  return !isOwnGroup(info.st_gid, info.st_uid);
}

}  // namespace quorvane
