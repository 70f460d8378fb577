// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

/// The measures of a resource fork, for its reader and its writer.
///
///     header    data offset 4, map offset 4, data length 4, map length 4, then 240 reserved bytes
///     data      for each resource: length 4, then the bytes
///     map       copy of the header 16, handle 4, file number 2, attributes 2, type list 2, name list 2 (offsets in the
///     map) types     count - 1: 2, then rows: type 4, references - 1: 2, their offset from the count 2 reference id 2,
///     name offset 2, attributes 1, data offset 3, handle 4 names     length 1, then the letters
namespace quorvane::resource_fork_layout {

inline constexpr std::size_t headerLength = 16;
inline constexpr std::size_t reservedLength = 240;
/// Where writers put the data area; readers go by the header.
inline constexpr std::size_t dataStart = headerLength + reservedLength;

inline constexpr std::size_t handleLength = 4;
inline constexpr std::size_t fileNumberLength = 2;
inline constexpr std::size_t mapAttributesOffset = headerLength + handleLength + fileNumberLength;
inline constexpr std::size_t mapHeaderLength = mapAttributesOffset + 6;
inline constexpr std::size_t typeRowLength = 8;
inline constexpr std::size_t referenceLength = 12;

/// Counts are kept less one, so this is a count of none.
inline constexpr std::uint16_t noneMinusOne = 0xFFFF;
/// Name offset of a resource without a name.
inline constexpr std::uint16_t noName = 0xFFFF;
inline constexpr std::size_t longestName = 0xFF;
/// The furthest that the offsets in the map reach.
inline constexpr std::size_t furthestList = 0xFFFF;
/// The furthest that the 3-byte offset of a resource's data reaches.
inline constexpr std::size_t furthestData = 0xFFFFFF;

}  // namespace quorvane::resource_fork_layout
