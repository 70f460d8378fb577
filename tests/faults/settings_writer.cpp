// SPDX-License-Identifier: GPL-3.0-or-later
// settings_writer FILE KEY NUMBER  sets one setting and counts "count" up; exit code 1 with the reason when not both
// were kept. Only to be killed and hindered at it.
#include <cstdio>
#include <cstdlib>

#include "foundation/SettingsFile.h"
#include "foundation/UserDefaults.h"

int main(int argc, char** argv) {
  if (argc < 4) return 0;
  quorvane::SettingsFile file(argv[1]);
  quorvane::UserDefaults defaults(file);
  defaults.setInteger(std::atoi(argv[3]), QString::fromUtf8(argv[2]));
  defaults.incrementIntegerForKey(QStringLiteral("count"));
  const auto kept = defaults.synchronize();
  if (!kept.ok()) std::fprintf(stderr, "%s\n", kept.error().message().c_str());
  return kept.ok() ? 0 : 1;
}
