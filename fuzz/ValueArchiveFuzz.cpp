// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>

#include "foundation/ValueArchives.h"

using namespace quorvane;

// What unpacks packs to something that unpacks the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(input), static_cast<qsizetype>(size));
  if (const auto color = unarchiveColor(bytes); color && unarchiveColor(archiveColor(*color)) != color) std::abort();
  if (const auto font = unarchiveFont(bytes); font && archiveFont(*font) != bytes) std::abort();
  return 0;
}
