// SPDX-License-Identifier: GPL-3.0-or-later
// The icon family on the general pasteboard.
#include <algorithm>

#include "iconfamily/IconFamily.h"
#include "system/Pasteboard.h"

namespace quorvane {

namespace {

// The published type, and the one under which older programs look.
constexpr const char* scrapTypes[] = {"com.apple.icns", "'icns' (CorePasteboardFlavorType 0x69636E73)"};

}  // namespace

bool IconFamily::canInitWithScrap(const Pasteboard& pasteboard) {
  const auto types = pasteboard.types();
  return std::ranges::any_of(scrapTypes,
                             [&](const char* type) { return std::ranges::find(types, type) != types.end(); });
}

std::optional<IconFamily> IconFamily::initWithScrap(const Pasteboard& pasteboard) {
  for (const char* type : scrapTypes)
    if (auto data = pasteboard.dataForType(type)) return iconFamilyWithIconFamilyHandle(*std::move(data));
  return std::nullopt;
}

bool IconFamily::putOnScrap(Pasteboard& pasteboard) const {
  std::map<std::string, Bytes> content;
  for (const char* type : scrapTypes) content[type] = data();
  pasteboard.setContent(content);
  return true;
}

}  // namespace quorvane
