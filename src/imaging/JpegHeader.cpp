// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/JpegHeader.h"

#include <algorithm>
#include <array>
#include <optional>

#include "foundation/base/ByteReader.h"
#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

constexpr std::array<std::uint8_t, 6> exifStart = {'E', 'x', 'i', 'f', 0, 0};

/// Markers without a segment: TEM, RST0 to RST7, SOI.
bool standsAlone(std::uint8_t marker) {
  return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

/// SOF0 to SOF15; among them stand three others (DHT, JPG, DAC).
bool isFrame(std::uint8_t marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

/// The next marker, over coded data and filling; nullopt at the end.
std::optional<std::uint8_t> nextMarker(ByteReader& reader) {
  while (const auto byte = reader.readU8()) {
    if (*byte != 0xFF) continue;
    auto marker = reader.readU8();
    while (marker && *marker == 0xFF) marker = reader.readU8();
    if (marker && *marker != 0) return marker;
  }
  return std::nullopt;
}

}  // namespace

bool isJpeg(ByteView bytes) {
  return bytes.size() >= 3 && bytes[0] == 0xFF && bytes[1] == 0xD8 && bytes[2] == 0xFF;
}

Result<JpegHeader> readJpegHeader(ByteView bytes) {
  JpegHeader header;
  int scans = 0;
  ByteReader reader(bytes);
  while (const auto marker = nextMarker(reader)) {
    constexpr std::uint8_t endOfImage = 0xD9;
    constexpr std::uint8_t startOfScan = 0xDA;
    constexpr std::uint8_t app1 = 0xE1;
    if (*marker == endOfImage) break;
    if (standsAlone(*marker)) continue;
    const auto length = reader.readU16();
    const auto content = length && *length >= 2 ? reader.readBytes(*length - 2U) : std::nullopt;
    if (!content) break;
    if (*marker == startOfScan && ++scans > limits::jpegScans)
      return Error::tooLarge("JPEG file of more than " + std::to_string(limits::jpegScans) + " scans");
    if (*marker == app1 && header.exif.empty() && content->size() > exifStart.size() &&
        std::equal(exifStart.begin(), exifStart.end(), content->begin()))
      header.exif = content->subspan(exifStart.size());
    if (isFrame(*marker) && header.components == 0) {
      ByteReader frame(*content);
      const auto precision = frame.readU8();
      const auto height = frame.readU16();
      const auto width = frame.readU16();
      const auto components = frame.readU8();
      if (!precision || !components) break;
      header.size = {*width, *height};
      header.components = *components;
    }
  }
  if (header.components == 0) return Error::invalidInput("JPEG file is cut off");
  return header;
}

}  // namespace quorvane
