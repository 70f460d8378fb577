// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>

#include "foundation/base/Limits.h"
#include "foundation/base/Text.h"
#include "foundation/plist/PropertyList.h"

/// Strings that were read must be UTF-8, and those that can be written must come back as they are.
inline int readAgain(const quorvane::Result<std::vector<std::string>>& read) {
  using namespace quorvane;
  if (!read) return 0;
  std::vector<std::string> kept;
  for (const std::string& text : *read) {
    if (!isUtf8(text)) std::abort();
    if (plist::isWritable(text)) kept.push_back(text);
  }
  const Bytes written = plist::writeStringArray(*read);
  if (written.size() > limits::propertyListBytes) return 0;
  const auto back = plist::readStringArray(written);
  if (!back || *back != kept) std::abort();
  return 0;
}
