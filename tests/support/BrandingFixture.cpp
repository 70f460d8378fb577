// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/BrandingFixture.h"

#include "iconfamily/CustomIcon.h"

namespace quorvane::test {

Image plainImage(QColor color, int pixels) {
  QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  picture.fill(color);
  Image image = Image::imageWithBitmapImageRep(*BitmapImageRep::bitmapImageRepWithCGImageRef(picture));
  image.setScalesWhenResized(true);
  image.setSize({128, 128});
  return image;
}

Bytes BrandingFixture::shownIcon() const {
  const auto family = readCustomIcon(folder, forks);
  EXPECT_TRUE(family) << family.error().message();
  return family && *family ? (*family)->data() : Bytes();
}

}  // namespace quorvane::test
