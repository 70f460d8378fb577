// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/FileManagerExtras.h"

namespace quorvane {

bool isDirectory(const std::filesystem::path& path) {
  std::error_code ignored;
  return std::filesystem::is_directory(path, ignored);
}

}  // namespace quorvane
