// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "foundation/base/Limits.h"
#include "foundation/base/Result.h"

namespace quorvane::plist {

/// The strings read so far, within the limits: one that is stored once may be referred to a million times.
class Collected {
 public:
  Result<void> add(std::string text) {
    _bytes += text.size();
    if (_strings.size() == limits::propertyListItems || _bytes > limits::propertyListTextBytes)
      return Error::tooLarge("a property list with too many strings");
    _strings.push_back(std::move(text));
    return {};
  }
  [[nodiscard]] std::vector<std::string> take() && { return std::move(_strings); }

 private:
  std::vector<std::string> _strings;
  std::size_t _bytes = 0;
};

inline Error noPropertyList(const std::string& why) {
  return Error::invalidInput("not a property list: " + why);
}
inline Error noArray() {
  return Error::invalidInput("the property list is no array");
}
inline Error nestedTooDeep() {
  return Error::tooLarge("a property list that is nested too deep");
}

}  // namespace quorvane::plist
