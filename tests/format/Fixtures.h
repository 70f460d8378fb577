// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <string_view>

#include "foundation/base/Bytes.h"
#include "foundation/base/FourCharCode.h"

namespace quorvane::test {

/// Bytes from hexadecimal digits; blanks are for the eye.
Bytes hex(std::string_view digits);
Bytes letters(std::string_view text);
Bytes join(std::initializer_list<Bytes> parts);

/// `bytes` with the big-endian number `value` of `width` bytes at `offset`.
Bytes patched(Bytes bytes, std::size_t offset, std::size_t width, std::uint32_t value);

/// An element of an icon family.
Bytes element(FourCharCode type, const Bytes& data);
/// A family of ready elements with an exact total.
Bytes family(std::initializer_list<Bytes> elements);

/// The fork without resources that the system writes, 286 bytes.
Bytes blankFork();

}  // namespace quorvane::test
