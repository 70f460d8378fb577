// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/SystemLibraries.h"

#include <gio/gio.h>

namespace quorvane {

std::vector<LibraryNotice> systemLibraries() {
  const auto part = [](guint number) { return std::to_string(number); };
  return {{.name = "GLib, GIO",
           .version = part(glib_major_version) + '.' + part(glib_minor_version) + '.' + part(glib_micro_version),
           .licence = "LGPL-2.1-or-later"}};
}

}  // namespace quorvane
