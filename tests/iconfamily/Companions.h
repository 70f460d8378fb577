// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "iconfamily/AppleDoubleForkStore.h"
#include "iconfamily/IconFile.h"
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

}  // namespace quorvane::test
