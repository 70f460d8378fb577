// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>

#include "iconfamily/format/AppleDouble.h"

using namespace quorvane;

namespace {

// What was read can be written, is read back, and is written the same way again.
void checkWriting(const AppleDouble& companion) {
  const auto written = companion.serialize();
  if (!written) std::abort();
  const auto back = AppleDouble::parse(*written);
  if (!back || back->serialize().value() != *written) std::abort();
  if (back->finderInfo() != companion.finderInfo() || back->isBlank() != companion.isBlank()) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  auto companion = AppleDouble::parse(ByteView(input, size));
  if (!companion || size > 1 << 20) return 0;
  checkWriting(*companion);
  if (const auto at = companion->finderInfoOffset())
    if (FinderInfo(ByteView(input, size).subspan(*at, FinderInfo::byteCount)) != companion->finderInfo()) std::abort();
  FinderInfo info(companion->resourceFork());
  info.setFlags(FinderInfo::hasCustomIcon);
  companion->setFinderInfo(info);
  companion->setResourceFork({});
  if (companion->finderInfo() != info || !companion->resourceFork().empty()) std::abort();
  checkWriting(*companion);
  return 0;
}
