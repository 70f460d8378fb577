// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/CustomIcon.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <utility>
#include <vector>

#include "foundation/FileManagerExtras.h"
#include "foundation/base/Limits.h"
#include "iconfamily/ElementStore.h"
#include "iconfamily/IconFile.h"

namespace quorvane {

namespace {

/// The compatibility resources, in the order in which they are added.
constexpr FourCharCode compatibilityTypes[] = {"icl8", "ICN#", "ics8", "ics#"};

/// Adds one element of the family as a resource of its own. False when the family does not hold it.
bool addResourceType(ResourceFork& fork, const IconFamily& family, FourCharCode type, std::int16_t resId) {
  auto data = getIconFamilyData(family.bytes(), type);
  if (!data || data->empty()) return false;
  fork.set({type, resId, 0, {}, *std::move(data)});
  return true;
}

void addIconResources(ResourceFork& fork, const IconFamily& family, bool withCompatibility) {
  fork.set({"icns", customIconResourceId, 0, {}, family.data()});
  if (!withCompatibility) return;
  for (const FourCharCode type : compatibilityTypes) (void)addResourceType(fork, family, type, customIconResourceId);
}

Result<void> checkFamily(const IconFamily& family) {
  TRY_VOID(family.check());
  if (family.bytes().size() > limits::writtenFamilyBytes)
    return Error::tooLarge("the icon is too large for a resource");
  return {};
}

std::optional<IconFamily> familyIn(const ResourceFork& fork) {
  const Resource* resource = fork.find("icns", customIconResourceId);
  if (resource == nullptr) return std::nullopt;
  return IconFamily::initWithData(resource->data);
}

/// Files of a folder that are about to be replaced, held under temporary names until it is known that all went well.
class HeldFiles {
 public:
  explicit HeldFiles(Folder& folder) : _folder(folder) {}

  Result<void> hold(const std::string& name) {
    const bool exists = TRY(_folder.statusOf(name)).has_value();
    // Noted first: a hold that fails half way may have left its temporary name, which then goes with the others.
    _files.push_back({name, exists ? Folder::temporaryName() : std::string()});
    return exists ? _folder.preserve(name, _folder, _files.back().temporary) : Result<void>();
  }

  /// Everything went well: what is held may go. A remainder is swept by the next writer.
  void release() {
    for (const Held& held : std::exchange(_files, {}))
      if (!held.temporary.empty()) (void)_folder.removeFile(held.temporary);
  }

  /// Puts back what stood there, as far as that can be done.
  ~HeldFiles() {
    for (const Held& held : _files)
      (void)(held.temporary.empty() ? _folder.removeFile(held.name)
                                    : _folder.rename(held.temporary, _folder, held.name));
  }
  HeldFiles(const HeldFiles&) = delete;
  HeldFiles& operator=(const HeldFiles&) = delete;

