// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/Jpeg2000Header.h"

#include <algorithm>
#include <array>
#include <string>

#include "foundation/base/ByteReader.h"
#include "foundation/base/Limits.h"
#include "imaging/Jpeg2000.h"

namespace quorvane {

namespace {

constexpr std::array<std::uint8_t, 12> boxedSignature = {0, 0, 0, 12, 'j', 'P', ' ', ' ', '\r', '\n', 0x87, '\n'};
constexpr std::array<std::uint8_t, 4> codestreamSignature = {0xFF, 0x4F, 0xFF, 0x51};

/// Markers of the codestream (table A.2).
enum Marker : std::uint16_t {
  SOC = 0xFF4F,
  SIZ = 0xFF51,
  COD = 0xFF52,
  COC = 0xFF53,
  SOT = 0xFF90,
  SOD = 0xFF93,
  EOC = 0xFFD9,
};

/// Those that cost the decoder nothing to speak of: TLM, PLM, PLT, QCD, QCC, RGN, POC, PPM, PPT, CRG, COM.
constexpr std::array<std::uint16_t, 11> skippedMarkers = {0xFF55, 0xFF57, 0xFF58, 0xFF5C, 0xFF5D, 0xFF5E,
                                                          0xFF5F, 0xFF60, 0xFF61, 0xFF63, 0xFF64};

bool startsWith(ByteView bytes, ByteView start) {
  return bytes.size() >= start.size() && std::equal(start.begin(), start.end(), bytes.begin());
}

Error cutOff() {
  return Error::invalidInput("JPEG 2000 file is cut off");
}

/// From the codestream's first byte on; the codestream is the content of the first box 'jp2c'.
Result<ByteView> findCodestream(ByteView bytes) {
  ByteReader reader(bytes);
  while (!reader.atEnd()) {
    const auto length = reader.readU32();
    const auto type = reader.readCode();
    if (!length || !type) return cutOff();
    std::uint64_t content = *length;
    std::uint64_t taken = 8;
    if (*length == 1) {
      const auto high = reader.readU32();
      const auto low = reader.readU32();
      if (!high || !low) return cutOff();
      content = (std::uint64_t{*high} << 32) | *low;
      taken = 16;
    }
    if (*length == 0) content = taken + reader.remaining();  // to the end of the file
    if (content < taken) return Error::invalidInput("JPEG 2000 file has a box without room for its header");
    content -= taken;
    // The last box may state more than there is; the decoder then says where the pixels end.
    if (*type == FourCharCode("jp2c")) return reader.readRest();
    if (content > reader.remaining() || !reader.skip(static_cast<std::size_t>(content))) return cutOff();
  }
  return Error::invalidInput("JPEG 2000 file has no picture");
}

std::int64_t ceilDivided(std::int64_t value, std::int64_t by) {
  return (value + by - 1) / by;
}

/// Walks the markers and adds up what they will cost.
class HeaderWalk {
 public:
  explicit HeaderWalk(ByteView codestream) : _reader(codestream) {}

  Result<Jpeg2000Header> run() {
    if (_reader.readU16() != SOC || _reader.readU16() != SIZ)
      return Error::invalidInput("JPEG 2000 codestream does not begin with its size");
    TRY_VOID(readSize());
    TRY_VOID(readMarkers());
    if (_blocks == 0) return Error::invalidInput("JPEG 2000 header does not say how it is coded");
    return _header;
  }

 private:
  /// The segment behind a marker: two bytes of length, which count themselves.
  Result<ByteReader> segment() {
    const auto length = _reader.readU16();
    if (!length || *length < 2) return cutOff();
    const auto content = _reader.readBytes(*length - 2U);
    if (!content) return cutOff();
    return ByteReader(*content);
  }

