// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "iconfamily/format/FinderInfo.h"

/// What file servers for Macs (Samba, netatalk) keep of a file or folder in an extended attribute: an AppleDouble
/// header whose entries hold the Finder info, and besides it dates, comments and numbers of the server's own catalogue.
/// It is the server's: we keep the Finder info in one that exists in step with the other places, byte by byte in place,
/// and never make one. The server makes it with what only it knows (the date of creation that Macs are shown is read
/// from there), only its settings tell whether it keeps one at all, and a folder's companion it takes over by itself.
namespace quorvane::serverrecord {

/// The attribute; Samba's has 402 bytes. What matters is its table of entries, not their usual places.
inline constexpr const char* attributeName = "user.org.netatalk.Metadata";

/// The Finder info in it; InvalidInput for a malformed record or one without that entry.
Result<FinderInfo> infoIn(const Bytes& record);
/// The record with other Finder info in its place and every other byte as it was; fails as infoIn() does.
Result<Bytes> withInfo(Bytes record, const FinderInfo& info);
/// The same for Finder flags alone.
Result<Bytes> withFlags(Bytes record, std::uint16_t set, std::uint16_t clear);

/// For readers of a file or folder, `record` being nullopt where it has none: the info, or nullopt when there is none
/// that can be read. A malformed record is logged.
std::optional<FinderInfo> infoIfAny(const std::optional<Bytes>& record);

}  // namespace quorvane::serverrecord
