// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds a fuzz target what is stored for it, without a fuzzer: each file as it is, cut short, and with single bytes
// changed. Built with any compiler and run with the ordinary tests, so that what was found once stays found.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size);

namespace {

using Bytes = std::vector<std::uint8_t>;

// Places in a file at which it is cut and changed; larger files are tried at that many, evenly spread.
constexpr std::size_t places = 120;

// From the heap and no longer than the input, so that a read behind its end is seen.
void feed(const Bytes& bytes) {
  const Bytes copy(bytes);
  LLVMFuzzerTestOneInput(copy.data(), copy.size());
}

std::size_t feedVariants(const Bytes& whole) {
  std::size_t count = 1;
  feed(whole);
  const std::size_t step = std::max<std::size_t>(1, whole.size() / places);
  for (std::size_t at = 0; at < whole.size(); at += step) {
    feed(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(at)));
    for (const std::uint8_t change : Bytes{0x01, 0x80, 0xFF}) {
      Bytes changed = whole;
      changed[at] ^= change;
      feed(changed);
    }
    count += 4;
  }
  return count;
}

}  // namespace

int main(int argc, char** argv) {
  std::size_t files = 0;
  std::size_t inputs = 0;
  for (int i = 1; i < argc; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
      std::ifstream file(entry.path(), std::ios::binary);
      const Bytes bytes{std::istreambuf_iterator<char>(file), {}};
      // Named first: a crash leaves no other trace.
      std::printf("%s (%zu bytes)\n", entry.path().c_str(), bytes.size());
      std::fflush(stdout);
      ++files;
      inputs += feedVariants(bytes);
    }
  }
  std::printf("%zu files, %zu inputs\n", files, inputs);
  return files == 0 ? 1 : 0;
}
