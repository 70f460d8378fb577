// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/LibraryNotice.h"
#include "foundation/base/Result.h"

struct zip;

namespace quorvane::library {

/// What reads and writes zip files here.
LibraryNotice zipLibrary();

/// A plain file in a zip file.
struct ZipEntry {
  std::vector<std::string> steps;  ///< its path: names of folders, and its own
  std::uint64_t index;
  std::uint64_t bytes;
};

/// A zip file that is read from memory. What names of entries lead to has been checked: see entries().
class ZipReader {
 public:
  /// The bytes must outlive it.
  static Result<ZipReader> open(ByteView bytes);

  /// The plain files in it. Refuses names that lead out of it or could be taken for another one, links, entries that
  /// are encrypted, and more than the limits allow.
  [[nodiscard]] Result<std::vector<ZipEntry>> entries() const;
  /// An entry's content. One thread at a time.
  [[nodiscard]] Result<Bytes> read(const ZipEntry& entry) const;

 private:
  explicit ZipReader(zip* handle, std::size_t length);

  std::shared_ptr<zip> _handle;
  std::size_t _length;
};

/// Puts a zip file together in memory.
class ZipWriter {
 public:
  /// The name is UTF-8. `isPacked` compresses: pictures are compressed already.
  Result<void> add(const std::string& name, Bytes bytes, bool isPacked);
  Result<Bytes> finish() &&;

 private:
  struct Item {
    std::string name;
    Bytes bytes;
    bool isPacked;
  };
  std::vector<Item> _items;
  std::size_t _length = 0;
};

}  // namespace quorvane::library
