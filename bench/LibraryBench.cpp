// SPDX-License-Identifier: GPL-3.0-or-later
// The icon library on disk. Listing a set of 1,000 icons of about 150 kB against listing an empty one, and the memory
// that it takes (wanted: no more than the window's start can bear, and 40 MB). Adding 200 pictures of 1024 x 1024
// against reading and encoding them on as many threads (wanted: at most 1.1 times).
#include <unistd.h>

#include <fstream>
#include <random>

#include "Compare.h"
#include "foundation/FileReading.h"
#include "iconfamily/AppleDoubleForkStore.h"
#include "imaging/PngCodec.h"
#include "library/core/AddingIcons.h"
#include "library/core/IconSet.h"
#include "library/core/NewIcons.h"
#include "system/KindIcons.h"

namespace quorvane::bench {
namespace {

namespace fs = std::filesystem;

double residentMegabytes() {
  std::ifstream file("/proc/self/statm");
  long total = 0;
  long resident = 0;
  file >> total >> resident;
  return static_cast<double>(resident) * static_cast<double>(::sysconf(_SC_PAGESIZE)) / 1e6;
}

/// A picture that compresses as icons do: a slope with some noise.
BitmapImageRep picture(int side) {
  auto bitmap = BitmapImageRep::bitmapImageRepWithSize({float(side), float(side)});
  std::mt19937 random(7);
  for (int y = 0; y < side; ++y) {
    std::uint8_t* row = bitmap.mutableRow(y);
    for (int x = 0; x < side; ++x, row += 4) {
      row[0] = static_cast<std::uint8_t>(x * 200 / side + random() % 3);
      row[1] = static_cast<std::uint8_t>(y * 200 / side);
      row[2] = 90;
      row[3] = 255;
    }
  }
  return bitmap;
}

void writeFile(const fs::path& path, ByteView bytes) {
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

struct Place {
  Place() {
    fs::remove_all(root);
    for (const char* name : {"full", "empty", "sources"}) fs::create_directories(root / name);
  }
  ~Place() { fs::remove_all(root); }

  fs::path root = fs::temp_directory_path() / ("quorvane-library-bench-" + std::to_string(::getpid()));
  AppleDoubleForkStore forks;
  OwnKindIcons kinds;
  StampingNotices notices;
  IconServices icons{.forks = forks, .kinds = kinds, .notices = notices};
  LibraryServices services{.icons = icons};
};

void listIcons(benchmark::State& state) {
  const Place place;
  const auto family = *IconFamily::iconFamilyWithThumbnailsOfImage(Image::imageWithBitmapImageRep(picture(512)));
  for (int i = 0; i < 1000; ++i) writeFile(place.root / "full" / (std::to_string(i) + ".icns"), family.bytes());
  const double before = residentMegabytes();
  const auto kept = IconSet::initWithPath(place.root / "full", place.services);
  state.counters["megabytes"] = residentMegabytes() - before;
  state.counters["icon_kB"] = static_cast<double>(family.bytes().size()) / 1000;
  if (kept->icons().size() != 1000) state.SkipWithError("not all icons are listed");
  compare(
      state, [&] { IconSet::initWithPath(place.root / "full", place.services); },
      [&] { IconSet::initWithPath(place.root / "empty", place.services); });
}

void addIcons(benchmark::State& state) {
  const Place place;
  const Bytes png = *encodePng(picture(1024));
  std::vector<fs::path> sources;
  for (int i = 0; i < 200; ++i) {
    sources.push_back(place.root / "sources" / (std::to_string(i) + ".png"));
    writeFile(sources.back(), png);
  }
  compare(
      state, [&] { benchmark::DoNotOptimize(addIconsAtPaths(sources, place.root / "full", place.services)); },
      [&] {
        library::makeInOrder(
            sources.size(), [&](std::size_t at) { return library::showableFamilyOf(sources[at], place.services); },
            [](std::size_t, const Result<IconFamily>& family) { return family.ok(); });
      });
}

BENCHMARK(listIcons)->Name("list 1,000 icons")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(addIcons)->Name("add 200 pictures")->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
}  // namespace quorvane::bench
