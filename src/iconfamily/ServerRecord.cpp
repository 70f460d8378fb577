// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/ServerRecord.h"

#include <algorithm>
#include <string>

#include "foundation/base/Log.h"
#include "iconfamily/Companion.h"
#include "iconfamily/format/AppleDouble.h"

namespace quorvane::serverrecord {

namespace {

// Where the Finder info starts.
Result<std::size_t> infoOffset(const Bytes& record) {
  const auto parsed = AppleDouble::parse(record);
  if (!parsed.ok())
    return Error(parsed.error().kind(), std::string("attribute ") + attributeName + ": " + parsed.error().why());
  const auto offset = parsed->finderInfoOffset();
  if (!offset) return Error::invalidInput(std::string("attribute ") + attributeName + ": it has no Finder info");
  return *offset;
}

}  // namespace

Result<FinderInfo> infoIn(const Bytes& record) {
  return FinderInfo(ByteView(record).subspan(TRY(infoOffset(record)), FinderInfo::byteCount));
}

Result<Bytes> withInfo(Bytes record, const FinderInfo& info) {
  const std::size_t offset = TRY(infoOffset(record));
  std::copy(info.bytes().begin(), info.bytes().end(), record.begin() + static_cast<std::ptrdiff_t>(offset));
  return record;
}

Result<Bytes> withFlags(Bytes record, std::uint16_t set, std::uint16_t clear) {
  const FinderInfo info = companion::withFlags(TRY(infoIn(record)), set, clear);
  return withInfo(std::move(record), info);
}

std::optional<FinderInfo> infoIfAny(const std::optional<Bytes>& record) {
  if (!record) return std::nullopt;
  auto info = infoIn(*record);
  if (!info.ok()) logMessage("iconfamily", info.error().message());
  return std::move(info).toOptional();
}

}  // namespace quorvane::serverrecord
