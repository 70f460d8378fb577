// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/IconOverlay.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <cmath>

#include "foundation/base/Limits.h"
#include "imaging/PngCodec.h"
#include "imaging/Resampler.h"

namespace quorvane {

namespace {

/// The picture with its longer side of at most so many pixels, never enlarged.
BitmapImageRep fitted(const BitmapImageRep& bitmap, int most) {
  const double longer = std::max(bitmap.pixelsWide(), bitmap.pixelsHigh());
  const double scale = std::min(1.0, most / longer);
  const auto side = [scale](int pixels) { return static_cast<float>(std::max(1L, std::lround(pixels * scale))); };
  return bitmap.bitmapImageRepByScalingToSize({side(bitmap.pixelsWide()), side(bitmap.pixelsHigh())},
                                              ImageInterpolation::High, std::nullopt);
}

Image imageOf(BitmapImageRep bitmap) {
  bitmap.setSize({static_cast<float>(bitmap.pixelsWide()), static_cast<float>(bitmap.pixelsHigh())});
  return Image::imageWithBitmapImageRep(bitmap);
}

}  // namespace

Result<OverlayPicture> OverlayPicture::fromImage(const Image& image) {
  const auto bitmap = image.bitmapForPixels(limits::overlayPixels, limits::overlayPixels);
  if (!bitmap || bitmap->pixelsWide() <= 0 || bitmap->pixelsHigh() <= 0)
    return Error::invalidInput("the file holds no picture");
  for (int most = limits::overlayPixels; most >= 16; most /= 2) {
    const BitmapImageRep small = fitted(*bitmap, most);
    Bytes png = TRY(encodePng(small));
    if (png.size() <= limits::overlayBytes) return OverlayPicture(Content{imageOf(small), std::move(png)});
  }
  return Error::tooLarge("the picture cannot be kept in so few bytes");
}

Result<OverlayPicture> OverlayPicture::fromPng(Bytes png) {
  if (png.size() > limits::overlayBytes)
    return Error::tooLarge("the picture is longer than " + std::to_string(limits::overlayBytes) + " bytes");
  if (!isPng(png)) return Error::invalidInput("the picture is no PNG file");
  TRY_VOID(checkPngData(png));
  const BitmapImageRep bitmap = TRY(decodePng(png, limits::overlayPixels)).toStandard();
  return OverlayPicture(Content{imageOf(bitmap), std::move(png)});
}

Result<OverlayEmoji> overlayEmoji(const QString& text) {
  const Error wrong = Error::invalidInput("takes one emoji or other character");
  if (text.isEmpty() || !text.isValidUtf16() || static_cast<std::size_t>(text.size()) > limits::overlayEmojiUnits)
    return wrong;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  if (finder.toNextBoundary() != text.size()) return wrong;
  const char32_t first = text.toUcs4().front();
  if (QChar::isSpace(first) || QChar::category(first) == QChar::Other_Control || !QChar::isPrint(first)) return wrong;
  return OverlayEmoji{text};
}

}  // namespace quorvane
