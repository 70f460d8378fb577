// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/TiffDirectories.h"

#include <algorithm>
#include <array>
#include <set>

#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

constexpr std::size_t entryLength = 12;
constexpr std::uint16_t makerNote = 0x927C;
/// Entries whose values are offsets of further directories: sub-pictures, Exif, GPS, interoperability.
constexpr std::array<std::uint16_t, 4> pointerTags{0x014A, 0x8769, 0x8825, 0xA005};
/// Bytes of one value by type; what is not listed counts as 1.
constexpr std::array<std::uint8_t, 14> typeLengths{1, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};

class Walk {
 public:
  explicit Walk(ByteView tiff) : _tiff(tiff), _isLittle(tiff.size() > 1 && tiff[0] == 'I') {}

  Result<std::vector<std::size_t>> run() {
    _open.push_back(_number(4, 4));
    while (!_open.empty()) {
      const std::uint64_t offset = _open.back();
      _open.pop_back();
      if (offset == 0 || !_seen.insert(offset).second) continue;
      if (_seen.size() > limits::metadataDirectories) return Error::tooLarge("a TIFF file's number of directories");
      _readDirectory(static_cast<std::size_t>(offset));
      if (_total > limits::metadataBytes) return Error::tooLarge("the metadata of a picture");
    }
    return std::move(_makerNotes);
  }

 private:
  /// 0 for what lies outside.
  [[nodiscard]] std::uint32_t _number(std::size_t at, std::size_t length) const {
    if (at > _tiff.size() || length > _tiff.size() - at) return 0;
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < length; ++i) value = value << 8 | _tiff[_isLittle ? at + length - 1 - i : at + i];
    return value;
  }

  void _readDirectory(std::size_t offset) {
    const std::size_t count = _number(offset, 2);
    if (count > limits::metadataEntries) return;  // nor does the library go on
    for (std::size_t i = 0; i < count; ++i) _readEntry(offset + 2 + i * entryLength);
    _open.push_back(_number(offset + 2 + count * entryLength, 4));
  }

  void _readEntry(std::size_t at) {
    if (at + entryLength > _tiff.size()) return;
    const auto tag = static_cast<std::uint16_t>(_number(at, 2));
    const std::size_t type = _number(at + 2, 2);
    const std::uint64_t count = _number(at + 4, 4);
    const std::uint64_t length = count * (type < typeLengths.size() ? typeLengths[type] : 1);
    // A value that reaches beyond the file is not read.
    if (length <= _tiff.size()) _total += length;
    if (tag == makerNote) _makerNotes.push_back(at);
    if (std::ranges::find(pointerTags, tag) == pointerTags.end()) return;
    if (count == 1) return _open.push_back(_number(at + 8, 4));
    for (std::uint64_t i = 0; i < std::min<std::uint64_t>(count, limits::metadataDirectories + 1); ++i)
      _open.push_back(_number(_number(at + 8, 4) + static_cast<std::size_t>(i) * 4, 4));
  }

  ByteView _tiff;
  bool _isLittle;
  std::uint64_t _total = 0;
  std::vector<std::uint64_t> _open;
  std::set<std::uint64_t> _seen;
  std::vector<std::size_t> _makerNotes;
};

}  // namespace

Result<std::vector<std::size_t>> checkTiffDirectories(ByteView tiff) {
  return Walk(tiff).run();
}

}  // namespace quorvane
