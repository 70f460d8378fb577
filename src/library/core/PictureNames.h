// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "library/core/NewIcons.h"

namespace quorvane::library {

/// Whether a name's ending, in any case, is that of a picture that can be read or of an icns file.
bool isPictureName(const std::string& name);
/// The name with its letters A to Z small: two that agree in this are one on some file systems.
std::string lowered(std::string name);

/// The files of a set that is being made: each under a name of its own whatever the case of letters, and within the
/// limits.
class NewSetFiles {
 public:
  /// Fails when there is no more room. The name under which it stands is that of the last of files().
  Result<void> add(const std::string& base, const std::string& ending, ByteView bytes);
  [[nodiscard]] const std::vector<NewFile>& files() const { return _files; }

 private:
  std::vector<NewFile> _files;
  std::set<std::string> _taken;
  std::size_t _bytes = 0;
};

}  // namespace quorvane::library
