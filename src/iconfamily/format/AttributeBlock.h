// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "foundation/base/Bytes.h"

namespace quorvane {

/// The block of extended attributes that may stand behind the 32 bytes of a companion's Finder entry, two bytes on:
///
///     "ATTR", tag 4, end of the entry 4, begin of the values 4, their length 4, reserved 12, flags 2, count 2, then
///     for each attribute: offset 4, length 4, flags 2, length of the name 1, the name; padded to 4
///
/// Offsets count from the start of the file, so they change when the entry moves.
class AttributeBlock {
 public:
  /// How many attributes the Finder entry `entry` holds; nullopt when no block stands in it.
  static std::optional<std::uint16_t> countIn(ByteView entry);

  /// Brings the offsets of an entry up to date that stood at `from` in the file and now stands at `to`. A block with
  /// an offset outside the entry is not understood, and stays as it is.
  static void relocate(Bytes& entry, std::uint32_t from, std::uint32_t to);
};

}  // namespace quorvane
