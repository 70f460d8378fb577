// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "app/core/Rows.h"
#include "cli/Arguments.h"
#include "foundation/InputStream.h"
#include "foundation/ListReader.h"

namespace quorvane::cli {

/// One folder that the caller asked for.
struct FolderItem {
  std::filesystem::path folder;
  std::size_t line = 0;                                     ///< of the table; 0 for folders that come otherwise
  std::vector<std::pair<std::string, std::string>> values;  ///< of its row
  std::optional<Error> fault;                               ///< why the row cannot be used; `folder` is empty then
};

/// The folders of a call, one after the other: those of the command line, then those of the list or the rows of the
/// table that it names. Lists and tables are read as they are needed and never held whole.
class FolderSource {
 public:
  /// `arguments` must outlive it. Fails when the list cannot be opened; on a terminal with ErrorKind::Unsupported.
  static Result<FolderSource> open(const Arguments& arguments);

  /// nullopt at the end; a failure of the list is the end, too.
  Result<std::optional<FolderItem>> next();

  /// How many there are; nullopt when that cannot be told before they have come (a pipe), or would take long.
  [[nodiscard]] std::optional<std::size_t> total() const;

 private:
  explicit FolderSource(const Arguments& arguments) : _arguments(&arguments) {}

  const Arguments* _arguments;
  std::size_t _given = 0;  ///< of the command line's folders
  std::optional<std::uint64_t> _listBytes;
  std::variant<std::monostate, ListReader, RowReader> _list;
};

}  // namespace quorvane::cli
