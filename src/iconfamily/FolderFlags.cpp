// SPDX-License-Identifier: GPL-3.0-or-later
// The Finder flags of folders, kept in step in every place where readers look.
#include <algorithm>

#include "foundation/base/Log.h"
#include "iconfamily/AppleDoubleForkStore.h"
#include "iconfamily/Companion.h"
#include "iconfamily/FolderCompanion.h"
#include "iconfamily/ServerRecord.h"

namespace quorvane {

namespace {

using Access = Folder::Access;

struct FlagChange {
  std::uint16_t set;
  std::uint16_t clear;
};

void note(const Error& error) {
  logMessage("iconfamily", error.message());
}

// What a companion of the folder says; one that is out of reach says nothing.
Result<std::optional<FinderInfo>> infoSaidBy(const Folder& holder, const std::string& file) {
  const auto kept = companion::read(holder, file);
  if (kept.ok()) return kept->content.finderInfo();
  if (!companion::isOutOfReach(kept.error())) return kept.error();
  note(kept.error());
  return std::optional<FinderInfo>();
}

Result<void> changeCompanion(Folder& holder, const std::string& file, FlagChange change) {
  auto kept = TRY(companion::read(holder, file));
  const FinderInfo info = kept.content.finderInfo().value_or(FinderInfo());
  kept.content.setFinderInfo(companion::withFlags(info, change.set, change.clear));
  return companion::write(holder, file, kept);
}

// Neither place can hold the info: both reasons matter, as either could be mended.
Error noPlace(const Folder& folder, const std::optional<Error>& attribute, const Error& companion) {
  if (!attribute) return companion;
  return Error(companion.kind(), "cannot keep the folder's Finder info: as attribute: " + attribute->why() +
                                     "; as companion file " + companion.message())
      .at(folder.path());
}

}  // namespace

Result<FinderInfo> AppleDoubleForkStore::readFolderInfo(const Folder& folder) const {
  std::vector<FinderInfo> said;
  const auto own = companion::ofFolder(folder, Access::Read);
  if (!own.ok() && !companion::isOutOfReach(own.error())) return own.error();
  if (own.ok() && own->above) {
    if (const auto info = TRY(infoSaidBy(*own->above, own->file))) said.push_back(*info);
  }
  if (const auto info = TRY(infoSaidBy(folder, companion::insideName))) said.push_back(*info);
  if (_usesAttributes()) {
    if (const auto value = TRY(folder.attribute(infoAttribute))) said.emplace_back(*value);
    if (const auto info = serverrecord::infoIfAny(TRY(folder.attribute(serverrecord::attributeName))))
      said.push_back(*info);
  }
  if (said.empty()) return FinderInfo();
  const bool hasIcon = std::any_of(said.begin(), said.end(),
                                   [](const auto& info) { return (info.flags() & FinderInfo::hasCustomIcon) != 0; });
  return companion::withFlags(said.front(), hasIcon ? FinderInfo::hasCustomIcon : 0, 0);
}

Result<bool> AppleDoubleForkStore::_changeAttribute(Folder& folder, std::uint16_t set, std::uint16_t clear) const {
  const auto old = TRY(folder.attribute(infoAttribute));
  if (!old && set == 0) return false;
  const Bytes changed = companion::withFlags(old.value_or(Bytes()), set, clear);
  if (old && *old == changed) return set != 0;
  if (std::all_of(changed.begin(), changed.end(), [](auto byte) { return byte == 0; })) {
    TRY_VOID(folder.removeAttribute(infoAttribute));
    return false;
  }
  TRY_VOID(folder.setAttribute(infoAttribute, changed));
  return set != 0;
}

Result<bool> AppleDoubleForkStore::_changeServerRecord(Folder& folder, std::uint16_t set, std::uint16_t clear) const {
  const auto old = TRY(folder.attribute(serverrecord::attributeName));
  if (!serverrecord::infoIfAny(old)) return false;
  const Bytes changed = TRY(serverrecord::withFlags(*old, set, clear));
  if (changed != *old) TRY_VOID(folder.setAttribute(serverrecord::attributeName, changed));
  return set != 0;
}

Result<void> AppleDoubleForkStore::checkFolderFlags(const Folder& folder) const {
  if (_usesAttributes() && folder.takesAttributes()) return {};
  const auto own = TRY(companion::ofFolder(folder, Access::Read));
  return own.above ? own.above->checkWritable() : folder.checkWritable();
}

Result<std::optional<FolderInfoPlace>> AppleDoubleForkStore::changeFolderFlags(Folder& folder, std::uint16_t set,
                                                                               std::uint16_t clear) {
  const FlagChange change{set, clear};
  std::optional<FolderInfoPlace> place;
  std::optional<Error> attributeError;
  if (_usesAttributes()) {
    for (const auto& held : {_changeAttribute(folder, set, clear), _changeServerRecord(folder, set, clear)}) {
      if (!held.ok()) {
        if (set == 0) return held.error();
        if (place || attributeError) {
          note(held.error());
        } else {
          attributeError = held.error();
        }
      } else if (*held) {
        place = FolderInfoPlace::Attribute;
      }
    }
  }

  const auto own = companion::ofFolder(folder, Access::Read);
  if (!own.ok() && !place && !companion::isOutOfReach(own.error())) return own.error();
  const bool belongsAbove = own.ok() && own->above.has_value();
  // A companion that exists must not say otherwise than the attribute; one is made only where nothing else holds the
  // flags. `changeIt` opens for writing by itself: the folder above is not locked before it is needed.
  const auto visit = [&](const Folder& holder, const std::string& file, FolderInfoPlace kind, bool belongsHere,
                         const auto& changeIt) -> Result<void> {
    const auto info = TRY(infoSaidBy(holder, file));
    const bool make = belongsHere && set != 0 && !place;
    if (info ? companion::withFlags(*info, set, clear) == *info : !make) {
      if (info && set != 0 && !place) place = kind;
      return {};
    }
    const Result<void> changed = changeIt();
    if (changed.ok()) {
      if (set != 0 && !place) place = kind;
    } else if (!place) {
      return noPlace(folder, attributeError, changed.error());
    } else {
      note(changed.error());  // readers take the flags from where they were set
    }
    return {};
  };
  const auto changeInside = [&] { return changeCompanion(folder, companion::insideName, change); };
  const auto changeAbove = [&]() -> Result<void> {
    auto writable = TRY(companion::ofFolder(folder, Access::Write));
    if (!writable.above) return Error::refused("the folder was moved meanwhile").at(folder.path());
    return changeCompanion(*writable.above, writable.file, change);
  };
  TRY_VOID(
      visit(folder, companion::insideName, FolderInfoPlace::CompanionInside, own.ok() && !belongsAbove, changeInside));
  if (belongsAbove) TRY_VOID(visit(*own->above, own->file, FolderInfoPlace::CompanionBeside, true, changeAbove));
  if (set != 0 && !place) return noPlace(folder, attributeError, own.ok() ? Error::broken("no place") : own.error());
  return place;
}

}  // namespace quorvane
