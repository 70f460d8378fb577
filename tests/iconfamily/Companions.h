// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/ByteWriter.h"
#include "iconfamily/AppleDoubleForkStore.h"
#include "iconfamily/IconFile.h"
#include "iconfamily/ServerRecord.h"
#include "iconfamily/format/AppleDouble.h"
#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"

namespace quorvane::test {

using Attributes = AppleDoubleForkStore::Attributes;

/// What an invisible file with a custom icon holds: `size` bytes of `value` as its family.
inline ForkedFile iconOf(std::uint8_t value, std::size_t size = 5000) {
  ForkedFile content;
  content.fork.set({"icns", customIconResourceId, 0, "", Bytes(size, value)});
  content.info.setFlags(FinderInfo::isInvisible);
  return content;
}

/// A companion whose Finder info has these flags and, in byte 20, something that is not ours; a fork when `resource` is
/// not empty.
inline Bytes companionBytes(std::uint16_t flags, const std::string& resource, std::uint8_t other) {
  AppleDouble companion;
  Bytes bytes(32);
  bytes[20] = other;
  FinderInfo info(bytes);
  info.setFlags(flags);
  companion.setFinderInfo(info);
  ResourceFork fork;
  if (!resource.empty()) fork.set({"icns", customIconResourceId, 0, "", bytesOf(resource)});
  companion.setResourceFork(*fork.serialize());
  return *companion.serialize();
}

/// The 402 bytes that Samba keeps of a file or folder, with these Finder flags, in byte 20 of the Finder info something
/// that is not ours, and something of the server's own in every part of it. Its flags stand at 0x82.
inline Bytes serverRecord(std::uint16_t flags, std::uint8_t other = 5) {
  struct Row {
    std::uint32_t id, offset, length;
  };
  ByteWriter writer;
  writer.writeU32(0x00051607);
  writer.writeU32(0x00020000);
  writer.writeBytes(Bytes(16));
  writer.writeU16(8);
  for (const Row& row :
       {Row{4, 0x9A, 0}, Row{8, 0x162, 16}, Row{9, 0x7A, 32}, Row{14, 0x172, 4}, Row{0x80444556, 0x176, 8},
        Row{0x80494E4F, 0x17E, 8}, Row{0x8053594E, 0x186, 8}, Row{0x8053567E, 0x18E, 4}}) {
    writer.writeU32(row.id);
    writer.writeU32(row.offset);
    writer.writeU32(row.length);
  }
  writer.writeBytes(Bytes(32));
  writer.writeBytes(Bytes(402 - 0x9A, 0xA5));
  Bytes record = std::move(writer).take();
  record[0x82] = static_cast<std::uint8_t>(flags >> 8);
  record[0x83] = static_cast<std::uint8_t>(flags);
  record[0x7A + 20] = other;
  return record;
}

}  // namespace quorvane::test
