// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/Jpeg2000.h"

#include <openjpeg.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <string>

#include "imaging/ColorTransform.h"
#include "imaging/Jpeg2000Header.h"
#include "imaging/Premultiply.h"

namespace quorvane {

namespace {

struct CodecDeleter {
  void operator()(opj_codec_t* codec) const { opj_destroy_codec(codec); }
};
struct StreamDeleter {
  void operator()(opj_stream_t* stream) const { opj_stream_destroy(stream); }
};
struct ImageDeleter {
  void operator()(opj_image_t* image) const { opj_image_destroy(image); }
};
using Codec = std::unique_ptr<opj_codec_t, CodecDeleter>;
using Stream = std::unique_ptr<opj_stream_t, StreamDeleter>;
using Picture = std::unique_ptr<opj_image_t, ImageDeleter>;

/// What the library reads from. Its offsets may go past the end, so they are kept apart from the bytes.
struct Source {
  ByteView bytes;
  std::size_t position = 0;

  static OPJ_SIZE_T read(void* buffer, OPJ_SIZE_T count, void* user) {
    auto* source = static_cast<Source*>(user);
    const std::size_t taken = std::min<std::size_t>(count, source->bytes.size() - source->position);
    if (taken == 0) return static_cast<OPJ_SIZE_T>(-1);
    std::memcpy(buffer, source->bytes.data() + source->position, taken);
    source->position += taken;
    return taken;
  }

  static OPJ_OFF_T skip(OPJ_OFF_T count, void* user) {
    auto* source = static_cast<Source*>(user);
    const std::size_t left = source->bytes.size() - source->position;
    if (count < 0 || left == 0) return -1;
    const std::size_t taken = std::min<std::size_t>(static_cast<std::size_t>(count), left);
    source->position += taken;
    return static_cast<OPJ_OFF_T>(taken);
  }

  static OPJ_BOOL seek(OPJ_OFF_T position, void* user) {
    auto* source = static_cast<Source*>(user);
    if (position < 0 || static_cast<std::uint64_t>(position) > source->bytes.size()) return OPJ_FALSE;
    source->position = static_cast<std::size_t>(position);
    return OPJ_TRUE;
  }
};

Stream makeStream(Source& source) {
  Stream stream(opj_stream_create(std::size_t{1} << 16, OPJ_TRUE));
  if (!stream) return stream;
  opj_stream_set_user_data(stream.get(), &source, nullptr);
  opj_stream_set_user_data_length(stream.get(), source.bytes.size());
  opj_stream_set_read_function(stream.get(), Source::read);
  opj_stream_set_skip_function(stream.get(), Source::skip);
  opj_stream_set_seek_function(stream.get(), Source::seek);
  return stream;
}

/// Keeps the first complaint, which is the nearest to the cause.
void onError(const char* message, void* user) {
  auto* why = static_cast<std::string*>(user);
  if (!why->empty()) return;
  *why = message;
  while (!why->empty() && why->back() == '\n') why->pop_back();
}

void onMessage(const char* /*message*/, void* /*user*/) {}

Result<Picture> decode(ByteView bytes, bool isBoxed) {
  std::string why;
  Source source{bytes};
  const Stream stream = makeStream(source);
  const Codec codec(opj_create_decompress(isBoxed ? OPJ_CODEC_JP2 : OPJ_CODEC_J2K));
  opj_dparameters_t parameters;
  opj_set_default_decoder_parameters(&parameters);
  if (!stream || !codec) return Error::invalidInput("JPEG 2000: out of memory");
  opj_set_info_handler(codec.get(), onMessage, nullptr);
  opj_set_warning_handler(codec.get(), onMessage, nullptr);
  opj_set_error_handler(codec.get(), onError, &why);

  opj_image_t* image = nullptr;
  bool done = opj_setup_decoder(codec.get(), &parameters) == OPJ_TRUE &&
              opj_read_header(stream.get(), codec.get(), &image) == OPJ_TRUE;
  Picture picture(image);
  done = done && picture && opj_decode(codec.get(), stream.get(), picture.get()) == OPJ_TRUE;
  if (!done) return Error::invalidInput("JPEG 2000: " + (why.empty() ? std::string("cannot be decoded") : why));
  return picture;
}

/// Samples of one component as bytes.
class Channel {
 public:
  Channel() = default;
  explicit Channel(const opj_image_comp_t& component)
      : _samples(component.data),
        _offset(component.sgnd != 0 ? 1 << (component.prec - 1) : 0),
        _highest((1 << component.prec) - 1),
        _drop(component.prec > 8 ? static_cast<int>(component.prec) - 8 : 0) {}

  [[nodiscard]] unsigned at(std::size_t index) const {
    const int value = std::clamp(_samples[index] + _offset, 0, _highest);
    return static_cast<unsigned>(_drop > 0 ? value >> _drop : _highest == 255 ? value : value * 255 / _highest);
  }

