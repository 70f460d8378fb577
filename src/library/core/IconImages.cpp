// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/core/IconImages.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "foundation/FileManagerExtras.h"
#include "foundation/FileReading.h"
#include "foundation/base/Limits.h"
#include "iconfamily/CustomIcon.h"
#include "iconfamily/FamilyImage.h"
#include "imaging/PngCodec.h"
#include "library/core/IconSet.h"
#include "library/core/ListFile.h"

namespace quorvane {

namespace library {

namespace {

constexpr Size iconPoints{128, 128};
// The signature and the first chunk.
constexpr std::size_t pngHeaderBytes = 33;

Result<std::optional<Image>> imageOfPng(const Folder& folder, const std::string& name) {
  const auto file = TRY(folder.openFile(name));
  if (!file) return std::optional<Image>();
  std::array<std::uint8_t, pngHeaderBytes> header{};
  const ssize_t got = ::pread(file->get(), header.data(), header.size(), 0);
  if (got < 0) return Error::system(errno, "cannot read").at(folder.pathOf(name));
  const std::filesystem::path path = folder.pathOf(name);
  const auto size = pngSize(ByteView(header).first(static_cast<std::size_t>(got)));
  if (!size) {
    // Another kind of picture under this ending, or none.
    auto image = Image::imageWithContentsOfFile(path);
    if (!image && image.error().kind() == ErrorKind::System) return std::move(image).error();
    return std::move(image).toOptional();
  }
  if (size->width > limits::picturePixels || size->height > limits::picturePixels) return std::optional<Image>();
  const Size points{static_cast<float>(size->width), static_cast<float>(size->height)};
  Image image(points);
  image.addRepresentation(ImageRep::pending(size->width, size->height, points, [path]() {
    const auto picture = Image::imageWithContentsOfFile(path);
    return picture ? picture->bitmapRepresentation() : std::nullopt;
  }));
  return std::optional(image);
}

/// The folder's own icon, else that of folders.
std::optional<Image> imageOfFolder(const std::filesystem::path& path, const IconServices& services) {
  std::optional<Image> image;
  if (const auto custom = readCustomIcon(path, services.forks); custom && *custom)
    image = (*custom)->imageWithAllReps();
  if (!image) image = services.kinds.iconForKindOfFile(path);
  if (!image) return std::nullopt;
  image->setScalesWhenResized(false);
  image->setSize(iconPoints);
  return image;
}

}  // namespace

Result<std::optional<Image>> imageOf(const Folder& folder, const std::string& name, const LibraryServices& services) {
  const auto info = TRY(folder.statusOf(name));
  if (!info) return std::optional<Image>();
  const std::string ending = std::filesystem::path(name).extension().string();
  if (S_ISREG(info->st_mode) && ending == ".png") return imageOfPng(folder, name);
  if (S_ISREG(info->st_mode) && ending == ".icns") return imageOfFamilyFile(folder, name);
  if (S_ISDIR(info->st_mode) && ending != ".png" && ending != ".icns")
    return imageOfFolder(folder.pathOf(name), services.icons);
  return std::optional<Image>();
}

Image lastingImage(const IconRecord& icon) {
  const auto& reps = icon.image.representations();
  const bool isPending = std::ranges::any_of(reps, [](const ImageRep& rep) { return rep.isPending(); });
  const auto folder = Folder::open(icon.path.parent_path(), Folder::Access::Read);
  if (!isPending || !folder) return icon.image;
  auto read = folder->readFile(icon.name, limits::pictureFileBytes);
  if (!read || !*read) return icon.image;
  const auto bytes = std::make_shared<const Bytes>(**std::move(read));
  if (icon.path.extension() == ".icns") return IconFamily::initWithData(*bytes).imageWithAllReps().value_or(icon.image);
  Image image(icon.image.size());
  image.addRepresentation(ImageRep::pending(reps.front().pixelsWide(), reps.front().pixelsHigh(), reps.front().size(),
                                            [bytes]() -> std::optional<BitmapImageRep> {
                                              const auto picture = Image::imageWithData(*bytes);
                                              return picture ? picture->bitmapRepresentation() : std::nullopt;
                                            }));
  return image;
}

Result<void> checkShowable(const IconFamily& family) {
  TRY_VOID(family.check());
  const auto image = family.imageWithAllReps();
  if (!image || !image->bitmapRepresentation()) return Error::invalidInput("the icon family holds no whole picture");
  return {};
}

Result<IconFamily> familyOfBytes(ByteView bytes, bool isFamily) {
  if (!isFamily) return IconFamily::iconFamilyWithThumbnailsOfImage(TRY(Image::imageWithData(bytes)));
  IconFamily family = IconFamily::initWithData(bytes);
  TRY_VOID(checkShowable(family));
  return family;
}

}  // namespace library

std::optional<Image> IconSet::_iconImageForPath(const std::filesystem::path& path, const LibraryServices& services) {
  if (!path.has_filename()) return std::nullopt;
  const auto folder = Folder::open(path.has_parent_path() ? path.parent_path() : ".", Folder::Access::Read);
  if (!folder) return std::nullopt;
  auto image = library::imageOf(*folder, path.filename().string(), services);
  return image ? *std::move(image) : std::nullopt;
}

std::optional<IconRecord> IconSet::_iconForPath(const std::filesystem::path& path, const LibraryServices& services) {
  auto image = _iconImageForPath(path, services);
  if (!image) return std::nullopt;
  return IconRecord{.path = path, .name = path.filename().string(), .image = *std::move(image)};
}

Result<IconFamily> IconSet::_iconFamilyForPath(const std::filesystem::path& path, const LibraryServices& services) {
  static const std::array<std::string, 4> pictureEndings{".png", ".tiff", ".psd", ".jpg"};
  if (isDirectory(path)) return IconFamily::iconFamilyWithIconOfFile(path, services.icons);
  std::string ending = path.extension().string();
  std::ranges::transform(ending, ending.begin(),
                         [](unsigned char each) { return static_cast<char>(std::tolower(each)); });
  if (ending == ".icns") return IconFamily::iconFamilyWithContentsOfFile(path);
  if (std::ranges::find(pictureEndings, ending) != pictureEndings.end())
    return IconFamily::iconFamilyWithThumbnailsOfImage(TRY(Image::imageWithContentsOfFile(path)));
  std::error_code error;
  if (!std::filesystem::exists(path, error))
    return Error::system(error ? error.value() : ENOENT, "cannot read").at(path);
  return IconFamily::iconFamilyWithIconOfFile(path, services.icons);
}

}  // namespace quorvane
