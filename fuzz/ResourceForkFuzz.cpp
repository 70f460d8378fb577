// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>

#include "iconfamily/format/ResourceFork.h"

using namespace quorvane;

// A fork that is read and can be written must be read back with the same resources, and written the same way again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  const auto fork = ResourceFork::parse(ByteView(input, size));
  if (!fork) return 0;
  const auto written = fork->serialize();
  if (!written) return 0;
  const auto back = ResourceFork::parse(*written);
  if (!back || back->resources().size() != fork->resources().size()) std::abort();
  if (back->serialize().value() != *written) std::abort();
  for (const Resource& resource : fork->resources()) {
    const Resource* found = back->find(resource.type, resource.id);
    const Resource* first = fork->find(resource.type, resource.id);
    if (found == nullptr || found->data != first->data || found->name != first->name) std::abort();
  }
  return 0;
}
