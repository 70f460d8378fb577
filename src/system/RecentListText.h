// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "foundation/base/Result.h"

/// The text of the desktop's list of recently used things (XBEL with the desktop's own elements). What is changed is
/// changed in place: all that others keep in it, known to us or not, stays to the letter.
namespace quorvane::recentlist {

/// Who opened something.
struct Application {
  std::string name;  ///< as users know it; text
  std::string exec;  ///< how it is started, with "%u" for the address
};

/// The list with the folder (an absolute path) as opened now: its entry is added, or its dates and our part in it
/// brought up to date. An empty text becomes a new list. `now` is an ISO 8601 date. Fails, and the list is to be left
/// alone, when it is no such list, not well-formed, or over the limits.
Result<std::string> withFolder(std::string_view text, const std::filesystem::path& folder, const Application& by,
                               std::string_view now);

/// The list without our part: entries that are nobody else's go.
Result<std::string> withoutApplication(std::string_view text, const Application& by);

}  // namespace quorvane::recentlist