 private:
  const OPJ_INT32* _samples = nullptr;
  int _offset = 0;
  int _highest = 0;
  int _drop = 0;
};

std::uint8_t toByte(double value) {
  return static_cast<std::uint8_t>(std::clamp(value + 0.5, 0.0, 255.0));
}

/// Luma and colour differences to RGB, with the coefficients of ISO/IEC 10918-5.
void convertFromYcc(std::uint8_t* pixel) {
  const double luma = pixel[0];
  const double blue = pixel[1] - 128.0;
  const double red = pixel[2] - 128.0;
  pixel[0] = toByte(luma + 1.402 * red);
  pixel[1] = toByte(luma - 0.344136 * blue - 0.714136 * red);
  pixel[2] = toByte(luma + 1.772 * blue);
}

/// Which component is alpha: the one that says so, else the second of two or the fourth of four. -1 for none.
int alphaComponent(const opj_image_t& image) {
  const auto count = static_cast<int>(image.numcomps);
  for (int i = 0; i < count; ++i)
    if (image.comps[i].alpha != 0) return i;
  return count % 2 == 0 ? count - 1 : -1;
}

Result<BitmapImageRep> makeBitmap(const opj_image_t& image, PixelSize size) {
  // A palette may have made other components of those in the header.
  if (image.numcomps < 1 || image.numcomps > 4) return Error::invalidInput("JPEG 2000 picture has too many components");
  for (OPJ_UINT32 i = 0; i < image.numcomps; ++i) {
    const opj_image_comp_t& component = image.comps[i];
    if (component.data == nullptr || component.w != static_cast<OPJ_UINT32>(size.width) ||
        component.h != static_cast<OPJ_UINT32>(size.height) || component.prec < 1 || component.prec > 16)
      return Error::invalidInput("JPEG 2000 picture has unusable components");
  }
  // For Lab the library hands over its parameters as a profile without a length.
  const bool isLab = image.icc_profile_buf != nullptr && image.icc_profile_len == 0;
  if (image.color_space == OPJ_CLRSPC_EYCC || isLab)
    return Error::invalidInput("JPEG 2000 picture is in a colour space that is not read");
  const bool isInk = image.color_space == OPJ_CLRSPC_CMYK && image.numcomps == 4;

  const int alphaIndex = isInk ? -1 : alphaComponent(image);
  std::array<Channel, 4> channels;
  std::size_t colors = 0;
  for (int i = 0; i < static_cast<int>(image.numcomps); ++i)
    if (i != alphaIndex && colors < 4) channels[colors++] = Channel(image.comps[i]);
  if (colors == 0) return Error::invalidInput("JPEG 2000 picture has no colour");
  const bool isYcc = colors == 3 && image.color_space == OPJ_CLRSPC_SYCC;
  const bool isPremultiplied = alphaIndex >= 0 && image.comps[alphaIndex].alpha == 2;
  const Channel alpha = alphaIndex >= 0 ? Channel(image.comps[alphaIndex]) : Channel();

  BitmapLayout layout = BitmapLayout::rgba(size.width, size.height);
  layout.isPremultiplied = false;
  auto bitmap = BitmapImageRep::bitmapImageRepWithLayout(layout);
  if (!bitmap) return Error::tooLarge("JPEG 2000 picture is too large");
  const ColorModel model = isInk ? ColorModel::Cmyk : colors >= 3 ? ColorModel::Rgb : ColorModel::Grey;
  const PixelFormat format{model, 8, alphaIndex >= 0};
  const ColorTransform transform(format, isYcc ? ByteView() : ByteView(image.icc_profile_buf, image.icc_profile_len));
  Bytes row(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(format.samples()));
  std::size_t index = 0;
  for (int y = 0; y < size.height; ++y) {
    std::uint8_t* pixel = row.data();
    for (int x = 0; x < size.width; ++x, ++index, pixel += format.samples()) {
      for (int color = 0; color < format.colors(); ++color) {
        const unsigned value = channels[static_cast<std::size_t>(color)].at(index);
        pixel[color] = static_cast<std::uint8_t>(isInk ? 255 - value : value);
      }
      if (isYcc) convertFromYcc(pixel);
      if (!format.hasAlpha) continue;
      pixel[format.colors()] = static_cast<std::uint8_t>(alpha.at(index));
      for (int color = 0; isPremultiplied && color < format.colors(); ++color)
        pixel[color] = unpremultiplied(pixel[color], pixel[format.colors()]);
    }
    transform.convert(row.data(), bitmap->mutableRow(y), size.width);
  }
  return std::move(*bitmap);
}

}  // namespace

Result<BitmapImageRep> decodeJpeg2000(ByteView bytes, int maxPixels) {
  const Jpeg2000Header header = TRY(readJpeg2000Header(bytes));
  if (header.size.width > maxPixels || header.size.height > maxPixels)
    return Error::tooLarge("JPEG 2000 picture of " + std::to_string(header.size.width) + " x " +
                           std::to_string(header.size.height) + " pixels");
  const Picture picture = TRY(decode(bytes, header.isBoxed));
  return makeBitmap(*picture, header.size);
}

}  // namespace quorvane
