// SPDX-License-Identifier: GPL-3.0-or-later
// Our PNG codec against libpng as it comes, on the two pictures that an icon family holds as PNG: 512 and 256 pixels.
// Wanted: encoding at most 0.6 of the time and 1.05 of the bytes, decoding at most 1.1 of the time.
#include <png.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "Compare.h"
#include "FolderPicture.h"
#include "imaging/PngCodec.h"

namespace quorvane::bench {
namespace {

struct Picture {
  BitmapImageRep bitmap;  // premultiplied, as the product has it
  Bytes straight;         // not premultiplied, as libpng takes it
  Bytes png;
};

Picture makePicture(int width) {
  Picture picture{folderBitmap(width), {}, {}};
  picture.png = *encodePng(picture.bitmap);
  const auto decoded = decodePng(picture.png, width);
  const ByteView pixels = decoded->bitmapData();
  picture.straight.assign(pixels.begin(), pixels.end());
  return picture;
}

const std::vector<Picture>& pictures() {
  static const std::vector<Picture> both = [] {
    std::vector<Picture> made;
    made.push_back(makePicture(512));
    made.push_back(makePicture(256));
    return made;
  }();
  return both;
}

/// The usual example program: create, write the rows, all at the library's defaults.
Bytes encodeWithLibpng(const Picture& picture) {
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

Bytes decodeWithLibpng(ByteView bytes) {
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

void encode(benchmark::State& state) {
  double ours = 0;
  double reference = 0;
  compare(
      state,
      [&] {
        ours = 0;
        for (const Picture& picture : pictures()) ours += static_cast<double>(encodePng(picture.bitmap)->size());
      },
      [&] {
        reference = 0;
        for (const Picture& picture : pictures()) reference += static_cast<double>(encodeWithLibpng(picture).size());
      });
  state.counters["bytes"] = ours;
  state.counters["bytes_ratio"] = ours / reference;
}

void decode(benchmark::State& state) {
  pictures();
  compare(
      state,
      [] {
        for (const Picture& picture : pictures()) benchmark::DoNotOptimize(decodePng(picture.png, 512));
      },
      [] {
        for (const Picture& picture : pictures()) benchmark::DoNotOptimize(decodeWithLibpng(picture.png));
      });
}

BENCHMARK(encode)->Name("encode 512 and 256")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(decode)->Name("decode 512 and 256")->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorvane::bench
