// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/Bytes.h"
#include "imaging/Image.h"

namespace quorvane {

/// An icns file as a picture: all pixel sizes of the family. Fails when it holds none that is whole.
Result<Image> readFamilyPicture(ByteView bytes);

/// The same for Image::registerReader, so that icns files are read wherever pictures are.
ImageReader familyPictureReader();

}  // namespace quorvane