  Result<void> readSize() {
    ByteReader reader = TRY(segment());
    if (!reader.skip(2)) return cutOff();  // capabilities
    std::array<std::uint32_t, 8> fields{};
    for (auto& field : fields) {
      const auto value = reader.readU32();
      if (!value) return cutOff();
      field = *value;
    }
    const auto [right, bottom, left, top, tileWidth, tileHeight, tileLeft, tileTop] = fields;
    const auto components = reader.readU16();
    if (!components) return cutOff();
    if (left >= right || top >= bottom || right > 0x7FFFFFFF || bottom > 0x7FFFFFFF || tileWidth == 0 ||
        tileHeight == 0 || tileLeft > left || tileTop > top)
      return Error::invalidInput("JPEG 2000 header states an impossible size");
    if (*components < 1 || *components > 4)
      return Error::invalidInput("JPEG 2000 picture has " + std::to_string(*components) + " components");
    for (int component = 0; component < *components; ++component) {
      const auto depth = reader.readU8();
      const auto xStep = reader.readU8();
      const auto yStep = reader.readU8();
      if (!depth || !xStep || !yStep) return cutOff();
      if ((*depth & 0x7F) + 1 > 16) return Error::invalidInput("JPEG 2000 picture has more than 16 bits a sample");
      if (*xStep != 1 || *yStep != 1) return Error::invalidInput("JPEG 2000 picture has components of unequal size");
    }
    _header.size = {static_cast<int>(right - left), static_cast<int>(bottom - top)};
    _header.components = *components;
    if (area() > limits::jpeg2000Area) return tooLarge("of too many pixels");
    _tiles = ceilDivided(std::int64_t{right} - tileLeft, tileWidth) *
             ceilDivided(std::int64_t{bottom} - tileTop, tileHeight);
    if (_tiles > limits::jpeg2000Tiles) return tooLarge("of too many tiles");
    _tileWidth = std::min<std::int64_t>(tileWidth, _header.size.width);
    _tileHeight = std::min<std::int64_t>(tileHeight, _header.size.height);
    return {};
  }

  /// The main header and every tile-part's. Whatever the decoder might read otherwise than we do is refused: what we
  /// do not see we cannot bound.
  Result<void> readMarkers() {
    std::size_t tilePartEnd = 0;
    while (true) {
      const auto marker = _reader.readU16();
      if (!marker || *marker == EOC) return {};
      if (*marker == SOD) {
        if (tilePartEnd < _reader.position()) return Error::invalidInput("JPEG 2000 tile states an impossible length");
        if (!_reader.seek(tilePartEnd)) return {};  // cut off: the decoder says so
      } else if (*marker == SOT) {
        tilePartEnd = TRY(readTilePart());
      } else if (*marker == COD || *marker == COC) {
        TRY_VOID(readCoding(*marker == COD));
      } else if (std::find(skippedMarkers.begin(), skippedMarkers.end(), *marker) != skippedMarkers.end()) {
        if (const auto skipped = segment(); !skipped) return skipped.error();
      } else {
        return Error::invalidInput("JPEG 2000 codestream has an unknown marker");
      }
    }
  }

  /// Where the tile-part ends whose marker was just read.
  Result<std::size_t> readTilePart() {
    const std::size_t start = _reader.position() - 2;
    ByteReader reader = TRY(segment());
    if (!reader.skip(2)) return cutOff();  // index of the tile
    const auto length = reader.readU32();
    if (!length) return cutOff();
    return *length == 0 ? _reader.size() : start + *length;  // 0: to the end of the codestream
  }

  /// COD says it for all components, COC for one, with the number of layers left as it was.
  Result<void> readCoding(bool isDefault) {
    ByteReader reader = TRY(segment());
    bool hasPrecincts = false;
    const auto style = [&](std::optional<std::uint8_t> value) {
      hasPrecincts = value && (*value & 1) != 0;
      return value.has_value();
    };
    if (isDefault) {
      const bool hasStyle = style(reader.readU8());
      const bool hasOrder = reader.skip(1);
      const auto layers = reader.readU16();
      if (!hasStyle || !hasOrder || !layers || !reader.skip(1)) return cutOff();
      _layers = std::max<std::int64_t>(_layers, *layers);
    } else if (!reader.skip(1) || !style(reader.readU8())) {
      return cutOff();
    }
    const auto levels = reader.readU8();
    const auto blockWidth = reader.readU8();
    const auto blockHeight = reader.readU8();
    if (!levels || !blockWidth || !blockHeight || !reader.skip(2)) return cutOff();
    if (*levels > 32 || *blockWidth > 8 || *blockHeight > 8)
      return Error::invalidInput("JPEG 2000 header states an impossible coding");
    return addCosts(reader, hasPrecincts, *levels, *blockWidth + 2, *blockHeight + 2);
  }

