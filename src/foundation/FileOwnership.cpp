// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/FileOwnership.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <vector>

#include "foundation/FileCalls.h"

namespace quorvane::ownership {

namespace {

constexpr const char* accessList = "system.posix_acl_access";
constexpr const char* what = "cannot keep the file's properties";

bool isRoot() {
  return ::geteuid() == 0;
}

// What the group has, cut down to what everybody has.
mode_t withoutGroup(mode_t mode) {
  const mode_t everybody = mode & S_IRWXO;
  return (mode & ~static_cast<mode_t>(S_IRWXG | S_ISGID)) | (mode & S_IRWXG & (everybody << 3));
}

Result<void> setMode(int handle, mode_t mode) {
  if (::fchmod(handle, mode & 07777) != 0) return Error::system(errno, what);
  return {};
}

Result<std::vector<std::string>> attributeNames(int handle) {
  for (;;) {
    const ssize_t size = ::flistxattr(handle, nullptr, 0);
    if (size < 0) {
      if (errno == ENOTSUP) return std::vector<std::string>();
      return Error::system(errno, what);
    }
    std::vector<char> list(static_cast<std::size_t>(size) + 1);
    const ssize_t got = ::flistxattr(handle, list.data(), list.size());
    if (got < 0) {
      if (errno == ERANGE) continue;  // grew in between
      return Error::system(errno, what);
    }
    std::vector<std::string> names;
    for (std::size_t at = 0; at < static_cast<std::size_t>(got); at += names.back().size() + 1)
      names.emplace_back(list.data() + at);
    return names;
  }
}

// Attributes that users attached must go over. The system's own ones are copied where that is allowed; those that vouch
// for the content must not outlive it.
Result<void> copyAttributes(int from, int to) {
  for (const std::string& name : TRY(attributeNames(from))) {
    if (name == accessList || name == "security.capability" || name == "security.ima" || name == "security.evm")
      continue;
    const bool fromUser = name.starts_with("user.");
    const auto value = calls::attribute(from, name);
    if (!value.ok()) {
      if (fromUser) return value.error();
      continue;
    }
    if (!*value) continue;
    if (::fsetxattr(to, name.c_str(), (*value)->data(), (*value)->size(), 0) != 0 && fromUser)
      return Error::system(errno, std::string(what) + ", attribute " + name);
  }
  return {};
}

Result<void> copyAccessList(int from, int to) {
  const std::string words = std::string(what) + ", access list";
  const auto list = TRY(calls::attribute(from, accessList));
  if (list) {
    if (::fsetxattr(to, accessList, list->data(), list->size(), 0) != 0) return Error::system(errno, words);
  } else if (::fremovexattr(to, accessList) != 0 && errno != ENODATA && errno != ENOTSUP) {
    return Error::system(errno, words);  // one that the folder's default list gave the new file
  }
  return {};
}

// Whether the group could be given.
Result<bool> changeOwner(int handle, const struct stat& now, uid_t owner, gid_t group) {
  if (now.st_uid == owner && now.st_gid == group) return true;
  if (::fchown(handle, owner, group) == 0) return true;
  if (isRoot()) return Error::system(errno, "cannot give the file to its owner");
  return now.st_gid == group || ::fchown(handle, static_cast<uid_t>(-1), group) == 0;
}

}  // namespace

mode_t newFileMode(const struct stat& folder) {
  return (0666 & folder.st_mode) | S_IRUSR | S_IWUSR;
}

mode_t newFolderMode(const struct stat& folder) {
  return (0777 & folder.st_mode) | S_IRWXU;
}

Result<void> giveToFolder(int handle, const struct stat& folder) {
  const struct stat now = TRY(calls::status(handle, what));
  const bool groupGiven = TRY(changeOwner(handle, now, isRoot() ? folder.st_uid : now.st_uid, folder.st_gid));
  return groupGiven ? Result<void>() : setMode(handle, withoutGroup(now.st_mode));
}

Result<void> copyProperties(int from, int to) {
  const struct stat wanted = TRY(calls::status(from, what));
  const struct stat now = TRY(calls::status(to, what));
  // Before the mode, which may forbid writing, and before the file is somebody else's.
  TRY_VOID(copyAttributes(from, to));
  const bool groupGiven = TRY(changeOwner(to, now, wanted.st_uid, wanted.st_gid));
  // The access list brings the mode's group bits with it, so the mode comes last.
  TRY_VOID(copyAccessList(from, to));
  mode_t mode = groupGiven ? wanted.st_mode : withoutGroup(wanted.st_mode);
  if (!isRoot() && wanted.st_uid != now.st_uid) mode &= ~static_cast<mode_t>(S_ISUID);
  return setMode(to, mode);
}

}  // namespace quorvane::ownership
