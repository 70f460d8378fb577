// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlistAgain.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  return readAgain(quorvane::plist::readXml(quorvane::ByteView(input, size)));
}
