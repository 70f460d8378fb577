// SPDX-License-Identifier: GPL-3.0-or-later
// Writing an icon of 512 pixels as JPEG and as GIF, against the libraries as they come: libjpeg at the same
// quality on ready rows, with the code tables that it begins with, and libimagequant with giflib, which together know
// nothing of patterns for alpha.
#include <cstdio>
// clang-format off
#include <jpeglib.h>
// clang-format on
#include <gif_lib.h>
#include <libimagequant.h>

#include <array>
#include <cstdlib>

#include "Compare.h"
#include "FolderPicture.h"
#include "imaging/GifEncoder.h"
#include "imaging/JpegEncoder.h"

namespace quorvane::bench {
namespace {

constexpr int side = 512;

Bytes encodeWithLibjpeg(const QImage& rgb, int quality) {
  jpeg_compress_struct jpeg{};
  jpeg_error_mgr errors{};
  jpeg.err = jpeg_std_error(&errors);
  jpeg_create_compress(&jpeg);
  unsigned char* data = nullptr;
  unsigned long size = 0;
  jpeg_mem_dest(&jpeg, &data, &size);
  jpeg.image_width = jpeg.image_height = side;
  jpeg.input_components = 3;
  jpeg.in_color_space = JCS_RGB;
  jpeg_set_defaults(&jpeg);
  jpeg_set_quality(&jpeg, quality, TRUE);
  if (quality >= 90) jpeg.comp_info[0].h_samp_factor = jpeg.comp_info[0].v_samp_factor = 1;  // as ours does
  jpeg_start_compress(&jpeg, TRUE);
  while (jpeg.next_scanline < side) {
    auto* row = const_cast<JSAMPROW>(rgb.constScanLine(static_cast<int>(jpeg.next_scanline)));
    jpeg_write_scanlines(&jpeg, &row, 1);
  }
  jpeg_finish_compress(&jpeg);
  jpeg_destroy_compress(&jpeg);
  Bytes bytes(data, data + size);
  std::free(data);
  return bytes;
}

Bytes encodeWithGiflib(const QImage& rgba) {
  liq_attr* attributes = liq_attr_create();
  liq_image* image = liq_image_create_rgba(attributes, rgba.constBits(), side, side, 0);
  liq_result* result = nullptr;
  Bytes indices(std::size_t{side} * side);
  if (liq_image_quantize(image, attributes, &result) != LIQ_OK ||
      liq_write_remapped_image(result, image, indices.data(), indices.size()) != LIQ_OK)
    std::abort();
  const liq_palette* palette = liq_get_palette(result);
  ColorMapObject* colors = GifMakeMapObject(256, nullptr);
  for (unsigned i = 0; i < palette->count; ++i)
    colors->Colors[i] = {palette->entries[i].r, palette->entries[i].g, palette->entries[i].b};
  Bytes gif;
  GifFileType* file = EGifOpen(
      &gif,
      [](GifFileType* to, const GifByteType* bytes, int count) {
        auto& out = *static_cast<Bytes*>(to->UserData);
        out.insert(out.end(), bytes, bytes + count);
        return count;
      },
      nullptr);
  EGifPutScreenDesc(file, side, side, 8, 0, colors);
  EGifPutImageDesc(file, 0, 0, side, side, false, nullptr);
  for (int y = 0; y < side; ++y) EGifPutLine(file, indices.data() + std::ptrdiff_t{side} * y, side);
  EGifCloseFile(file, nullptr);
  GifFreeMapObject(colors);
  liq_result_destroy(result);
  liq_image_destroy(image);
  liq_attr_destroy(attributes);
  return gif;
}

void jpeg(benchmark::State& state) {
  const auto quality = static_cast<int>(state.range(0));
  const BitmapImageRep bitmap = folderBitmap(side);
  QImage white(side, side, QImage::Format_RGB888);
  white.fill(Qt::white);
  QPainter(&white).drawImage(0, 0, folderPicture(side));
  std::size_t ours = 0;
  std::size_t reference = 0;
  compare(
      state, [&] { ours = JpegSource(bitmap).encode(static_cast<float>(quality / 100.0))->size(); },
      [&] { reference = encodeWithLibjpeg(white, quality).size(); });
  state.counters["bytes_ratio"] = static_cast<double>(ours) / static_cast<double>(reference);
}

void gif(benchmark::State& state) {
  const BitmapImageRep bitmap = folderBitmap(side);
  const QImage rgba = folderPicture(side).convertToFormat(QImage::Format_RGBA8888);
  std::size_t ours = 0;
  std::size_t reference = 0;
  compare(
      state, [&] { ours = encodeGif(bitmap)->size(); }, [&] { reference = encodeWithGiflib(rgba).size(); });
  state.counters["bytes_ratio"] = static_cast<double>(ours) / static_cast<double>(reference);
}

BENCHMARK(jpeg)->Name("JPEG 512, quality")->Arg(80)->Arg(90)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(gif)->Name("GIF 512")->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorvane::bench
