// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/core/NewIcons.h"

#include <cerrno>

#include "foundation/BaseDirectories.h"
#include "foundation/Folder.h"
#include "foundation/FolderNames.h"
#include "foundation/base/Interruption.h"
#include "library/core/IconImages.h"
#include "library/core/IconSet.h"
#include "library/core/ListFile.h"

namespace quorvane::library {

namespace {

constexpr const char* iconEnding = ".icns";
constexpr const char* iconSeparator = "-";
constexpr const char* setSeparator = " ";

Result<void> fill(Folder& set, const std::vector<NewFile>& files, const LibraryProgress& progress) {
  std::vector<std::string> names;
  for (const NewFile& file : files) {
    if (isInterruptionRequested() || (progress && !progress(files.size(), files.size())))
      return Error::refused("interrupted");
    TRY_VOID(set.writeFile(file.name, file.bytes));
    names.push_back(file.name);
  }
  return writeList(set, iconListName, names);
}

}  // namespace

std::string baseNameOf(const std::filesystem::path& source) {
  std::error_code error;
  std::filesystem::path plain = source;
  // "." and ".." have another name, which the icon gets.
  if (plain.filename() == "." || plain.filename() == "..") plain = std::filesystem::canonical(source, error);
  plain = plain.has_filename() ? plain : plain.parent_path();
  const std::string base = plain.stem().string();
  return base.empty() || base == "/" ? "Icon" : base;
}

Result<IconFamily> showableFamilyOf(const std::filesystem::path& source, const LibraryServices& services) {
  auto family = IconSet::_iconFamilyForPath(source, services);
  if (!family) return std::move(family).error().at(source);
  if (auto good = checkShowable(*family); !good) return good.error().at(source);
  return family;
}

Result<IconRecord> addFamily(const std::filesystem::path& set, const std::string& base, const IconFamily& family,
                             const LibraryServices& services) {
  Folder folder = TRY(openSetFolder(set, Folder::Access::Write));
  for (int number = 0;; ++number) {
    const std::string name = newName(base, iconSeparator, number, iconEnding);
    if (TRY(folder.statusOf(name))) continue;
    const auto written = folder.writeFile(name, family.bytes(), std::nullopt);
    // Another program took the name in the last moment.
    if (!written && written.error().kind() == ErrorKind::Refused && TRY(folder.statusOf(name))) continue;
    if (!written) return written.error();
    auto image = TRY(imageOf(folder, name, services));
    if (!image) return Error::broken("cannot be read back").at(folder.pathOf(name));
    return IconRecord{.path = set / name, .name = name, .image = *std::move(image)};
  }
}

Result<std::filesystem::path> makeSet(const std::filesystem::path& library, const std::string& name,
                                      const std::vector<NewFile>& files, const LibraryProgress& progress) {
  TRY_VOID(makePrivateDirectories(library));
  const std::string temporary = Folder::temporaryName();
  // Nobody sweeps it while it is held. The library is free meanwhile: many files take their time.
  Folder set = TRY(TRY(Folder::open(library, Folder::Access::Write)).makeChild(temporary));
  const auto filled = fill(set, files, progress);
  Folder folder = TRY(Folder::open(library, Folder::Access::Write));
  const auto take = [&]() -> Result<std::filesystem::path> {
    if (!filled) return filled.error();
    const std::string base = names::check(name) ? name : "New Set";
    for (int number = 0;; ++number) {
      const std::string candidate = newName(base, setSeparator, number, "");
      if (isOurOwn(candidate)) continue;
      const auto renamed = folder.renameNew(temporary, folder, candidate);
      if (renamed) return library / candidate;
      if (renamed.error().systemCode() != EEXIST) return renamed.error();
    }
  };
  auto path = take();
  // Cut short, it would pass for the whole.
  if (!path) (void)folder.removeChild(temporary);  // else the next opening for writing sweeps it
  return path;
}

}  // namespace quorvane::library
