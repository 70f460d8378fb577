// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/FamilyPicture.h"

#include "iconfamily/IconFamily.h"

namespace quorvane {

Result<Image> readFamilyPicture(ByteView bytes) {
  const IconFamily family = IconFamily::initWithData(bytes);
  TRY_VOID(family.check());
  auto image = family.imageWithAllReps();
  if (!image || !image->bitmapRepresentation()) return Error::invalidInput("the icon family holds no whole picture");
  return *std::move(image);
}

ImageReader familyPictureReader() {
  return {.fileTypes = {"icns"}, .canRead = IconFamily::looksLikeFamily, .read = readFamilyPicture};
}

}  // namespace quorvane