  /// Code blocks and precincts of all resolutions of all tiles and components, as if all were coded this way. Sizes are
  /// given as powers of two.
  Result<void> addCosts(ByteReader& reader, bool hasPrecincts, int levels, int blockWidth, int blockHeight) {
    std::int64_t blocks = 0;
    std::int64_t precincts = 0;
    for (int resolution = 0; resolution <= levels; ++resolution) {
      int precinctWidth = 15;
      int precinctHeight = 15;
      if (hasPrecincts) {
        const auto sizes = reader.readU8();
        if (!sizes) return cutOff();
        precinctWidth = *sizes & 15;
        precinctHeight = *sizes >> 4;
      }
      const int halving = resolution == 0 ? 0 : 1;
      if (precinctWidth < halving || precinctHeight < halving)
        return Error::invalidInput("JPEG 2000 header states an impossible coding");
      // One more each way, as a tile need not begin where a block does.
      const auto count = [&](std::int64_t length, int shrink, int size) {
        return ceilDivided(ceilDivided(length, std::int64_t{1} << shrink), std::int64_t{1} << size) + 1;
      };
      const int shrink = levels - resolution;
      precincts += count(_tileWidth, shrink, precinctWidth) * count(_tileHeight, shrink, precinctHeight);
      const int bands = resolution == 0 ? 1 : 3;
      blocks += bands * count(_tileWidth, shrink + halving, std::min(blockWidth, precinctWidth - halving)) *
                count(_tileHeight, shrink + halving, std::min(blockHeight, precinctHeight - halving));
    }
    _blocks = std::max(_blocks, blocks * _tiles * _header.components);
    _precincts = std::max(_precincts, precincts * _tiles * _header.components);
    // A precinct without blocks costs about as much as a block.
    if (_blocks > limits::jpeg2000Blocks || _precincts > limits::jpeg2000Blocks)
      return tooLarge("of too many code blocks");
    if (_precincts * _layers > limits::jpeg2000Packets) return tooLarge("of too many packets");
    return {};
  }

  [[nodiscard]] std::int64_t area() const { return std::int64_t{_header.size.width} * _header.size.height; }

  [[nodiscard]] Error tooLarge(const char* what) const {
    return Error::tooLarge("JPEG 2000 picture of " + std::to_string(_header.size.width) + " x " +
                           std::to_string(_header.size.height) + " pixels is " + what);
  }

  ByteReader _reader;
  Jpeg2000Header _header;
  std::int64_t _tiles = 0;
  std::int64_t _tileWidth = 0;
  std::int64_t _tileHeight = 0;
  std::int64_t _layers = 1;
  std::int64_t _blocks = 0;
  std::int64_t _precincts = 0;
};

}  // namespace

bool isJpeg2000(ByteView bytes) {
  return startsWith(bytes, boxedSignature) || startsWith(bytes, codestreamSignature);
}

Result<Jpeg2000Header> readJpeg2000Header(ByteView bytes) {
  if (!isJpeg2000(bytes)) return Error::invalidInput("not a JPEG 2000 file");
  const bool isBoxed = startsWith(bytes, boxedSignature);
  const ByteView codestream = isBoxed ? TRY(findCodestream(bytes)) : bytes;
  Jpeg2000Header header = TRY(HeaderWalk(codestream).run());
  header.isBoxed = isBoxed;
  return header;
}

}  // namespace quorvane
