// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/KeptFiles.h"

namespace quorvane {

Result<bool> keepFile(const Folder& folder, const std::string& name, const Folder& in, const std::string& as) {
  if (!TRY(folder.statusOf(name))) return false;
  TRY_VOID(folder.preserve(name, in, as));
  return true;
}

Result<void> putBackFile(const Folder& from, const std::string& keptName, Folder& to, const std::string& name) {
  const std::string temporary = Folder::temporaryName();
  TRY_VOID(from.preserve(keptName, to, temporary));
  if (const auto renamed = to.rename(temporary, to, name); !renamed) {
    (void)to.removeFile(temporary);  // else the next opening for writing sweeps it
    return renamed;
  }
  // Two names of one file are not renamed over each other; the first then simply goes.
  return to.removeFile(temporary);
}

}  // namespace quorvane
