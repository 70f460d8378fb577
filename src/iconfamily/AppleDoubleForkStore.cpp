// SPDX-License-Identifier: GPL-3.0-or-later
// Forks and Finder info of files.
#include "iconfamily/AppleDoubleForkStore.h"

#include <cerrno>

#include "iconfamily/Companion.h"

namespace quorvane {

namespace {

// Finder info that a folder or file has in an attribute of its own.
std::optional<FinderInfo> infoIn(const std::optional<Bytes>& attribute) {
  return attribute ? std::optional(FinderInfo(*attribute)) : std::nullopt;
}

Result<void> mustBePlainFile(const Folder& folder, const std::string& name) {
  const auto info = TRY(folder.statusOf(name));
  if (!info) return Error::system(ENOENT, "cannot look at").at(folder.pathOf(name));
  if (!S_ISREG(info->st_mode)) return Error::refused("is no plain file").at(folder.pathOf(name));
  return {};
}

}  // namespace

Result<ForkedFile> AppleDoubleForkStore::read(const Folder& folder, const std::string& name) const {
  TRY_VOID(mustBePlainFile(folder, name));
  const std::string file = TRY(companion::nameFor(name));
  const auto kept = TRY(companion::read(folder, file));
  ForkedFile content;
  auto fork = ResourceFork::parse(kept.content.resourceFork());
  if (!fork.ok()) return fork.error().at(folder.pathOf(file));
  content.fork = std::move(*fork);
  const auto attribute =
      _usesAttributes() ? infoIn(TRY(folder.attributeOf(name, infoAttribute))) : std::optional<FinderInfo>();
  content.info = kept.content.finderInfo().value_or(attribute.value_or(FinderInfo()));
  if (attribute) content.info = companion::withFlags(content.info, attribute->flags() & FinderInfo::hasCustomIcon, 0);
  return content;
}

Result<void> AppleDoubleForkStore::write(Folder& folder, const std::string& name, const ForkedFile& content) {
  TRY_VOID(mustBePlainFile(folder, name));
  const std::string file = TRY(companion::nameFor(name));
  auto kept = TRY(companion::read(folder, file));
  auto fork = content.fork.serialize();
  if (!fork.ok()) return fork.error().at(folder.pathOf(file));
  kept.content.setResourceFork(std::move(*fork));
  kept.content.setFinderInfo(content.info);

  // The attribute first: should the companion fail, it can be put back; the other way round a large file would have to
  // be.
  const auto attribute = _usesAttributes() ? TRY(folder.attributeOf(name, infoAttribute)) : std::optional<Bytes>();
  const bool attributeDiffers = attribute && FinderInfo(*attribute) != content.info;
  if (attributeDiffers) {
    Bytes changed(content.info.bytes().begin(), content.info.bytes().end());
    TRY_VOID(folder.setAttributeOf(name, infoAttribute, changed));
  }
  auto written = companion::write(folder, file, kept);
  if (!written.ok() && attributeDiffers) {
    if (auto back = folder.setAttributeOf(name, infoAttribute, *attribute); !back.ok()) return back;
  }
  return written;
}

Result<void> AppleDoubleForkStore::removeFile(Folder& folder, const std::string& name) {
  const std::string file = TRY(companion::nameFor(name));
  // Looked at first, so that nothing goes when one of the two cannot.
  for (const std::string& each : {name, file}) {
    const auto info = TRY(folder.statusOf(each));
    if (info && !S_ISREG(info->st_mode))
      return Error::refused("cannot remove: is no plain file").at(folder.pathOf(each));
  }
  TRY_VOID(folder.removeFile(file));
  return folder.removeFile(name);
}

std::vector<std::string> AppleDoubleForkStore::filesBeside(const std::string& name) const {
  auto file = companion::nameFor(name);
  return file.ok() ? std::vector<std::string>{*file} : std::vector<std::string>();
}

}  // namespace quorvane
