// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>

#include "app/core/LabelPattern.h"
#include "app/core/LookFile.h"

using namespace quorvane;

// A look that can be read can be written, and reads the same again; and its label can be made.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  const auto saved = lookFromJson({input, size});
  if (!saved) return 0;
  const auto json = lookToJson(*saved);
  if (!json && json.error().kind() == ErrorKind::TooLarge) return 0;
  if (!json) std::abort();
  const auto again = lookFromJson(*json);
  if (!again || *lookToJson(*again) != *json) std::abort();
  if (again->labelPattern != saved->labelPattern || again->base != saved->base) std::abort();
  const auto label = labelOf(saved->labelPattern, []() -> Result<QString> { return QStringLiteral("{name}"); });
  if (label && *labelOf(patternOf(*label), {}) != *label) std::abort();
  return 0;
}
