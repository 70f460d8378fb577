// SPDX-License-Identifier: GPL-3.0-or-later
// Forks and Finder info of files.
#include "iconfamily/AppleDoubleForkStore.h"

#include <cerrno>

#include "iconfamily/Companion.h"
#include "iconfamily/ServerRecord.h"

namespace quorvane {

namespace {

// Attributes of a file that hold its Finder info.
struct InfoAttributes {
  std::optional<Bytes> plain;
  std::optional<Bytes> server;
};

Result<InfoAttributes> attributesOf(const Folder& folder, const std::string& name) {
  return InfoAttributes{TRY(folder.attributeOf(name, AppleDoubleForkStore::infoAttribute)),
                        TRY(folder.attributeOf(name, serverrecord::attributeName))};
}

// The same attributes with other Finder info; a malformed record stays as it is.
InfoAttributes withInfo(const InfoAttributes& old, const FinderInfo& info) {
  InfoAttributes changed = old;
  if (old.plain && FinderInfo(*old.plain) != info) changed.plain = Bytes(info.bytes().begin(), info.bytes().end());
  if (serverrecord::infoIfAny(old.server)) changed.server = serverrecord::withInfo(*old.server, info).value();
  return changed;
}

// Sets those of `to` that are not as in `from`.
Result<void> changeAttributes(Folder& folder, const std::string& name, const InfoAttributes& from,
                              const InfoAttributes& to) {
  if (to.plain != from.plain) TRY_VOID(folder.setAttributeOf(name, AppleDoubleForkStore::infoAttribute, *to.plain));
  if (to.server != from.server) TRY_VOID(folder.setAttributeOf(name, serverrecord::attributeName, *to.server));
  return {};
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
  content.info = kept.content.finderInfo().value_or(FinderInfo());
  if (!_usesAttributes()) return content;
  const InfoAttributes attributes = TRY(attributesOf(folder, name));
  const auto consider = [&content](const FinderInfo& info) {
    // File servers leave the companion's entry zero and keep the info in the attribute alone.
    if (content.info.isZero()) content.info = info;
    content.info = companion::withFlags(content.info, info.flags() & FinderInfo::hasCustomIcon, 0);
  };
  if (attributes.plain) consider(FinderInfo(*attributes.plain));
  if (const auto info = serverrecord::infoIfAny(attributes.server)) consider(*info);
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

  // The attributes first: should the companion fail, they can be put back; the other way round a large file would have
  // to be.
  const InfoAttributes old = _usesAttributes() ? TRY(attributesOf(folder, name)) : InfoAttributes();
  const InfoAttributes changed = withInfo(old, content.info);
  auto written = changeAttributes(folder, name, old, changed);
  if (written.ok()) written = companion::write(folder, file, kept);
  if (!written.ok()) {
    if (auto back = changeAttributes(folder, name, changed, old); !back.ok()) return back;
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
