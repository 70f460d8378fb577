// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/core/ListFile.h"

#include <algorithm>
#include <set>

#include "foundation/BaseDirectories.h"
#include "foundation/FolderNames.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Text.h"
#include "foundation/plist/PropertyList.h"
#include "library/core/IconSet.h"
#include "system/FolderMarks.h"

namespace quorvane::library {

namespace {

// FolderBranding's, which this layer does not know.
constexpr std::string_view backupIconName = ".BackupIcon.icns";

char lower(char each) {
  return each >= 'A' && each <= 'Z' ? static_cast<char>(each - 'A' + 'a') : each;
}

std::filesystem::path withoutSlash(const std::filesystem::path& path) {
  return path.has_filename() ? path : path.parent_path();
}

bool continuesCharacter(char each) {
  return (static_cast<unsigned char>(each) & 0xC0) == 0x80;
}

std::string holdable(const std::string& text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    std::size_t length = 1;
    while (length <= 4 && !isUtf8(std::string_view(text).substr(at, length))) ++length;
    const std::string each = text.substr(at, length > 4 ? 1 : length);
    result += plist::isWritable(each) && each != "\n" && each != "\t" && each != "/" ? each : "_";
    at += each.size();
  }
  return result;
}

}  // namespace

Result<ListFile> readList(const Folder& folder, const char* file) {
  auto bytes = folder.readFile(file, limits::propertyListBytes);
  if (!bytes && bytes.error().kind() == ErrorKind::System) return std::move(bytes).error();
  ListFile list;
  if (!bytes || !*bytes) return list;
  list.bytes = *std::move(bytes);
  const auto names = plist::readStringArray(*list.bytes);
  if (!names) return list;
  std::set<std::string> seen;
  for (const std::string& name : *names)
    if (names::check(name) && !isOurOwn(name) && seen.insert(name).second) list.names.push_back(name);
  return list;
}

Result<void> writeList(Folder& folder, const char* file, const std::vector<std::string>& names) {
  TRY_VOID(folder.writeFile(file, plist::writeStringArray(names)));
  return {};
}

bool says(const ListFile& list, const std::vector<std::string>& names) {
  return list.bytes == plist::writeStringArray(names);
}

Result<Folder> openSetFolder(const std::filesystem::path& path, Folder::Access access) {
  const std::filesystem::path set = withoutSlash(path);
  const Folder above = TRY(Folder::open(set.has_parent_path() ? set.parent_path() : ".", Folder::Access::Read));
  return above.openChild(set.filename().string(), access);
}

Result<Folder> makeSetFolder(const std::filesystem::path& path) {
  const std::filesystem::path set = withoutSlash(path);
  const std::filesystem::path above = set.has_parent_path() ? set.parent_path() : ".";
  TRY_VOID(makePrivateDirectories(above));
  return TRY(Folder::open(above, Folder::Access::Write)).makeChild(set.filename().string());
}

bool isOurOwn(const std::string& name) {
  return names::isTemporary(name) || name == markPictureFolder || name == backupIconName || name == iconListName ||
         name == setListName;
}

Result<void> checkSetName(const std::string& name) {
  const auto good = names::check(name);
  if (good && !isOurOwn(name)) return {};
  return Error::invalidInput("no name of a set: " + (good ? "it is one of our own" : good.error().why()));
}

bool isSameInAnyCase(const std::string& a, const std::string& b) {
  return std::ranges::equal(a, b, {}, lower, lower);
}

void addMissing(std::vector<std::string>& names, const std::vector<std::string>& more) {
  std::set<std::string> seen(names.begin(), names.end());
  for (const std::string& name : more)
    if (seen.insert(name).second) names.push_back(name);
}

std::string newName(const std::string& base, const std::string& separator, int number, const std::string& ending) {
  std::string begin = holdable(base);
  const std::string end = (number > 0 ? separator + std::to_string(number) : "") + ending;
  if (begin.size() + end.size() > names::maximumBytes) {
    std::size_t length = names::maximumBytes - end.size();
    while (length > 0 && continuesCharacter(begin[length])) --length;
    begin.resize(length);
  }
  return begin + end;
}

}  // namespace quorvane::library
