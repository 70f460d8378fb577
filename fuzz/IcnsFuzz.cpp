// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdlib>

#include "iconfamily/format/IcnsContainer.h"

using namespace quorvane;

// The input is a family; storing its last element's data under the first type, or under a new one, must give a family
// that holds it and is written the same way again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  const ByteView family(input, size);
  (void)describeIcns(family);
  const auto elements = icnsElements(family);
  if (!elements) return 0;
  const ByteView data = elements->empty() ? family : elements->back().data;
  for (const FourCharCode type :
       {elements->empty() ? FourCharCode("icnV") : elements->front().type, FourCharCode("t8mk")}) {
    Bytes changed(family.begin(), family.end());
    if (!setIcnsElement(changed, type, data)) continue;
    const auto stored = icnsElement(changed, type);
    if (!stored || !std::equal(stored->begin(), stored->end(), data.begin(), data.end())) std::abort();
    if (icnsElements(changed)->size() > elements->size() + 1) std::abort();
    Bytes again = changed;
    if (!setIcnsElement(again, type, data) || again != changed) std::abort();
  }
  return 0;
}
