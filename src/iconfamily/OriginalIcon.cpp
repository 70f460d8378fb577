// SPDX-License-Identifier: GPL-3.0-or-later
// The way back: what stood in a folder before its first icon of ours.
#include <algorithm>
#include <array>

#include "foundation/FolderNames.h"
#include "foundation/base/Log.h"
#include "iconfamily/AppleDoubleForkStore.h"
#include "iconfamily/Companion.h"
#include "iconfamily/FolderCompanion.h"
#include "iconfamily/IconFile.h"
#include "iconfamily/OriginalState.h"
#include "iconfamily/ServerRecord.h"

namespace quorvane {

namespace {

using Access = Folder::Access;

constexpr std::size_t stateBytes = 1 << 20;
// The only bits of a folder's Finder info that we ever change.
constexpr std::uint16_t ourFlags = FinderInfo::hasCustomIcon | FinderInfo::hasBeenInited;

// An icon file and its companion, and the names under which they and the file's attributes are kept.
struct IconFileKeys {
  const char* name;
  const char* companion;
  const char* key;
  const char* companionKey;
  const char* attributeKey;
  const char* recordKey;
};
constexpr std::array<IconFileKeys, 2> iconFileKeys{{
    {iconFileName, "._Icon\r", "icon", "icon-companion", "icon-attribute", "icon-server-record"},
    {mappedIconFileName, "._Icon\xEF\x80\x8D", "mapped-icon", "mapped-icon-companion", "mapped-icon-attribute",
     "mapped-icon-server-record"},
}};
constexpr const char* besideKey = "folder-companion";
constexpr const char* insideKey = "inside-companion";
constexpr const char* attributeKey = "folder-attribute";
constexpr const char* recordKey = "folder-server-record";

// A file server's record as it was, which may be absent; nullopt when that is not known.
using ServerRecord = std::optional<std::optional<Bytes>>;

// Whether there was something to keep.
Result<bool> keep(const Folder& folder, const std::string& name, const Folder& into, const char* key) {
  if (!TRY(folder.statusOf(name))) return false;
  TRY_VOID(folder.preserve(name, into, key));
  return true;
}

// The same for a companion of the folder. Nothing is said of one that is out of reach: it is never changed.
Result<void> keepFoldersCompanion(const Folder& holder, const std::string& file, const Folder& into, const char* key,
                                  OriginalState& state) {
  if (const auto found = companion::read(holder, file); !found.ok())
    return companion::isOutOfReach(found.error()) ? Result<void>() : found.error();
  state.setKept(key, TRY(keep(holder, file, into, key)));
  return {};
}

bool isSameItem(const Folder& one, const std::string& name, const Folder& other, const std::string& otherName) {
  const auto a = one.statusOf(name);
  const auto b = other.statusOf(otherName);
  return a.ok() && b.ok() && *a && *b && (*a)->st_dev == (*b)->st_dev && (*a)->st_ino == (*b)->st_ino;
}

bool isSameAge(const Folder& one, const std::string& name, const Folder& other, const std::string& otherName) {
  const auto a = one.statusOf(name);
  const auto b = other.statusOf(otherName);
  return a.ok() && b.ok() && *a && *b && (*a)->st_mode == (*b)->st_mode &&
         (*a)->st_mtim.tv_sec == (*b)->st_mtim.tv_sec && (*a)->st_mtim.tv_nsec == (*b)->st_mtim.tv_nsec;
}

// Makes `name` in the folder the file that is kept under `key`, or absent. What is kept stays for another attempt.
Result<void> giveBack(Folder& folder, const std::string& name, const Folder& from, const char* key, bool kept) {
  if (!kept) return folder.removeFile(name);
  if (isSameItem(folder, name, from, key)) return {};
  const std::string temporary = Folder::temporaryName();
  TRY_VOID(from.preserve(key, folder, temporary));
  auto renamed = folder.rename(temporary, folder, name);
  if (!renamed.ok()) static_cast<void>(folder.removeFile(temporary));  // else the next opening sweeps it
  return renamed;
}

AppleDouble withoutOurFlags(AppleDouble content) {
  content.setFinderInfo(companion::withFlags(content.finderInfo().value_or(FinderInfo()), 0, ourFlags));
  return content;
}

// A folder's companion may have been written by others since: then only our flags come out of it.
enum class WayBack { Nothing, Exact, OurFlags };

struct CompanionChange {
  WayBack way = WayBack::Nothing;
  companion::Companion present;
  std::uint16_t originalFlags = 0;
};

Result<CompanionChange> wayBack(const Folder& holder, const std::string& file, const Folder& from, const char* key,
                                bool kept) {
  CompanionChange change;
  if (kept && isSameItem(holder, file, from, key)) return change;
  auto present = companion::read(holder, file);
  if (!present.ok()) {
    if (!companion::isNotOurs(present.error())) return present.error();
    logMessage("iconfamily", present.error().message());
    return change;
  }
  change.present = std::move(*present);
  if (!change.present.bytes && !kept) return change;
  companion::Companion original;
  if (kept) original = TRY(companion::read(from, key));
  if (const auto info = original.content.finderInfo()) change.originalFlags = info->flags() & ourFlags;

  // Where links are not possible, what is kept is a copy of what may not have been touched.
  if (kept && change.present.bytes == original.bytes && isSameAge(holder, file, from, key)) return change;
  const AppleDouble now = withoutOurFlags(change.present.content);
  const bool onlyOurs = !change.present.bytes || (!kept && now.isBlank()) ||
                        (kept && TRY(now.serialize()) == TRY(withoutOurFlags(original.content).serialize()));
  change.way = onlyOurs ? WayBack::Exact : WayBack::OurFlags;
  return change;
}

Result<void> giveCompanionBack(Folder& holder, const std::string& file, const Folder& from, const char* key,
                               bool kept) {
  auto change = TRY(wayBack(holder, file, from, key, kept));
  switch (change.way) {
    case WayBack::Nothing:
      return {};
    case WayBack::Exact:
      return giveBack(holder, file, from, key, kept);
    case WayBack::OurFlags:
      break;
  }
  const FinderInfo info = change.present.content.finderInfo().value_or(FinderInfo());
  change.present.content.setFinderInfo(companion::withFlags(info, change.originalFlags, ourFlags));
  return companion::write(holder, file, change.present);
}

// An interrupted writer may have left something in the folder above, which nobody may open for writing soon: whoever
// does clears it away.
void sweepAbove(const Folder& folder, const Folder& above) {
  const auto all = above.names();
  if (all.ok() && std::any_of(all->begin(), all->end(), names::isTemporary))
    static_cast<void>(folder.openParent(Access::Write));
}

Result<OriginalState> readState(const Folder& from) {
  const auto text = TRY(from.readFile(OriginalState::fileName, stateBytes));
  if (!text)
    return Error(ErrorKind::NotFound, "there is no record of the original icon")
        .at(from.pathOf(OriginalState::fileName));
  auto parsed = OriginalState::parse(*text);
  if (!parsed.ok()) return parsed.error().at(from.pathOf(OriginalState::fileName));
  return parsed;
}

// Whether a file was kept, which then has to be there.
Result<bool> isKept(const Folder& from, const OriginalState& state, const char* key) {
  const bool kept = TRY(state.isKept(key));
  const auto info = kept ? TRY(from.statusOf(key)) : std::optional<struct stat>();
  if (kept && (!info || !S_ISREG(info->st_mode)))
    return Error::invalidInput("the kept original is missing").at(from.pathOf(key));
  return kept;
}

// What giveCompanionBack does, for the folder's attribute.
Result<void> giveAttributeBack(Folder& folder, const std::optional<Bytes>& original) {
  const std::string name = AppleDoubleForkStore::infoAttribute;
  const auto present = TRY(folder.attribute(name));
  if (present == original) return {};
  const auto withoutOurs = [](const std::optional<Bytes>& value) {
    return companion::withFlags(value.value_or(Bytes()), 0, ourFlags);
  };
  if (withoutOurs(present) == withoutOurs(original))
    return original ? folder.setAttribute(name, *original) : folder.removeAttribute(name);
  const auto flags = FinderInfo(original.value_or(Bytes())).flags() & ourFlags;
  return folder.setAttribute(
      name, companion::withFlags(present.value_or(Bytes()), static_cast<std::uint16_t>(flags), ourFlags));
}

// The same for the record that a file server keeps of the folder. One that is gone, or that cannot be read (any more),
// is the server's affair.
Result<void> giveRecordBack(Folder& folder, const std::optional<Bytes>& original) {
  const std::string name = serverrecord::attributeName;
  const auto present = TRY(folder.attribute(name));
  if (present == original || !serverrecord::infoIfAny(present)) return {};
  const auto info = serverrecord::infoIfAny(original);
  const auto flags = static_cast<std::uint16_t>(info ? info->flags() & ourFlags : 0);
  const Bytes changed = TRY(serverrecord::withFlags(*present, flags, ourFlags));
  return changed == *present ? Result<void>() : folder.setAttribute(name, changed);
}

Result<void> giveAttributeOfFileBack(Folder& folder, const std::string& file, const std::string& name,
                                     const std::optional<Bytes>& original) {
  if (TRY(folder.attributeOf(file, name)) == original) return {};
  return original ? folder.setAttributeOf(file, name, *original) : folder.removeAttributeOf(file, name);
}

}  // namespace

Result<void> AppleDoubleForkStore::saveOriginal(const Folder& folder, Folder& into) const {
  OriginalState state;
  const auto attributeOf = [&](const std::string& file, const char* attribute) -> Result<std::optional<Bytes>> {
    if (!_usesAttributes()) return std::optional<Bytes>();
    return folder.attributeOf(file, attribute);
  };
  for (const auto& each : iconFileKeys) {
    state.setKept(each.key, TRY(keep(folder, each.name, into, each.key)));
    state.setKept(each.companionKey, TRY(keep(folder, each.companion, into, each.companionKey)));
    // Attributes belong to the file, whatever its names: the kept one shares those that are changed later.
    state.setBytes(each.attributeKey, TRY(attributeOf(each.name, infoAttribute)));
    state.setBytes(each.recordKey, TRY(attributeOf(each.name, serverrecord::attributeName)));
  }
  TRY_VOID(keepFoldersCompanion(folder, companion::insideName, into, insideKey, state));
  const auto own = companion::ofFolder(folder, Access::Read);
  if (!own.ok() && !companion::isOutOfReach(own.error())) return own.error();
  if (own.ok() && own->above) TRY_VOID(keepFoldersCompanion(*own->above, own->file, into, besideKey, state));
  state.setBytes(attributeKey, _usesAttributes() ? TRY(folder.attribute(infoAttribute)) : std::optional<Bytes>());
  state.setBytes(recordKey,
                 _usesAttributes() ? TRY(folder.attribute(serverrecord::attributeName)) : std::optional<Bytes>());
  TRY_VOID(into.writeFile(OriginalState::fileName, state.serialize()));
  return {};
}

Result<void> AppleDoubleForkStore::checkOriginal(const Folder& from) const {
  const OriginalState state = TRY(readState(from));
  for (const auto& each : iconFileKeys) {
    TRY_VOID(isKept(from, state, each.key));
    TRY_VOID(isKept(from, state, each.companionKey));
  }
  for (const char* key : {insideKey, besideKey})
    if (state.tellsOf(key)) TRY_VOID(isKept(from, state, key));
  return {};
}

Result<ResourceFork> AppleDoubleForkStore::originalIconFork(const Folder& from) const {
  const OriginalState state = TRY(readState(from));
  for (const auto& each : iconFileKeys) {
    if (!TRY(isKept(from, state, each.key)) || !TRY(isKept(from, state, each.companionKey))) continue;
    const auto kept = TRY(companion::read(from, each.companionKey));
    return ResourceFork::parse(kept.content.resourceFork());
  }
  return ResourceFork();
}

Result<void> AppleDoubleForkStore::restoreOriginal(Folder& folder, const Folder& from) {
  const OriginalState state = TRY(readState(from));

  // All is looked at before anything is changed.
  const auto isFree = [&](const std::string& name) -> Result<void> {
    const auto info = TRY(folder.statusOf(name));
    if (info && !S_ISREG(info->st_mode)) return Error::refused("is no plain file").at(folder.pathOf(name));
    return {};
  };
  struct KeptIconFile {
    const IconFileKeys& keys;
    bool file;
    bool companion;
    std::optional<Bytes> attribute;
    ServerRecord record;
  };
  // Older records of ours say nothing about it; it then stays as it is.
  const auto recordIn = [&state](const char* key) -> Result<ServerRecord> {
    if (!state.tellsOf(key)) return ServerRecord();
    return ServerRecord(TRY(state.bytes(key)));
  };
  std::vector<KeptIconFile> iconFiles;
  bool hadIconFile = false;
  for (const auto& each : iconFileKeys) {
    TRY_VOID(isFree(each.name));
    TRY_VOID(isFree(each.companion));
    const bool file = TRY(isKept(from, state, each.key));
    const bool companion = TRY(isKept(from, state, each.companionKey));
    iconFiles.push_back({each, file, companion, TRY(state.bytes(each.attributeKey)), TRY(recordIn(each.recordKey))});
    hadIconFile = hadIconFile || file;
  }
  const bool hadInside = state.tellsOf(insideKey) && TRY(isKept(from, state, insideKey));
  const bool hadBeside = state.tellsOf(besideKey) && TRY(isKept(from, state, besideKey));
  const auto attribute = TRY(state.bytes(attributeKey));
  const auto record = TRY(recordIn(recordKey));

  const auto restoreFiles = [&]() -> Result<void> {
    for (const auto& [keys, file, companion, wanted, wantedRecord] : iconFiles) {
      TRY_VOID(giveBack(folder, keys.companion, from, keys.companionKey, companion));
      TRY_VOID(giveBack(folder, keys.name, from, keys.key, file));
      if (!file || !_usesAttributes()) continue;
      TRY_VOID(giveAttributeOfFileBack(folder, keys.name, infoAttribute, wanted));
      if (wantedRecord)
        TRY_VOID(giveAttributeOfFileBack(folder, keys.name, serverrecord::attributeName, *wantedRecord));
    }
    return {};
  };
  const auto restoreInfo = [&]() -> Result<void> {
    if (_usesAttributes()) {
      TRY_VOID(giveAttributeBack(folder, attribute));
      if (record) TRY_VOID(giveRecordBack(folder, *record));
    }
    if (state.tellsOf(insideKey))
      TRY_VOID(giveCompanionBack(folder, companion::insideName, from, insideKey, hadInside));
    if (!state.tellsOf(besideKey)) return {};
    const auto own = companion::ofFolder(folder, Access::Read);
    if (!own.ok()) return !hadBeside && companion::isNotOurs(own.error()) ? Result<void>() : own.error();
    if (!own->above) return {};
    if (TRY(wayBack(*own->above, own->file, from, besideKey, hadBeside)).way == WayBack::Nothing) {
      sweepAbove(folder, *own->above);
      return {};
    }
    auto writable = TRY(companion::ofFolder(folder, Access::Write));
    if (!writable.above) return Error::refused("the folder was moved meanwhile").at(folder.path());
    return giveCompanionBack(*writable.above, writable.file, from, besideKey, hadBeside);
  };
  // The flag never stands without the file that it speaks of.
  if (hadIconFile) {
    TRY_VOID(restoreFiles());
    return restoreInfo();
  }
  TRY_VOID(restoreInfo());
  return restoreFiles();
}

}  // namespace quorvane
