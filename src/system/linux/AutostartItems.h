// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "foundation/base/Result.h"

namespace quorvane {

/// The programs that start with the user's session, as desktop entries in one folder. Entries that we made carry a
/// mark; all others are read only. Nothing is done outside the folder, and no link in it is followed.
///
/// No key of desktop entries starts a program without its window. For items that are to be hidden, the mark says so,
/// and the desktop shows no sign of a start.
class AutostartItems {
 public:
  /// The folder need not exist.
  explicit AutostartItems(std::filesystem::path folder) : _folder(std::move(folder)) {}

  /// Makes or replaces the item of a program, named after its file without extension. `path` is absolute UTF-8.
  Result<void> add(const std::string& path, bool hidden);
  /// Success when there is none.
  Result<void> remove(const std::string& name);

  struct Item {
    std::string name;
    std::string path;
    bool hidden = false;
  };
  /// All that start, whoever made them; not those that are switched off. What cannot be read is left out.
  [[nodiscard]] std::vector<Item> items() const;

 private:
  std::filesystem::path _folder;
};

/// The commands for login items that scripts can give.
struct AddLoginItem {
  std::string path;
  bool hidden = false;
};
struct RemoveLoginItem {
  std::string name;
};
using LoginItemCommand = std::variant<AddLoginItem, RemoveLoginItem>;
/// Fails with ErrorKind::Unsupported on any other script.
Result<LoginItemCommand> parseLoginItemScript(std::string_view script);

}  // namespace quorvane
