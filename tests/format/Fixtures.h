// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

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

/// A fault to be planted in good bytes.
struct Fault {
  const char* what;
  std::size_t offset, width;
  std::uint32_t value;
};

/// `isRead` must refuse `good` with any of the faults, and cut off anywhere from `shortest` bytes on.
template <typename IsRead>
void expectRefused(const Bytes& good, std::initializer_list<Fault> faults, IsRead isRead, std::size_t shortest = 0) {
  for (const Fault& fault : faults) {
    const Bytes bad = patched(good, fault.offset, fault.width, fault.value);
    EXPECT_NE(bad, good) << fault.what;
    EXPECT_FALSE(isRead(bad)) << fault.what;
  }
  for (std::size_t length = shortest; length < good.size(); ++length)
    EXPECT_FALSE(isRead(ByteView(good).first(length))) << length;
}

/// What a writer made; fails the test when it made nothing.
template <typename Writer>
Bytes written(const Writer& writer) {
  const auto bytes = writer.serialize();
  EXPECT_TRUE(bytes.ok());
  return bytes.ok() ? *bytes : Bytes();
}

/// An element of an icon family.
Bytes element(FourCharCode type, const Bytes& data);
/// A family of ready elements with an exact total.
Bytes family(std::initializer_list<Bytes> elements);

/// The fork without resources that the system writes, 286 bytes.
Bytes blankFork();

}  // namespace quorvane::test
