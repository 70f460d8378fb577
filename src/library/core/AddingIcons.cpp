// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/core/AddingIcons.h"

#include <sys/stat.h>

#include <QString>
#include <algorithm>

#include "foundation/NaturalOrder.h"
#include "foundation/base/Limits.h"
#include "library/core/IconImages.h"
#include "library/core/ListFile.h"
#include "library/core/NewIcons.h"
#include "library/core/PictureNames.h"

namespace quorvane {

using namespace library;

namespace {

/// Of the picture itself, whatever its ending: nobody wants a set of the desktop's icons for kinds of pictures.
Result<IconFamily> pictureFamilyOf(const Folder& folder, const std::string& name) {
  const auto bytes = TRY(folder.readFile(name, limits::pictureFileBytes));
  if (!bytes) return Error::system(ENOENT, "cannot read").at(folder.pathOf(name));
  auto family = familyOfBytes(*bytes, lowered(std::filesystem::path(name).extension().string()) == ".icns");
  if (!family) return std::move(family).error().at(folder.pathOf(name));
  return family;
}

}  // namespace

std::vector<Result<IconRecord>> addIconsAtPaths(const std::vector<std::filesystem::path>& paths,
                                                const std::filesystem::path& toDirectory,
                                                const LibraryServices& services, const LibraryProgress& progress) {
  std::vector<Result<IconRecord>> outcomes;
  makeInOrder(
      paths.size(), [&](std::size_t at) { return showableFamilyOf(paths[at], services); },
      [&](std::size_t at, Result<IconFamily> family) {
        outcomes.push_back(family ? addFamily(toDirectory, baseNameOf(paths[at]), *family, services)
                                  : Result<IconRecord>(std::move(family).error()));
        return !progress || progress(at + 1, paths.size());
      });
  return outcomes;
}

Result<std::filesystem::path> setFromFolder(const std::filesystem::path& folder, const std::filesystem::path& library,
                                            const LibraryServices& /*services*/, const LibraryProgress& progress) {
  const Folder from = TRY(Folder::open(folder, Folder::Access::Read));
  std::vector<std::string> names;
  for (const std::string& name : TRY(from.names())) {
    const auto info = TRY(from.statusOf(name));
    if (info && S_ISREG(info->st_mode) && isPictureName(name)) names.push_back(name);
  }
  if (names.empty()) return Error::invalidInput("there is no picture in the folder").at(folder);
  if (names.size() > limits::librarySetIcons) return Error::tooLarge("too many pictures for one set").at(folder);
  std::ranges::sort(names, [](const std::string& a, const std::string& b) {
    return comesBefore(QString::fromStdString(a), QString::fromStdString(b));
  });
  NewSetFiles files;
  std::optional<Error> failure;
  makeInOrder(
      names.size(), [&](std::size_t at) { return pictureFamilyOf(from, names[at]); },
      [&](std::size_t at, Result<IconFamily> family) {
        const auto added =
            family ? files.add(baseNameOf(names[at]), ".icns", family->bytes()) : Result<void>(family.error());
        // One picture that cannot be read does not keep the others out; room that is used up does.
        if (!added && (family || names.size() == 1)) failure = added.error();
        if (progress && !progress(at + 1, names.size())) failure = Error::refused("interrupted");
        return !failure;
      });
  if (failure) return *std::move(failure);
  if (isInterruptionRequested()) return Error::refused("interrupted");
  if (files.files().empty()) return Error::invalidInput("no picture in the folder can be read").at(folder);
  return makeSet(library, from.path().filename().string(), files.files(), progress);
}

}  // namespace quorvane
