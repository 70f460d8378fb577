// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/PsdFile.h"

#include <algorithm>
#include <array>
#include <string>

#include "foundation/base/ByteReader.h"
#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

enum ResourceId : std::uint16_t { IccProfile = 1039, TransparentIndex = 1047 };
enum Compression : std::uint16_t { Raw = 0, PackBits = 1 };
constexpr std::size_t paletteBytes = 768;

Error cutOff() {
  return Error::invalidInput("PSD file is cut off");
}

/// Blocks that state their length in eight bytes in a PSB.
bool hasLongLength(FourCharCode key) {
  static constexpr std::array<FourCharCode, 13> keys = {
      FourCharCode("LMsk"), FourCharCode("Lr16"), FourCharCode("Lr32"), FourCharCode("Layr"), FourCharCode("Mt16"),
      FourCharCode("Mt32"), FourCharCode("Mtrn"), FourCharCode("Alph"), FourCharCode("FMsk"), FourCharCode("lnk2"),
      FourCharCode("FEid"), FourCharCode("FXid"), FourCharCode("PxSD")};
  return std::ranges::find(keys, key) != keys.end();
}

class Parser {
 public:
  explicit Parser(ByteView bytes) : _reader(bytes) {}

  Result<PsdFile> run() {
    TRY_VOID(readHeader());
    const ByteView modeData = TRY(section(false));
    if (_file.mode == PsdMode::Indexed) {
      if (modeData.size() < paletteBytes) return Error::invalidInput("PSD file has no palette");
      _file.palette = modeData.first(paletteBytes);
    }
    readResources(TRY(section(false)));
    readLayers(TRY(section(_isLarge)));
    _file.hasTransparency = _file.hasTransparency && _file.channels > _file.colors();
    TRY_VOID(findRows());
    return std::move(_file);
  }

 private:
  Result<void> readHeader() {
    const auto signature = _reader.readCode();
    const auto version = _reader.readU16();
    if (!signature || *signature != FourCharCode("8BPS") || !version || (*version != 1 && *version != 2))
      return Error::invalidInput("not a layered picture (PSD)");
    _isLarge = *version == 2;
    if (!_reader.skip(6)) return cutOff();
    const auto channels = _reader.readU16();
    const auto height = _reader.readU32();
    const auto width = _reader.readU32();
    const auto depth = _reader.readU16();
    const auto mode = _reader.readU16();
    if (!mode) return cutOff();
    if (*width == 0 || *height == 0) return Error::invalidInput("PSD picture has no pixels");
    if (*width > std::uint32_t{limits::picturePixels} || *height > std::uint32_t{limits::picturePixels} ||
        std::int64_t{*width} * *height > limits::pictureArea)
      return Error::tooLarge("picture of " + std::to_string(*width) + " x " + std::to_string(*height) + " pixels");
    _file.width = static_cast<int>(*width);
    _file.height = static_cast<int>(*height);
    _file.channels = *channels;
    _file.bitsPerSample = *depth;
    _file.mode = static_cast<PsdMode>(*mode);
    return checkMode();
  }

  [[nodiscard]] Result<void> checkMode() const {
    const int depth = _file.bitsPerSample;
    if (_file.mode == PsdMode::Multichannel) return Error::invalidInput("PSD pictures of separate inks are not read");
    if (_file.colors() == 0) return Error::invalidInput("PSD picture is in a colour mode that is not read");
    const bool isRealDepth = _file.mode == PsdMode::Bitmap    ? depth == 1
                             : _file.mode == PsdMode::Indexed ? depth == 8
                                                              : depth == 8 || depth == 16 || depth == 32;
    // Floating point is for light; in print and Lab modes it does not occur.
    if (!isRealDepth || (depth == 32 && (_file.mode == PsdMode::Cmyk || _file.mode == PsdMode::Lab)))
      return Error::invalidInput("PSD picture has " + std::to_string(depth) + " bits a sample in a mode without them");
    if (_file.channels < _file.colors() || _file.channels > limits::psdChannels)
      return Error::invalidInput("PSD picture has " + std::to_string(_file.channels) + " channels");
    return {};
  }

  std::optional<std::uint64_t> readLength(bool isLong) {
    if (!isLong) return _reader.readU32();
    const auto high = _reader.readU32();
    const auto low = _reader.readU32();
    if (!low) return std::nullopt;
    return (std::uint64_t{*high} << 32) | *low;
  }

  /// A length and as many bytes.
  Result<ByteView> section(bool isLong) {
    const auto length = readLength(isLong);
    if (!length || *length > _reader.remaining()) return cutOff();
    return *_reader.readBytes(static_cast<std::size_t>(*length));
  }

  /// What is broken in here costs the profile, not the picture.
  void readResources(ByteView resources) {
    ByteReader reader(resources);
    for (std::size_t i = 0; i < limits::psdBlocks; ++i) {
      if (!reader.readCode()) return;
      const auto id = reader.readU16();
      const auto nameLength = reader.readU8();
      // The name is padded to an even length with its length byte.
      if (!id || !nameLength || !reader.skip(*nameLength | 1U)) return;
      const auto size = reader.readU32();
      const auto data = size ? reader.readBytes(*size) : std::nullopt;
      if (!data) return;
      if (*id == IccProfile) _file.profile = *data;
      if (*id == TransparentIndex && _file.mode == PsdMode::Indexed)
        if (const auto index = ByteReader(*data).readU16(); index && *index < 256) _file.transparentIndex = *index;
      if (size && *size % 2 != 0 && !reader.skip(1)) return;
    }
  }

