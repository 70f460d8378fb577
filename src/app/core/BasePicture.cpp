// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/BasePicture.h"

#include "foundation/FileReading.h"
#include "foundation/Folder.h"
#include "foundation/base/Limits.h"
#include "iconfamily/FamilyPicture.h"
#include "iconfamily/IconFamily.h"
#include "iconfamily/IconFamilyInternals.h"

namespace quorvane {

namespace {

Result<Bytes> readWithin(const std::filesystem::path& folder, const std::filesystem::path& path) {
  TRY_VOID(checkInnerPath(path));
  Folder at = TRY(Folder::open(folder, Folder::Access::Read));
  const std::filesystem::path inner = path.lexically_normal();
  for (const auto& step : inner.parent_path()) at = TRY(at.openChild(step.string(), Folder::Access::Read));
  auto bytes = TRY(at.readFile(inner.filename().string(), limits::pictureFileBytes));
  if (!bytes) return Error::system(ENOENT, "cannot read");
  return *std::move(bytes);
}

}  // namespace

Result<void> checkInnerPath(const std::filesystem::path& path) {
  const auto refused = [&](const char* why) { return Error::refused(why).at(path); };
  if (path.is_absolute()) return refused("an absolute path leads out of the folder");
  if (!path.has_filename() || path.native().find('\0') != std::string::npos)
    return refused("the path names no file in the folder");
  for (const auto& step : path)
    if (step == "..") return refused("the path leads out of the folder");
  return {};
}

Result<Bytes> readReferenced(const BaseReference& reference) {
  if (reference.within.empty()) return readPlainFile(reference.path, limits::pictureFileBytes);
  return readWithin(reference.within, reference.path);
}

Result<Image> pictureFromBytes(ByteView bytes) {
  return IconFamily::looksLikeFamily(bytes) ? readFamilyPicture(bytes) : Image::imageWithData(bytes);
}

Result<OverlayPicture> readOverlayPicture(const BaseReference& reference) {
  const auto read = [&]() -> Result<OverlayPicture> {
    return OverlayPicture::fromImage(TRY(pictureFromBytes(TRY(readReferenced(reference)))));
  };
  auto picture = read();
  if (!picture) return std::move(picture).error().at(reference.shown());
  return picture;
}

Result<Image> readBasePicture(const BaseReference& reference) {
  const auto read = [&]() -> Result<Image> {
    Image picture = TRY(pictureFromBytes(TRY(readReferenced(reference))));
    // What the library does with a picture that is dropped on it: fitted into a square, as large as the canvas.
    if (picture.representations().size() == 1) {
      auto fitted = internals::resampleImage(picture, 512, ImageInterpolation::High);
      if (!fitted) return Error::invalidInput("the file holds no picture");
      picture = *std::move(fitted);
    }
    picture.setScalesWhenResized(true);
    picture.setSize({128, 128});
    return picture;
  };
  auto picture = read();
  if (!picture) return std::move(picture).error().at(reference.shown());
  return picture;
}

}  // namespace quorvane
