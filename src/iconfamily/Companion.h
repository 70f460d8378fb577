// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "foundation/Folder.h"
#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "iconfamily/format/AppleDouble.h"

/// Companion files on disk, and the Finder flags in them.
namespace quorvane::companion {

/// The companion of the folder itself, inside it, at the root of a file system.
inline constexpr const char* insideName = "._.";

/// "._NAME"; fails for a name that is too long to have a companion.
Result<std::string> nameFor(const std::string& name);

/// A companion as it was read.
struct Companion {
  std::optional<Bytes> bytes;  ///< nullopt: there is no such file
  AppleDouble content;         ///< without entries then
};

/// Fails on a malformed companion, and on anything but a plain file.
Result<Companion> read(const Folder& folder, const std::string& file);
/// Whether a failure to read a companion means that it is none that we would ever have written: it is malformed, too
/// large, or no plain file.
bool isNotOurs(const Error& error);
/// The same, or that it is kept from us. All other failures say nothing about a companion.
bool isOutOfReach(const Error& error);
/// Writes the changed content, or removes the file when nothing in it is worth keeping. Refused when somebody else
/// changed it since it was read.
Result<void> write(Folder& folder, const std::string& file, const Companion& companion);

/// The flags of Finder info changed, all other bytes kept.
FinderInfo withFlags(FinderInfo info, std::uint16_t set, std::uint16_t clear);
/// The same for Finder info kept in an attribute: 32 bytes, or whatever stands there.
Bytes withFlags(const Bytes& attribute, std::uint16_t set, std::uint16_t clear);

}  // namespace quorvane::companion
