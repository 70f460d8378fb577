// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/ValueArchives.h"

#include <array>
#include <bit>
#include <cmath>

#include "foundation/base/ByteReader.h"
#include "foundation/base/ByteWriter.h"
#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

constexpr FourCharCode colorTag("qcOL");
constexpr FourCharCode fontTag("qfNT");
constexpr std::uint8_t archiveVersion = 1;

// Numbers in files: never renumber.
enum class Space : std::uint8_t { Rgb = 1, Hsv = 2, Cmyk = 3, Hsl = 4, ExtendedRgb = 5 };

// Alpha last, the spare ones zero. Qt keeps 16 bits of each, which a float holds exactly.
using Components = std::array<float, 5>;

std::optional<Space> takeApart(const QColor& color, Components& parts) {
  auto& [a, b, c, d, e] = parts;
  switch (color.spec()) {
    case QColor::Rgb:
      color.getRgbF(&a, &b, &c, &e);
      return Space::Rgb;
    case QColor::Hsv:
      color.getHsvF(&a, &b, &c, &e);
      return Space::Hsv;
    case QColor::Cmyk:
      color.getCmykF(&a, &b, &c, &d, &e);
      return Space::Cmyk;
    case QColor::Hsl:
      color.getHslF(&a, &b, &c, &e);
      return Space::Hsl;
    case QColor::ExtendedRgb:
      color.getRgbF(&a, &b, &c, &e);
      return Space::ExtendedRgb;
    case QColor::Invalid:
      break;
  }
  return std::nullopt;
}

bool isFraction(float value) {
  return value >= 0 && value <= 1;
}

// Qt says -1 for the hue of a grey.
bool isHue(float value) {
  return isFraction(value) || value == -1;
}

std::optional<QColor> putTogether(Space space, const Components& parts) {
  const auto& [a, b, c, d, e] = parts;
  if (!isFraction(e)) return std::nullopt;
  if (space == Space::ExtendedRgb) {
    for (const float part : {a, b, c})
      if (!(std::fabs(part) <= 65504.0F)) return std::nullopt;  // the largest half-precision number
    // Set one by one, components within 0 to 1 do not turn it into a plain colour.
    QColor color = QColor::fromRgbF(2, 0, 0, e);
    color.setRedF(a);
    color.setGreenF(b);
    color.setBlueF(c);
    return color;
  }
  if (!isFraction(b) || !isFraction(c) || !isFraction(d)) return std::nullopt;
  switch (space) {
    case Space::Rgb:
      return isFraction(a) ? std::optional(QColor::fromRgbF(a, b, c, e)) : std::nullopt;
    case Space::Hsv:
      return isHue(a) ? std::optional(QColor::fromHsvF(a, b, c, e)) : std::nullopt;
    case Space::Cmyk:
      return isFraction(a) ? std::optional(QColor::fromCmykF(a, b, c, d, e)) : std::nullopt;
    case Space::Hsl:
      return isHue(a) ? std::optional(QColor::fromHslF(a, b, c, e)) : std::nullopt;
    default:
      return std::nullopt;
  }
}

ByteWriter begin(FourCharCode tag) {
  ByteWriter writer;
  writer.writeCode(tag);
  writer.writeU8(archiveVersion);
  return writer;
}

QByteArray finish(const ByteWriter& writer) {
  return {reinterpret_cast<const char*>(writer.bytes().data()), static_cast<qsizetype>(writer.size())};
}

/// Behind tag and version; nullopt when they are others.
std::optional<ByteReader> open(const QByteArray& bytes, FourCharCode tag) {
  ByteReader reader({reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())});
  if (reader.readCode() != tag || reader.readU8() != archiveVersion) return std::nullopt;
  return reader;
}

/// Length in bytes, UTF-8.
bool writeName(ByteWriter& writer, const QString& name) {
  const QByteArray text = name.toUtf8();
  if (static_cast<std::size_t>(text.size()) > limits::fontNameBytes || QString::fromUtf8(text) != name) return false;
  writer.writeU16(static_cast<std::uint16_t>(text.size()));
  writer.writeBytes({reinterpret_cast<const std::uint8_t*>(text.constData()), static_cast<std::size_t>(text.size())});
  return true;
}

std::optional<QString> readName(ByteReader& reader) {
  const auto length = reader.readU16();
  if (!length || *length > limits::fontNameBytes) return std::nullopt;
  const auto text = reader.readBytes(*length);
  if (!text) return std::nullopt;
  const QByteArrayView bytes(text->data(), static_cast<qsizetype>(text->size()));
  if (!bytes.isValidUtf8()) return std::nullopt;
  return QString::fromUtf8(bytes);
}

}  // namespace

QByteArray archiveColor(const QColor& color) {
  Components parts{};
  const auto space = takeApart(color, parts);
  if (!space) return {};
  ByteWriter writer = begin(colorTag);
  writer.writeU8(static_cast<std::uint8_t>(*space));
  for (const float part : parts) writer.writeU32(std::bit_cast<std::uint32_t>(part));
  return finish(writer);
}

std::optional<QColor> unarchiveColor(const QByteArray& bytes) {
  auto reader = open(bytes, colorTag);
  if (!reader) return std::nullopt;
  const auto space = reader->readU8();
  Components parts{};
  for (float& part : parts) {
    const auto bits = reader->readU32();
    if (!bits) return std::nullopt;
    part = std::bit_cast<float>(*bits);
  }
  if (!reader->atEnd()) return std::nullopt;
  return putTogether(static_cast<Space>(*space), parts);
}

QByteArray archiveFont(const FontDescription& font) {
  ByteWriter writer = begin(fontTag);
  const auto bits = std::bit_cast<std::uint64_t>(font.size);
  writer.writeU32(static_cast<std::uint32_t>(bits >> 32));
  writer.writeU32(static_cast<std::uint32_t>(bits));
  if (!std::isfinite(font.size) || !writeName(writer, font.family) || !writeName(writer, font.style)) return {};
  return finish(writer);
}

std::optional<FontDescription> unarchiveFont(const QByteArray& bytes) {
  auto reader = open(bytes, fontTag);
  if (!reader) return std::nullopt;
  const auto high = reader->readU32();
  const auto low = reader->readU32();
  if (!high || !low) return std::nullopt;
  const auto size = std::bit_cast<double>(std::uint64_t{*high} << 32 | *low);
  auto family = readName(*reader);
  auto style = family ? readName(*reader) : std::nullopt;
  if (!style || !reader->atEnd() || !std::isfinite(size)) return std::nullopt;
  return FontDescription{.family = *std::move(family), .style = *std::move(style), .size = size};
}

}  // namespace quorvane
