// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quorvane {

/// A library that the program is linked with, for those who want to know. UTF-8.
struct LibraryNotice {
  std::string name;
  std::string version;  ///< of the library that runs, where it tells; else of the one it was built with
  std::string licence;  ///< an SPDX expression
  bool operator==(const LibraryNotice&) const = default;
};

}  // namespace quorvane
