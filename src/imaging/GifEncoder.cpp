// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/GifEncoder.h"

#include <gif_lib.h>

#include <array>
#include <bit>
#include <memory>
#include <string>

#include "imaging/IndexedColors.h"

namespace quorvane {

namespace {

int append(GifFileType* file, const GifByteType* bytes, int count) {
  auto& out = *static_cast<Bytes*>(file->UserData);
  out.insert(out.end(), bytes, bytes + count);
  return count;
}

struct CloseGif {
  void operator()(GifFileType* file) const { EGifCloseFile(file, nullptr); }
};

struct FreeColors {
  void operator()(ColorMapObject* colors) const { GifFreeMapObject(colors); }
};

/// As many colours as the format can count: a power of two, at least 2.
std::unique_ptr<ColorMapObject, FreeColors> colorMap(const IndexedColors& picture) {
  const auto count = static_cast<int>(std::max<std::size_t>(std::bit_ceil(picture.palette.size()), 2));
  std::unique_ptr<ColorMapObject, FreeColors> map(GifMakeMapObject(count, nullptr));
  if (map)
    for (std::size_t i = 0; i < picture.palette.size(); ++i)
      map->Colors[i] = {picture.palette[i][0], picture.palette[i][1], picture.palette[i][2]};
  return map;
}

bool writePicture(GifFileType* file, const IndexedColors& picture, const ColorMapObject* colors) {
  constexpr int bitsOfColor = 8;
  if (EGifPutScreenDesc(file, picture.pixelsWide, picture.pixelsHigh, bitsOfColor, 0, colors) != GIF_OK) return false;
  if (picture.transparentIndex) {
    const GraphicsControlBlock control{DISPOSAL_UNSPECIFIED, false, 0, *picture.transparentIndex};
    std::array<GifByteType, 4> extension{};
    EGifGCBToExtension(&control, extension.data());
    if (EGifPutExtension(file, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(extension.size()), extension.data()) != GIF_OK)
      return false;
  }
  if (EGifPutImageDesc(file, 0, 0, picture.pixelsWide, picture.pixelsHigh, false, nullptr) != GIF_OK) return false;
  // The library takes rows that could be written to, and cuts surplus bits of them; there are none.
  Bytes row(static_cast<std::size_t>(picture.pixelsWide));
  for (int y = 0; y < picture.pixelsHigh; ++y) {
    std::copy_n(picture.indices.begin() + static_cast<std::ptrdiff_t>(y) * picture.pixelsWide, row.size(), row.begin());
    if (EGifPutLine(file, row.data(), picture.pixelsWide) != GIF_OK) return false;
  }
  return true;
}

}  // namespace

Result<Bytes> encodeGif(const BitmapImageRep& bitmap) {
  const IndexedColors picture = TRY(indexedColors(bitmap));
  const auto colors = colorMap(picture);
  Bytes gif;
  int code = 0;
  std::unique_ptr<GifFileType, CloseGif> file(EGifOpen(&gif, append, &code));
  const auto failure = [&] {
    const char* words = GifErrorString(file ? file->Error : code);
    return Error::broken(std::string("encoding a GIF") + (words == nullptr ? "" : std::string(": ") + words));
  };
  if (!file || !colors) return failure();
  EGifSetGifVersion(file.get(), picture.transparentIndex.has_value());
  if (!writePicture(file.get(), picture, colors.get())) return failure();
  // Closing writes the end.
  if (EGifCloseFile(file.release(), &code) != GIF_OK) return failure();
  return gif;
}

}  // namespace quorvane
