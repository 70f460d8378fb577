// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/Mounts.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

#include "foundation/FileReading.h"
#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

std::vector<std::string_view> fieldsOf(std::string_view line) {
  std::vector<std::string_view> fields;
  while (!line.empty()) {
    const std::size_t space = std::min(line.find(' '), line.size());
    fields.push_back(line.substr(0, space));
    line.remove_prefix(std::min(space + 1, line.size()));
  }
  return fields;
}

/// Spaces, line ends and backslashes stand in the table as three octal digits behind a backslash.
std::string unescaped(std::string_view field) {
  const auto isOctal = [](char digit) { return digit >= '0' && digit <= '7'; };
  std::string text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    const std::string_view digits = field[i] == '\\' ? field.substr(i + 1, 3) : std::string_view();
    if (digits.size() == 3 && std::ranges::all_of(digits, isOctal)) {
      text += static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 + (digits[2] - '0'));
      i += 3;
    } else {
      text += field[i];
    }
  }
  return text;
}

}  // namespace

std::optional<Mount> mountInTable(std::string_view table, std::uint64_t number) {
  // proc_pid_mountinfo(5): number, parent, device, root, mount point, options, any number of tags, "-", type, ...
  constexpr std::size_t pointField = 4, firstTag = 6;
  while (!table.empty()) {
    const std::size_t length = std::min(table.find('\n'), table.size());
    const auto fields = fieldsOf(table.substr(0, length));
    table.remove_prefix(std::min(length + 1, table.size()));
    if (fields.size() <= firstTag) continue;
    std::uint64_t found = 0;
    const auto& first = fields.front();
    const auto [end, code] = std::from_chars(first.data(), first.data() + first.size(), found);
    if (code != std::errc() || end != first.data() + first.size() || found != number) continue;
    const auto dash = std::find(fields.begin() + firstTag, fields.end(), "-");
    if (dash == fields.end() || dash + 1 == fields.end()) return std::nullopt;
    return Mount{.point = unescaped(fields[pointField]), .type = unescaped(*(dash + 1))};
  }
  return std::nullopt;
}

std::optional<Mount> mountOf(const std::filesystem::path& folder) {
  struct statx info {};
  if (::statx(AT_FDCWD, folder.c_str(), AT_STATX_DONT_SYNC, STATX_MNT_ID, &info) != 0) return std::nullopt;
  if ((info.stx_mask & STATX_MNT_ID) == 0) return std::nullopt;  // before Linux 5.8
  const auto table = readPlainFile("/proc/self/mountinfo", limits::mountTableBytes);
  if (!table) return std::nullopt;
  return mountInTable({reinterpret_cast<const char*>(table->data()), table->size()}, info.stx_mnt_id);
}

bool isNetworkType(std::string_view type) {
  constexpr std::array<std::string_view, 18> types{
      "nfs",         "nfs4",        "cifs",           "smb3",           "smbfs",           "afs",
      "ceph",        "coda",        "ncpfs",          "davfs",          "fuse.sshfs",      "fuse.davfs",
      "fuse.davfs2", "fuse.rclone", "fuse.curlftpfs", "fuse.glusterfs", "fuse.gvfsd-fuse", "fuse.s3fs"};
  return std::ranges::find(types, type) != types.end();
}

}  // namespace quorvane