 private:
  struct Held {
    std::string name;
    std::string temporary;  ///< empty: nothing stood there
  };
  Folder& _folder;
  std::vector<Held> _files;
};

/// An empty icon file; the name under which it could be made. File systems of other makes take no carriage return in
/// names; a Mac writes the mapped spelling there.
Result<std::string> makeIconFile(Folder& folder) {
  const auto written = folder.writeFile(iconFileName, {});
  if (written.ok()) return std::string(iconFileName);
  const int code = written.error().systemCode();
  if (code != EINVAL && code != EILSEQ) return written.error();
  TRY_VOID(folder.writeFile(mappedIconFileName, {}));
  return std::string(mappedIconFileName);
}

struct Located {
  Folder folder;
  std::string name;
};

/// The folder that holds a file, and its name there. A relative path counts from the current folder.
Result<Located> locate(const std::filesystem::path& path, Folder::Access access) {
  const auto parent = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
  return Located{TRY(Folder::open(parent, access)), path.filename().string()};
}

}  // namespace

Result<std::optional<IconFamily>> readFolderIconResource(const Folder& folder, const ForkStore& forks) {
  const auto name = TRY(findIconFile(folder));
  if (!name) return std::optional<IconFamily>();
  return familyIn(TRY(forks.read(folder, *name)).fork);
}

Result<std::optional<IconFamily>> readOriginalIcon(const Folder& from, const ForkStore& forks) {
  return familyIn(TRY(forks.originalIconFork(from)));
}

Result<std::optional<IconFamily>> readCustomIcon(const std::filesystem::path& path, const ForkStore& forks) {
  if (isDirectory(path)) {
    const Folder folder = TRY(Folder::open(path, Folder::Access::Read));
    if ((TRY(forks.readFolderInfo(folder)).flags() & FinderInfo::hasCustomIcon) == 0)
      return std::optional<IconFamily>();
    return readFolderIconResource(folder, forks);
  }
  // A link has the icon of what it leads to; what is neither file nor folder can have no icon of its own.
  std::error_code error;
  const std::filesystem::path target = std::filesystem::canonical(path, error);
  if (error) return Error::system(error.value(), "cannot look at").at(path);
  if (!std::filesystem::is_regular_file(target, error)) return std::optional<IconFamily>();
  const Located file = TRY(locate(target, Folder::Access::Read));
  const ForkedFile content = TRY(forks.read(file.folder, file.name));
  if ((content.info.flags() & FinderInfo::hasCustomIcon) == 0) return std::optional<IconFamily>();
  return familyIn(content.fork);
}

Result<void> setFolderIcon(const IconFamily& family, Folder& folder, const IconServices& services,
                           bool withCompatibility, const std::function<Result<void>()>& andAlso) {
  TRY_VOID(checkFamily(family));
  HeldFiles former(folder);
  for (const std::string& spelling : iconFileNames) {
    TRY_VOID(former.hold(spelling));
    for (const std::string& beside : services.forks.filesBeside(spelling)) TRY_VOID(former.hold(beside));
  }

  // No resource of the old icon file is kept. Other spellings would be second icon files.
  const std::string name = TRY(makeIconFile(folder));
  for (const std::string& spelling : iconFileNames)
    if (spelling != name) TRY_VOID(services.forks.removeFile(folder, spelling));
  ForkedFile content;
  content.info.setTypeAndCreator("icon", "MACS");
  content.info.setFlags(FinderInfo::isInvisible);
  addIconResources(content.fork, family, withCompatibility);
  TRY_VOID(services.forks.write(folder, name, content));
  TRY(services.forks.changeFolderFlags(folder, FinderInfo::hasCustomIcon, FinderInfo::hasBeenInited));
  if (andAlso) TRY_VOID(andAlso());
  TRY_VOID(services.notices.noteDirectoryModified(folder));
  former.release();
  return {};
}

Result<void> IconFamily::setAsCustomIconForDirectory(const std::filesystem::path& path, const IconServices& services,
                                                     bool withCompatibility) const {
  Folder folder = TRY(Folder::open(path, Folder::Access::Write));
  return setFolderIcon(*this, folder, services, withCompatibility);
}

Result<void> IconFamily::setAsCustomIconForFile(const std::filesystem::path& path, const IconServices& services,
                                                bool withCompatibility) const {
  TRY_VOID(checkFamily(*this));
  Located file = TRY(locate(path, Folder::Access::Write));
  const auto before = TRY(file.folder.statusOf(file.name));
  if (!before) TRY_VOID(file.folder.writeFile(file.name, {}));
  ForkedFile content = TRY(services.forks.read(file.folder, file.name));
  addIconResources(content.fork, *this, withCompatibility);
  const unsigned flags = content.info.flags() & ~static_cast<unsigned>(FinderInfo::hasBeenInited);
  content.info.setFlags(static_cast<std::uint16_t>(flags | FinderInfo::hasCustomIcon));
  TRY_VOID(services.forks.write(file.folder, file.name, content));
  if (before) {
    // An icon is no change of the file. Whether its date can be put back is not looked at.
    const timespec asItIs{.tv_sec = 0, .tv_nsec = UTIME_OMIT};
    (void)file.folder.setTimesOf(file.name, asItIs, before->st_mtim);
  }
  return services.notices.noteDirectoryModified(file.folder);
}

Result<void> IconFamily::removeCustomIconFromFile(const std::filesystem::path& path, const IconServices& services) {
  Located file = TRY(locate(path, Folder::Access::Write));
  ForkedFile content = TRY(services.forks.read(file.folder, file.name));
  if (content.fork.isEmpty()) return Error(ErrorKind::NotFound, "has no resource fork").at(path);
  // Compatibility resources are left where they are.
  content.fork.remove("icns", customIconResourceId);
  constexpr unsigned cleared = FinderInfo::hasCustomIcon | FinderInfo::hasBeenInited;
  content.info.setFlags(static_cast<std::uint16_t>(content.info.flags() & ~cleared));
  TRY_VOID(services.forks.write(file.folder, file.name, content));
  return services.notices.noteDirectoryModified(file.folder);
}

Result<void> IconFamily::removeCustomIconFromDirectory(const std::filesystem::path& path,
                                                       const IconServices& services) {
  Folder folder = TRY(Folder::open(path, Folder::Access::Write));
  TRY(services.forks.changeFolderFlags(folder, 0, FinderInfo::hasCustomIcon | FinderInfo::hasBeenInited));
  TRY_VOID(services.notices.noteDirectoryModified(folder));
  const auto name = TRY(findIconFile(folder));
  if (!name) return Error(ErrorKind::NotFound, "there is no icon file to remove").at(folder.path());
  return services.forks.removeFile(folder, *name);
}

}  // namespace quorvane
