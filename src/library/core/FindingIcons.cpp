// SPDX-License-Identifier: GPL-3.0-or-later
// Icons by their names in words.
#include <algorithm>

#include "foundation/FolderNames.h"
#include "foundation/base/Text.h"
#include "library/core/IconLibrary.h"
#include "library/core/ListFile.h"

namespace quorvane {

using namespace library;

namespace fs = std::filesystem;

namespace {

/// The picture files of a set in order; nullopt when there is no such set.
std::optional<std::vector<std::string>> pictureNames(const fs::path& library, const std::string& set) {
  if (library.empty() || !names::check(set) || isOurOwn(set)) return std::nullopt;
  const auto folder = openSetFolder(library / set, Folder::Access::Read);
  const auto entries = folder ? folder->names() : Result<std::vector<std::string>>(folder.error());
  if (!entries) return std::nullopt;
  std::vector<std::string> names;
  if (const auto list = readList(*folder, iconListName)) names = list->names;
  addMissing(names, *entries);
  std::erase_if(names, [&](const std::string& name) {
    const std::string ending = fs::path(name).extension().string();
    const auto info = folder->statusOf(name);
    return (ending != ".icns" && ending != ".png") || isOurOwn(name) || !info || !*info || !S_ISREG((*info)->st_mode);
  });
  return names;
}

std::string listOf(const std::vector<std::string>& names) {
  std::string words;
  for (const std::string& name : names) words += (words.empty() ? "" : ", ") + printable(fs::path(name).stem());
  return words.empty() ? "none" : words;
}

}  // namespace

std::vector<std::string> IconLibrary::setNames(const fs::path& path) const {
  const auto folder = Folder::open(path, Folder::Access::Read);
  if (!folder) return {};
  const auto list = readList(*folder, setListName);
  std::vector<std::string> names = list ? list->names : std::vector<std::string>();
  if (path != baseIconsPath())
    if (const auto entries = folder->names()) addMissing(names, *entries);
  std::erase_if(names, [&](const std::string& name) {
    const auto info = folder->statusOf(name);
    return isOurOwn(name) || !info || !*info || !S_ISDIR((*info)->st_mode);
  });
  return names;
}

Result<std::optional<fs::path>> findLibraryIcon(const std::string& words, const LibraryPlaces& places) {
  const std::size_t slash = words.find('/');
  const std::string set = words.substr(0, slash);
  const std::string icon = slash == std::string::npos ? "" : words.substr(slash + 1);
  std::vector<std::string> all;
  bool isSet = false;
  for (const fs::path& library : {places.custom, places.builtin}) {
    const auto names = pictureNames(library, set);
    if (!names) continue;
    isSet = true;
    addMissing(all, *names);
    if (std::ranges::find(*names, icon) != names->end()) return std::optional(library / set / icon);
    std::vector<std::string> found;
    for (const std::string& name : *names)
      if (fs::path(name).stem() == icon) found.push_back(name);
    if (found.size() > 1)
      return Error::invalidInput("'" + printable(words) + "' may be " + printable(found[0]) + " or " +
                                 printable(found[1]));
    if (!found.empty()) return std::optional(library / set / found.front());
  }
  if (!isSet) return std::optional<fs::path>();
  const std::string why =
      icon.empty() ? "' is a set, name one of its icons as SET/ICON: " : "' names no icon of the set, which has: ";
  return Error(ErrorKind::NotFound, "'" + printable(words) + why + listOf(all));
}

}  // namespace quorvane
