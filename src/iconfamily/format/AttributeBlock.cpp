// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/AttributeBlock.h"

#include <utility>
#include <vector>

#include "foundation/base/ByteReader.h"
#include "foundation/base/ByteWriter.h"
#include "iconfamily/format/FinderInfo.h"

namespace quorvane {

namespace {

constexpr FourCharCode blockMagic("ATTR");
// Places in the Finder entry.
constexpr std::size_t blockOffset = FinderInfo::byteCount + 2;
constexpr std::size_t endField = blockOffset + 8;
constexpr std::size_t valuesField = endField + 4;
constexpr std::size_t countField = blockOffset + 34;
constexpr std::size_t firstAttribute = countField + 2;

bool hasBlock(ByteView entry) {
  ByteReader reader(entry);
  return reader.seek(blockOffset) && reader.readCode() == blockMagic;
}

// The offsets kept in the block and where in the entry they stand; nullopt when one of them, or what it leads to, is
// outside the entry.
struct OffsetField {
  std::size_t place;
  std::uint32_t offset;
};

std::optional<std::vector<OffsetField>> offsetFields(ByteView entry, std::uint32_t start) {
  std::vector<OffsetField> fields;
  ByteReader reader(entry);
  // Notes the offset at the reader's place; `length` bytes from there must lie in the entry.
  const auto note = [&](std::uint32_t offset, std::size_t length) {
    if (offset < start || !ByteReader(entry).slice(offset - start, length)) return false;
    fields.push_back({reader.position(), offset});
    return true;
  };

  if (!reader.seek(endField)) return std::nullopt;
  const auto end = reader.readU32();
  const auto values = reader.readU32();
  const auto valuesLength = reader.readU32();
  if (!end || !values || !valuesLength || !reader.seek(endField) || !note(*end, 0) || !reader.seek(valuesField))
    return std::nullopt;
  if (!note(*values, *valuesLength)) return std::nullopt;

  const auto count = AttributeBlock::countIn(entry);
  if (!count) return std::nullopt;
  std::size_t begin = firstAttribute;
  for (std::uint16_t i = 0; i < *count; ++i) {
    if (!reader.seek(begin)) return std::nullopt;
    const auto offset = reader.readU32();
    const auto length = reader.readU32();
    const auto flags = reader.readU16();
    const auto nameLength = reader.readU8();
    if (!offset || !length || !flags || !nameLength || !reader.skip(*nameLength)) return std::nullopt;
    const std::size_t padded = (reader.position() - begin + 3) / 4 * 4;
    if (!reader.seek(begin) || !note(*offset, *length)) return std::nullopt;
    begin += padded;
  }
  return fields;
}

}  // namespace

std::optional<std::uint16_t> AttributeBlock::countIn(ByteView entry) {
  ByteReader reader(entry);
  if (!hasBlock(entry) || !reader.seek(countField)) return std::nullopt;
  return reader.readU16();
}

void AttributeBlock::relocate(Bytes& entry, std::uint32_t from, std::uint32_t to) {
  if (from == to || !hasBlock(entry)) return;
  const auto fields = offsetFields(entry, from);
  if (!fields) return;
  ByteWriter moved;
  moved.writeBytes(entry);
  for (const OffsetField& field : *fields) moved.patchU32(field.place, field.offset - from + to);
  entry = std::move(moved).take();
}

}  // namespace quorvane
