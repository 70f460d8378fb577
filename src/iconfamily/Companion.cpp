// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/Companion.h"

#include <algorithm>
#include <cerrno>

#include "foundation/base/Limits.h"

namespace quorvane::companion {

Result<std::string> nameFor(const std::string& name) {
  // Where names may have 255 bytes, two are for the prefix.
  if (name.size() > 253)
    return Error::invalidInput("name of " + std::to_string(name.size()) + " bytes is too long for a companion file");
  return std::string("._").append(name);
}

Result<Companion> read(const Folder& folder, const std::string& file) {
  Companion companion;
  companion.bytes = TRY(folder.readFile(file, limits::iconFileBytes));
  if (!companion.bytes) return companion;
  auto content = AppleDouble::parse(*companion.bytes);
  if (!content.ok()) return content.error().at(folder.pathOf(file));
  companion.content = std::move(*content);
  return companion;
}

bool isNotOurs(const Error& error) {
  switch (error.kind()) {
    case ErrorKind::InvalidInput:
    case ErrorKind::TooLarge:
    case ErrorKind::Refused:
      return true;
    default:
      return false;
  }
}

bool isOutOfReach(const Error& error) {
  return isNotOurs(error) || error.systemCode() == EACCES || error.systemCode() == EPERM;
}

Result<void> write(Folder& folder, const std::string& file, const Companion& companion) {
  if (companion.content.isBlank()) return companion.bytes ? folder.removeFile(file) : Result<void>();
  const auto bytes = companion.content.serialize();
  if (!bytes.ok()) return bytes.error().at(folder.pathOf(file));
  TRY_VOID(folder.writeFile(file, *bytes, companion.bytes));
  return {};
}

FinderInfo withFlags(FinderInfo info, std::uint16_t set, std::uint16_t clear) {
  info.setFlags(static_cast<std::uint16_t>((info.flags() & ~clear) | set));
  return info;
}

Bytes withFlags(const Bytes& attribute, std::uint16_t set, std::uint16_t clear) {
  const FinderInfo info = withFlags(FinderInfo(attribute), set, clear);
  Bytes changed = attribute;
  if (changed.size() < FinderInfo::byteCount) changed.resize(FinderInfo::byteCount);
  std::copy(info.bytes().begin(), info.bytes().end(), changed.begin());
  return changed;
}

}  // namespace quorvane::companion
