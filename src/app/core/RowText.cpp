// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/RowText.h"

#include <algorithm>

#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

constexpr std::size_t pieceBytes = std::size_t{16} << 10;

}  // namespace

RowText::RowText(ByteSource source) : _source(std::move(source)), _piece(pieceBytes) {}

bool RowText::fill() {
  if (_isAtEnd) return false;
  _held.erase(0, std::exchange(_start, 0));
  const auto got = _source(_piece);
  if (got) _held.append(_piece.data(), *got);
  if (!got) _failure = got.error();
  _isAtEnd = !got || *got == 0;
  return !_isAtEnd;
}

std::optional<char> RowText::peek(std::size_t distance) {
  while (_start + distance >= _held.size())
    if (!fill()) return std::nullopt;
  return _held[_start + distance];
}

void RowText::consume(std::size_t count) {
  _line += static_cast<std::size_t>(std::ranges::count(view(count), '\n'));
  _start += count;
}

void RowText::skipLine() {
  for (;;) {
    const std::size_t end = _held.find('\n', _start);
    if (end != std::string::npos) return consume(end + 1 - _start);
    _start = _held.size();
    if (!fill()) return;
  }
}

std::optional<std::size_t> RowText::lineLength() {
  std::size_t length = 0;
  for (auto c = peek(0); c && *c != '\n'; c = peek(++length))
    if (length >= limits::rowBytes) return std::nullopt;
  const bool endsWithReturn = length > 0 && *peek(length - 1) == '\r' && peek(length);
  return endsWithReturn ? length - 1 : length;
}

}  // namespace quorvane
