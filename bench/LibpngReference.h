// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <png.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "FolderPicture.h"
#include "imaging/PngCodec.h"

/// The two pictures that an icon family holds as PNG, 512 and 256 pixels, and libpng as it comes: what encoding and
/// decoding a family is measured against.
namespace quorvane::bench {

struct Picture {
  BitmapImageRep bitmap;  // premultiplied, as the product has it
  Bytes straight;         // not premultiplied, as libpng takes it
  Bytes png;
};

inline Picture makePicture(int width) {
  Picture picture{folderBitmap(width), {}, {}};
  picture.png = *encodePng(picture.bitmap);
  const auto decoded = decodePng(picture.png, width);
  const ByteView pixels = decoded->bitmapData();
  picture.straight.assign(pixels.begin(), pixels.end());
  return picture;
}

inline const std::vector<Picture>& pictures() {
  static const std::vector<Picture> both = [] {
    std::vector<Picture> made;
    made.push_back(makePicture(512));
    made.push_back(makePicture(256));
    return made;
  }();
  return both;
}

/// The usual example program: create, write the rows, all at the library's defaults.
inline Bytes encodeWithLibpng(const Picture& picture) {
  Bytes out;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_set_write_fn(
      png, &out,
      [](png_structp writer, png_bytep data, std::size_t count) {
        auto* to = static_cast<Bytes*>(png_get_io_ptr(writer));
        to->insert(to->end(), data, data + count);
      },
      nullptr);
  const int width = picture.bitmap.pixelsWide();
  png_set_IHDR(png, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(width), 8, PNG_COLOR_TYPE_RGBA,
               PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  for (int y = 0; y < width; ++y) png_write_row(png, picture.straight.data() + std::ptrdiff_t{4} * width * y);
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  return out;
}

inline Bytes decodeWithLibpng(ByteView bytes) {
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_set_read_fn(png, &bytes, [](png_structp reader, png_bytep to, std::size_t count) {
    auto* from = static_cast<ByteView*>(png_get_io_ptr(reader));
    std::memcpy(to, from->data(), count);
    *from = from->subspan(count);
  });
  png_read_info(png, info);
  png_set_expand(png);
  png_set_gray_to_rgb(png);
  png_set_add_alpha(png, 0xFF, PNG_FILLER_AFTER);
  png_read_update_info(png, info);
  const std::size_t rowBytes = png_get_rowbytes(png, info);
  const png_uint_32 height = png_get_image_height(png, info);
  Bytes pixels(rowBytes * height);
  for (png_uint_32 y = 0; y < height; ++y) png_read_row(png, pixels.data() + rowBytes * y, nullptr);
  png_destroy_read_struct(&png, &info, nullptr);
  return pixels;
}

}  // namespace quorvane::bench
