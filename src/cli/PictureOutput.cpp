// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/PictureOutput.h"

#include <QString>
#include <array>
#include <utility>

#include "iconfamily/IconFamily.h"
#include "imaging/JpegEncoder.h"
#include "imaging/JpegQuality.h"

namespace quorvane::cli {

std::optional<PictureKind> pictureKindOf(const std::filesystem::path& path) {
  if (path == "-" || !path.has_extension()) return PictureKind::Png;
  static const std::array<std::pair<const char*, PictureKind>, 7> endings{{{".png", PictureKind::Png},
                                                                           {".jpg", PictureKind::Jpeg},
                                                                           {".jpeg", PictureKind::Jpeg},
                                                                           {".tif", PictureKind::Tiff},
                                                                           {".tiff", PictureKind::Tiff},
                                                                           {".gif", PictureKind::Gif},
                                                                           {".icns", PictureKind::IconFamily}}};
  const auto extension = QString::fromStdString(path.extension().string());
  for (const auto& [ending, kind] : endings)
    if (extension.compare(QLatin1String(ending), Qt::CaseInsensitive) == 0) return kind;
  return std::nullopt;
}

Result<Bytes> encodePicture(const Image& icon, PictureKind kind, int pixels, const JpegWish& jpeg) {
  if (kind == PictureKind::IconFamily) return TRY(IconFamily::iconFamilyWithThumbnailsOfImage(icon)).data();
  const BitmapImageRep bitmap = icon.rendered(pixels, pixels);
  if (kind == PictureKind::Jpeg) return encodeJpegUnderLimit(JpegSource(bitmap), jpeg.quality, jpeg.limit);
  const Image picture = Image::imageWithBitmapImageRep(bitmap);
  if (kind == PictureKind::Tiff) return picture.TIFFRepresentation();
  return kind == PictureKind::Gif ? picture.GIFRepresentation() : picture.PNGRepresentation();
}

}  // namespace quorvane::cli
