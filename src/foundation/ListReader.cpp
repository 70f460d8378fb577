// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/ListReader.h"

#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

constexpr std::size_t pieceBytes = std::size_t{16} << 10;

}  // namespace

ListReader::ListReader(ByteSource source, char separator)
    : _source(std::move(source)), _separator(separator), _piece(pieceBytes) {}

Result<std::optional<std::filesystem::path>> ListReader::next() {
  std::size_t looked = _start;
  for (;;) {
    const std::size_t end = _held.find(_separator, looked);
    const bool isLast = end == std::string::npos && _isAtEnd;
    if (end != std::string::npos || isLast) {
      std::string path = _held.substr(_start, isLast ? std::string::npos : end - _start);
      _start = looked = isLast ? _held.size() : end + 1;
      if (!isLast || !path.empty()) ++_line;
      if (path.empty() && isLast) return std::optional<std::filesystem::path>();
      if (path.empty() && _separator == '\n') continue;
      return std::optional(std::filesystem::path(std::move(path)));
    }
    looked = _held.size();
    if (looked - _start > limits::listedPathBytes) {
      _held.clear();
      _start = 0;
      _isAtEnd = true;
      return Error::tooLarge("entry " + std::to_string(_line + 1) + " is longer than any path");
    }
    _held.erase(0, _start);
    looked -= _start;
    _start = 0;
    const auto got = _source(_piece);
    if (got) _held.append(_piece.data(), *got);
    if (!got) {
      _isAtEnd = true;
      _held.clear();
      return got.error();
    }
    _isAtEnd = *got == 0;
  }
}

}  // namespace quorvane
