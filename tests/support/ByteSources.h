// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <string>

#include "foundation/ListReader.h"

namespace quorvane::test {

/// Gives the text in pieces of so many bytes at most.
inline ByteSource inPieces(std::string text, std::size_t piece) {
  return [text = std::move(text), piece, at = std::size_t{0}](std::span<char> to) mutable -> Result<std::size_t> {
    const std::size_t count = std::min({piece, to.size(), text.size() - at});
    std::copy_n(text.begin() + static_cast<std::ptrdiff_t>(at), count, to.begin());
    at += count;
    return count;
  };
}

/// Gives the text, and then the failure "gone".
inline ByteSource thenFailing(std::string text) {
  return [source = inPieces(std::move(text), 1 << 20)](std::span<char> to) -> Result<std::size_t> {
    auto got = source(to);
    if (*got == 0) return Error::broken("gone");
    return got;
  };
}

}  // namespace quorvane::test
