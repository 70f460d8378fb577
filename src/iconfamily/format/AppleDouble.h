// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "iconfamily/format/FinderInfo.h"

namespace quorvane {

/// A companion file ("._NAME"), version 2: what a file system without forks keeps beside a file.
///
/// Entries that we do not know are kept whole, in order, when the file is written again; so is the filler, and the
/// attribute block behind the 32 bytes of a longer Finder entry (offsets inside that block count from the start of the
/// file and are moved along). Of entries that stand twice the first counts; changing one drops the others. A file of
/// version 1 stays one.
class AppleDouble {
 public:
  enum class EntryId : std::uint32_t { DataFork = 1, ResourceFork = 2, FinderInfo = 9 };

  /// A companion without entries.
  AppleDouble() = default;
  /// Checks magic, version (1 and 2 are read), the table and each entry's bounds; overlapping entries are refused.
  static Result<AppleDouble> parse(ByteView bytes);

  /// The file's bytes: data of the Finder info first, resource fork last, other entries between. The table keeps its
  /// order; new entries join it in the order of the data.
  [[nodiscard]] Result<Bytes> serialize() const;

  /// The first 32 bytes of the Finder entry; nullopt without one (or with fewer bytes).
  [[nodiscard]] std::optional<FinderInfo> finderInfo() const;
  /// Where those 32 bytes stood in the bytes that were parsed, for changing them in place.
  [[nodiscard]] std::optional<std::size_t> finderInfoOffset() const;
  /// Adds the entry or changes its first 32 bytes.
  void setFinderInfo(const FinderInfo& info);
  /// The resource fork's bytes; empty without the entry.
  [[nodiscard]] ByteView resourceFork() const;
  /// Empty bytes remove the entry.
  void setResourceFork(Bytes fork);

  /// True when nothing is worth keeping: no fork resource bytes, Finder info all zero, no attributes, no other entry.
  [[nodiscard]] bool isBlank() const;

 private:
  struct Entry {
    std::uint32_t id = 0;
    std::uint32_t originalOffset = 0;
    Bytes data;
  };

  [[nodiscard]] const Entry* find(EntryId id) const;
  /// The entry of that ID, made when there is none; others of the ID are dropped.
  Entry& theOnly(EntryId id);
  [[nodiscard]] std::vector<const Entry*> storageOrder() const;

  std::uint32_t _version = 0x00020000;
  Bytes _filler = Bytes(16, 0);
  std::vector<Entry> _entries;
};

}  // namespace quorvane
