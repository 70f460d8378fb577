// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/ColorTransform.h"

#include <lcms2.h>

#include <algorithm>
#include <type_traits>
#include <utility>

#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

struct ContextDeleter {
  void operator()(cmsContext context) const { cmsDeleteContext(context); }
};
struct ProfileDeleter {
  void operator()(cmsHPROFILE profile) const { cmsCloseProfile(profile); }
};
struct TransformDeleter {
  void operator()(cmsHTRANSFORM transform) const { cmsDeleteTransform(transform); }
};
using Context = std::unique_ptr<std::remove_pointer_t<cmsContext>, ContextDeleter>;
using Profile = std::unique_ptr<void, ProfileDeleter>;
using Transform = std::unique_ptr<void, TransformDeleter>;

void onError(cmsContext /*context*/, cmsUInt32Number /*code*/, const char* /*text*/) {}

/// The colour space that a profile for the model names.
cmsColorSpaceSignature spaceOf(ColorModel model) {
  switch (model) {
    case ColorModel::Grey:
      return cmsSigGrayData;
    case ColorModel::Cmyk:
      return cmsSigCmykData;
    case ColorModel::Lab:
      return cmsSigLabData;
    default:
      return cmsSigRgbData;
  }
}

cmsUInt32Number typeOf(const PixelFormat& format) {
  const int space = format.model == ColorModel::Grey   ? PT_GRAY
                    : format.model == ColorModel::Cmyk ? PT_CMYK
                    : format.model == ColorModel::Lab  ? PT_Lab
                                                       : PT_RGB;
  const bool isReversed = format.model == ColorModel::Cmyk;
  return static_cast<cmsUInt32Number>(COLORSPACE_SH(space) | CHANNELS_SH(format.colors()) |
                                      BYTES_SH(format.bitsPerSample / 8) | EXTRA_SH(format.hasAlpha ? 1 : 0) |
                                      FLAVOR_SH(isReversed ? 1 : 0));
}

Profile linearProfile(cmsContext context) {
  // The white point and primaries of sRGB (IEC 61966-2-1).
  const cmsCIExyY white = {0.3127, 0.3290, 1.0};
  const cmsCIExyYTRIPLE primaries = {{0.64, 0.33, 1.0}, {0.30, 0.60, 1.0}, {0.15, 0.06, 1.0}};
  cmsToneCurve* line = cmsBuildGamma(context, 1.0);
  cmsToneCurve* const lines[] = {line, line, line};
  Profile profile(cmsCreateRGBProfileTHR(context, &white, &primaries, lines));
  cmsFreeToneCurve(line);
  return profile;
}

/// The profile of the file when it fits, else that of a model that cannot do without; null when none is needed.
Profile sourceProfile(cmsContext context, ColorModel model, ByteView bytes) {
  if (!bytes.empty() && bytes.size() <= limits::profileBytes && model != ColorModel::Lab) {
    Profile profile(cmsOpenProfileFromMemTHR(context, bytes.data(), static_cast<cmsUInt32Number>(bytes.size())));
    if (profile && cmsGetColorSpace(profile.get()) == spaceOf(model)) return profile;
  }
  if (model == ColorModel::Lab) return Profile(cmsCreateLab4ProfileTHR(context, nullptr));
  if (model == ColorModel::LinearRgb) return linearProfile(context);
  return nullptr;
}

template <typename Sample>
std::uint8_t toByte(Sample value) {
  if constexpr (sizeof(Sample) == 1)
    return value;
  else
    return static_cast<std::uint8_t>((value * 255U + 32767U) / 65535U);
}

/// Without a profile: a copy, or light through one ink after the other.
template <typename Sample>
void convertPlainly(const PixelFormat& format, const Sample* from, std::uint8_t* to, int pixels) {
  const int samples = format.samples();
  const bool isCmyk = format.model == ColorModel::Cmyk;
  const bool isGrey = format.model == ColorModel::Grey;
  for (int i = 0; i < pixels; ++i, from += samples, to += 4) {
    for (int color = 0; color < 3; ++color) {
      const unsigned value = toByte(from[isGrey ? 0 : color]);
      to[color] = static_cast<std::uint8_t>(isCmyk ? (value * toByte(from[3]) + 127) / 255 : value);
    }
    to[3] = format.hasAlpha ? toByte(from[samples - 1]) : std::uint8_t{255};
  }
}

}  // namespace

struct ColorTransform::Engine {
  Context context;
  Transform transform;  ///< before its context
};

ColorTransform::ColorTransform(const PixelFormat& format, ByteView profile) : _format(format) {
  auto engine = std::make_unique<Engine>();
  engine->context.reset(cmsCreateContext(nullptr, nullptr));
  if (!engine->context) return;
  cmsContext context = engine->context.get();
  cmsSetLogErrorHandlerTHR(context, onError);
  const Profile from = sourceProfile(context, format.model, profile);
  if (!from) return;
  const Profile to(cmsCreate_sRGBProfileTHR(context));
  cmsUInt32Number flags = cmsFLAGS_BLACKPOINTCOMPENSATION;
  if (format.hasAlpha) flags |= cmsFLAGS_COPY_ALPHA;
  engine->transform.reset(cmsCreateTransformTHR(context, from.get(), typeOf(format), to.get(), TYPE_RGBA_8,
                                                INTENT_RELATIVE_COLORIMETRIC, flags));
  if (engine->transform) _engine = std::move(engine);
}

ColorTransform::~ColorTransform() = default;
ColorTransform::ColorTransform(ColorTransform&&) noexcept = default;
ColorTransform& ColorTransform::operator=(ColorTransform&&) noexcept = default;

void ColorTransform::convert(const void* from, std::uint8_t* to, int pixels) const {
  if (_engine) {
    // The engine leaves an alpha that it has no source for as it is.
    if (!_format.hasAlpha)
      for (int i = 0; i < pixels; ++i) to[i * 4 + 3] = 255;
    cmsDoTransform(_engine->transform.get(), from, to, static_cast<cmsUInt32Number>(pixels));
  } else if (_format.bitsPerSample == 16) {
    convertPlainly(_format, static_cast<const std::uint16_t*>(from), to, pixels);
  } else {
    convertPlainly(_format, static_cast<const std::uint8_t*>(from), to, pixels);
  }
}

}  // namespace quorvane
