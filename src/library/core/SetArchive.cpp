// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/core/SetArchive.h"

#include <algorithm>
#include <map>
#include <mutex>

#include "foundation/FileReading.h"
#include "foundation/FileWriting.h"
#include "foundation/Folder.h"
#include "foundation/base/Limits.h"
#include "foundation/base/Log.h"
#include "foundation/base/Text.h"
#include "foundation/plist/PropertyList.h"
#include "library/core/IconImages.h"
#include "library/core/IconSet.h"
#include "library/core/ListFile.h"
#include "library/core/PictureNames.h"
#include "library/core/ZipFile.h"

namespace quorvane {

using namespace library;

namespace {

// What archivers on other systems put in beside the files.
constexpr std::string_view foreignFolder = "__MACOSX";

/// A name as it comes in again: not hidden, and without what other systems take for a step.
std::string handedOn(std::string name) {
  std::ranges::replace(name, '\\', '_');
  if (name.starts_with('.')) name.front() = '_';
  return name;
}

/// The file that stands for an icon in a zip file.
Result<NewFile> fileOf(const Folder& set, const std::string& name, const LibraryServices& services) {
  const std::filesystem::path plain = name;
  if (auto bytes = set.readFile(name, limits::pictureFileBytes); bytes && *bytes)
    return NewFile{.name = handedOn(newName(plain.stem().string(), "", 0, plain.extension().string())),
                   .bytes = **std::move(bytes)};
  IconFamily family = TRY(IconSet::_iconFamilyForPath(set.pathOf(name), services));
  return NewFile{.name = handedOn(newName(name, "", 0, ".icns")), .bytes = family.data()};
}

/// What of a zip file becomes a set: entries of one level, and its name.
struct Chosen {
  std::string name;
  std::vector<ZipEntry> pictures;
  std::optional<ZipEntry> list;
};

Result<Chosen> choose(const std::vector<ZipEntry>& entries, const std::string& fileName) {
  std::map<std::string, Chosen> levels;  // those directly inside under no name
  for (const ZipEntry& entry : entries) {
    const std::string& name = entry.steps.back();
    if (entry.steps.size() > 2 || name.starts_with('.') || entry.steps.front() == foreignFolder) continue;
    const std::string folder = entry.steps.size() == 2 ? entry.steps.front() : "";
    Chosen& level = levels[folder];
    level.name = folder.empty() ? fileName : folder;
    if (name == iconListName) {
      level.list = entry;
    } else if (isPictureName(name)) {
      level.pictures.push_back(entry);
    }
  }
  std::erase_if(levels, [](const auto& level) { return level.second.pictures.empty() && !level.second.list; });
  if (levels.empty()) return Error::invalidInput("the zip file holds no icons");
  if (levels.size() > 1) return Error::invalidInput("the zip file holds icons in several folders");
  return levels.begin()->second;
}

Result<NewFile> unpacked(const ZipEntry& entry, Bytes bytes) {
  const std::filesystem::path name = entry.steps.back();
  const std::string ending = name.extension().string();
  const auto make = [&]() -> Result<NewFile> {
    if (ending == ".png") {
      TRY_VOID(Image::imageWithData(bytes));
      return NewFile{.name = ending, .bytes = std::move(bytes)};
    }
    return NewFile{.name = ".icns", .bytes = TRY(familyOfBytes(bytes, lowered(ending) == ".icns")).data()};
  };
  auto made = make();
  if (!made) return Error(made.error().kind(), "'" + excerpt(name.string()) + "': " + made.error().why());
  return made;
}

Result<std::filesystem::path> import(ByteView bytes, const std::string& fileName, const std::filesystem::path& library,
                                     const LibraryProgress& progress) {
  const ZipReader zip = TRY(ZipReader::open(bytes));
  Chosen chosen = TRY(choose(TRY(zip.entries()), fileName));
  if (chosen.pictures.size() > limits::librarySetIcons) return Error::tooLarge("too many pictures for one set");
  std::vector<std::string> order;
  if (chosen.list && chosen.list->bytes <= limits::propertyListBytes)
    if (auto names = plist::readStringArray(TRY(zip.read(*chosen.list)))) order = *std::move(names);
  std::map<std::string, std::size_t> places;
  for (std::size_t i = 0; i < order.size(); ++i) places.emplace(order[i], i);
  const auto place = [&](const ZipEntry& entry) {
    const auto found = places.find(entry.steps.back());
    return found == places.end() ? order.size() : found->second;
  };
  std::ranges::stable_sort(chosen.pictures, {}, place);

  std::mutex reading;
  NewSetFiles files;
  std::optional<Error> failure;
  // As with a folder, one picture that cannot be read does not keep the others out; what is damaged on its way does.
  const auto make = [&](std::size_t at) -> Result<std::optional<NewFile>> {
    const ZipEntry& entry = chosen.pictures[at];
    std::unique_lock lock(reading);
    Bytes content = TRY(zip.read(entry));
    lock.unlock();
    auto file = unpacked(entry, std::move(content));
    if (file || chosen.pictures.size() == 1) return std::optional(TRY(std::move(file)));
    logMessage("library", file.error().message());
    return std::optional<NewFile>();
  };
  const auto take = [&](std::size_t at, Result<std::optional<NewFile>> file) {
    const std::string base = std::filesystem::path(chosen.pictures[at].steps.back()).stem().string();
    Result<void> added;
    if (!file) {
      added = file.error();
    } else if (*file) {
      added = files.add(base, (*file)->name, (*file)->bytes);
    }
    if (!added) failure = added.error();
    if (added && progress && !progress(at + 1, chosen.pictures.size())) failure = Error::refused("interrupted");
    return !failure;
  };
  makeInOrder(chosen.pictures.size(), make, take);
  if (failure) return *std::move(failure);
  if (isInterruptionRequested()) return Error::refused("interrupted");
  if (files.files().empty() && !chosen.pictures.empty())
    return Error::invalidInput("no picture in the zip file can be read");
  return makeSet(library, chosen.name, files.files(), progress);
}

}  // namespace

Result<void> exportSet(const std::filesystem::path& set, const std::filesystem::path& toFile,
                       const LibraryServices& services, const LibraryProgress& progress) {
  const Folder folder = TRY(openSetFolder(set, Folder::Access::Read));
  const auto icons = IconSet::_iconsInDirectory(set, services);
  if (!icons) return Error(ErrorKind::System, "cannot read the set").at(set);
  const std::string name = handedOn(newName(folder.path().filename().string(), "", 0, "")) + "/";
  ZipWriter zip;
  std::vector<std::string> names;
  std::set<std::string> taken;
  for (std::size_t i = 0; i < icons->size(); ++i) {
    NewFile file = TRY(fileOf(folder, (*icons)[i].name, services));
    const std::filesystem::path plain = file.name;
    // Elsewhere letters of either case may be one.
    for (int number = 1; !taken.insert(lowered(file.name)).second; ++number)
      file.name = newName(plain.stem().string(), "-", number, plain.extension().string());
    names.push_back(file.name);
    TRY_VOID(zip.add(name + file.name, std::move(file.bytes), false));
    if (progress && !progress(i + 1, icons->size())) return Error::refused("interrupted");
  }
  TRY_VOID(zip.add(name + iconListName, plist::writeStringArray(names), true));
  return writePlainFile(toFile, TRY(std::move(zip).finish()));
}

Result<std::filesystem::path> importSet(const std::filesystem::path& file, const std::filesystem::path& library,
                                        const LibraryServices& /*services*/, const LibraryProgress& progress) {
  const Bytes bytes = TRY(readPlainFile(file, limits::libraryArchiveBytes));
  auto path = import(bytes, file.stem().string(), library, progress);
  if (!path) return std::move(path).error().at(file);
  return path;
}

}  // namespace quorvane