  /// A negative number of layers says that the first further channel is the picture's transparency. Deep pictures have
  /// their layers in a block behind the usual place.
  void readLayers(ByteView layers) {
    Parser inside(layers);
    inside._isLarge = _isLarge;
    const auto info = inside.section(_isLarge);
    if (!info) return;
    if (isCountNegative(*info)) _file.hasTransparency = true;
    if (!inside.section(false)) return;  // the mask for all layers
    for (std::size_t i = 0; i < limits::psdBlocks; ++i) {
      const auto signature = inside._reader.readCode();
      const auto key = inside._reader.readCode();
      if (!key || (*signature != FourCharCode("8BIM") && *signature != FourCharCode("8B64"))) return;
      const auto block = inside.section(_isLarge && hasLongLength(*key));
      if (!block) return;
      const bool holdsLayers =
          *key == FourCharCode("Lr16") || *key == FourCharCode("Lr32") || *key == FourCharCode("Layr");
      if (holdsLayers && isCountNegative(*block)) _file.hasTransparency = true;
      if (!inside._reader.skip((4 - block->size() % 4) % 4)) return;
    }
  }

  static bool isCountNegative(ByteView info) {
    const auto count = ByteReader(info).readU16();
    return count && (*count & 0x8000U) != 0;
  }

  Result<void> findRows() {
    const auto compression = _reader.readU16();
    if (!compression) return cutOff();
    const std::size_t rows = static_cast<std::size_t>(_file.height) * static_cast<std::size_t>(_file.channels);
    const std::size_t used = usedRows();
    if (*compression == Raw) {
      _file.pixels = _reader.readRest();
      if (_file.pixels.size() / _file.bytesPerRow() < used) return cutOff();
      return {};
    }
    if (*compression != PackBits) return Error::invalidInput("PSD picture is compressed in a way that is not read");
    _file.isPacked = true;
    const auto lengths = _reader.readBytes(rows * (_isLarge ? 4 : 2));
    if (!lengths) return cutOff();
    _file.pixels = _reader.readRest();
    ByteReader reader(*lengths);
    // A run of two bytes stands for 128 at most.
    const std::size_t least = (_file.bytesPerRow() + 127) / 128 * 2;
    std::size_t start = 0;
    _file.starts.reserve(used + 1);
    _file.starts.push_back(0);
    for (std::size_t row = 0; row < used; ++row) {
      const std::size_t length = _isLarge ? *reader.readU32() : *reader.readU16();
      if (length < least) return Error::invalidInput("PSD picture has a row that is too short");
      if (length > _file.pixels.size() - start) return cutOff();
      start += length;
      _file.starts.push_back(start);
    }
    return {};
  }

  /// Saved selections behind the colours are not looked at.
  [[nodiscard]] std::size_t usedRows() const {
    return static_cast<std::size_t>(_file.height) *
           static_cast<std::size_t>(_file.colors() + (_file.hasTransparency ? 1 : 0));
  }

  ByteReader _reader;
  bool _isLarge = false;
  PsdFile _file;
};

/// One row of runs and literals. What would go past its end is dropped.
bool unpackRow(ByteView packed, std::span<std::uint8_t> row) {
  std::size_t filled = 0;
  std::size_t at = 0;
  while (filled < row.size() && at < packed.size()) {
    const unsigned head = packed[at++];
    if (head == 128) continue;  // no operation
    const std::size_t room = row.size() - filled;
    if (head < 128) {
      const std::size_t count = std::min<std::size_t>(head + 1, packed.size() - at);
      const std::size_t taken = std::min(count, room);
      std::copy_n(packed.begin() + static_cast<std::ptrdiff_t>(at), taken,
                  row.begin() + static_cast<std::ptrdiff_t>(filled));
      at += count;
      filled += taken;
    } else {
      if (at == packed.size()) break;
      const std::size_t taken = std::min<std::size_t>(257 - head, room);
      std::fill_n(row.begin() + static_cast<std::ptrdiff_t>(filled), taken, packed[at++]);
      filled += taken;
    }
  }
  return filled == row.size();
}

}  // namespace

int PsdFile::colors() const {
  switch (mode) {
    case PsdMode::Bitmap:
    case PsdMode::Grey:
    case PsdMode::Indexed:
    case PsdMode::Duotone:
      return 1;
    case PsdMode::Rgb:
    case PsdMode::Lab:
      return 3;
    case PsdMode::Cmyk:
      return 4;
    default:
      return 0;
  }
}

std::size_t PsdFile::bytesPerRow() const {
  return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bitsPerSample) + 7) / 8;
}

Result<void> PsdFile::readRow(int channel, int y, std::span<std::uint8_t> row) const {
  const std::size_t index =
      static_cast<std::size_t>(channel) * static_cast<std::size_t>(height) + static_cast<std::size_t>(y);
  if (isPacked) {
    const ByteView packed = pixels.subspan(starts[index], starts[index + 1] - starts[index]);
    if (!unpackRow(packed, row)) return Error::invalidInput("PSD picture has a row that is too short");
  } else {
    std::ranges::copy(pixels.subspan(index * row.size(), row.size()), row.begin());
  }
  return {};
}

bool isPsd(ByteView bytes) {
  return ByteReader(bytes).readCode() == FourCharCode("8BPS");
}

Result<PsdFile> readPsdFile(ByteView bytes) {
  return Parser(bytes).run();
}

}  // namespace quorvane
