// SPDX-License-Identifier: GPL-3.0-or-later
// Reading a set's folder: what the list says first, then what else is there.
#include <map>
#include <set>

#include "foundation/base/Log.h"
#include "library/core/IconImages.h"
#include "library/core/IconSet.h"
#include "library/core/ListFile.h"

namespace quorvane {

using namespace library;

namespace {

void note(const Error& error) {
  logMessage("library", error.message());
}

struct Scan {
  IconSet::Icons icons;
  std::vector<std::string> names;  ///< what the list is to say
  bool isWhole = true;             ///< all could be read; else the list stays as it is
};

class Scanner {
 public:
  Scanner(const Folder& folder, const std::filesystem::path& path, const LibraryServices& services)
      : _folder(folder), _path(path), _services(services) {}

  Scan scan(const std::vector<std::string>& listed) {
    for (const std::string& name : listed) add(name, true);
    const std::set<std::string> seen(listed.begin(), listed.end());
    const auto entries = _folder.names();
    if (!entries) {
      note(entries.error());
      _scan.isWhole = false;
      return std::move(_scan);
    }
    for (const std::string& name : *entries)
      if (!seen.contains(name) && !isOurOwn(name) && !isOtherSpelling(name, listed)) add(name, false);
    return std::move(_scan);
  }

 private:
  void add(const std::string& name, bool isListed) {
    auto image = imageOf(_folder, name, _services);
    if (!image) {
      note(image.error());
      // What the disk does not give out today may be there tomorrow, in its place.
      if (isListed && image.error().kind() == ErrorKind::System) _scan.names.push_back(name);
      return;
    }
    if (!*image) return;
    _scan.names.push_back(name);
    _scan.icons.push_back({.path = _path / name, .name = name, .image = **std::move(image)});
  }

  /// Whether an entry is a listed one in other letters, where the file system tells none apart.
  [[nodiscard]] bool isOtherSpelling(const std::string& name, const std::vector<std::string>& listed) const {
    for (const std::string& other : listed) {
      if (other.size() != name.size() || !isSameInAnyCase(other, name)) continue;
      const auto a = _folder.statusOf(name);
      const auto b = _folder.statusOf(other);
      if (a && b && *a && *b && (*a)->st_ino == (*b)->st_ino && (*a)->st_dev == (*b)->st_dev && (*a)->st_nlink == 1)
        return true;
    }
    return false;
  }

  const Folder& _folder;
  const std::filesystem::path& _path;
  const LibraryServices& _services;
  Scan _scan;
};

}  // namespace

Result<IconSet::Icons> IconSet::iconsAt(const std::filesystem::path& path, const LibraryServices& services) {
  const Folder folder = TRY(openSetFolder(path, Folder::Access::Read));
  const ListFile list = TRY(readList(folder, iconListName));
  return Scanner(folder, path, services).scan(list.names).icons;
}

std::optional<IconSet::Icons> IconSet::_iconsInDirectory(const std::filesystem::path& path,
                                                         const LibraryServices& services) {
  auto icons = _load(path, services);
  if (icons) return std::move(icons).toOptional();
  if (icons.error().kind() != ErrorKind::NotFound) return note(icons.error()), std::nullopt;
  if (const auto made = makeSetFolder(path); !made) return note(made.error()), std::nullopt;
  return Icons();
}

Result<IconSet::Icons> IconSet::_load(const std::filesystem::path& path, const LibraryServices& services) {
  const Folder folder = TRY(openSetFolder(path, Folder::Access::Read));
  auto list = readList(folder, iconListName);
  const bool isListReadable = list.ok();
  if (!list) note(list.error());
  Scan scan = Scanner(folder, path, services).scan(list ? list->names : std::vector<std::string>());
  if (!isListReadable || !scan.isWhole || says(*list, scan.names)) return std::move(scan.icons);

  const auto rewrite = [&]() -> Result<void> {
    TRY_VOID(folder.checkWritable());
    Folder writable = TRY(openSetFolder(path, Folder::Access::Write));
    const ListFile now = TRY(readList(writable, iconListName));
    // Another program was faster: what it says now counts.
    if (now.bytes != list->bytes) scan = Scanner(writable, path, services).scan(now.names);
    return scan.isWhole ? writeList(writable, iconListName, scan.names) : Result<void>();
  };
  if (const auto rewritten = rewrite(); !rewritten) note(rewritten.error());
  return std::move(scan.icons);
}

}  // namespace quorvane
