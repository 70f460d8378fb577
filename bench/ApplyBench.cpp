// SPDX-License-Identifier: GPL-3.0-or-later
// One whole apply on a memory file system: compose, encode, keep the old state, back up, write, read back; and the
// reset that takes it out again. The reference is plain libpng encoding two pictures, 512 and 256 pixels, into files
// there.
#include <unistd.h>

#include <QGuiApplication>
#include <filesystem>
#include <fstream>

#include "Compare.h"
#include "LibpngReference.h"
#include "app/core/FolderBranding.h"
#include "app/core/Look.h"
#include "iconfamily/AppleDoubleForkStore.h"

namespace quorvane::bench {
namespace {

namespace fs = std::filesystem;

void apply(benchmark::State& state) {
  const fs::path place = fs::exists("/dev/shm") ? "/dev/shm" : fs::temp_directory_path();
  const fs::path folder = place / ("quorvane-bench-" + std::to_string(::getpid()));
  fs::create_directories(folder);
  AppleDoubleForkStore forks;
  const OwnKindIcons kinds;
  StampingNotices notices;
  const IconServices services{.forks = forks, .kinds = kinds, .notices = notices};
  const FolderBranding branding(services);
  Look look;
  look.label = QStringLiteral("Invoices\n2026\nthird line");
  look.fontName = "DejaVu Sans";
  look.effectTag = 1;
  look.shearFactor = 0.2F;
  look.rotation = 15;

  bool isDone = true;
  compare(
      state,
      [&] {
        isDone = isDone && branding.writeIconWithImage(*composeIcon(look, *branding.originalIconImage(folder)), folder);
        isDone = isDone && branding.reset(folder);
      },
      [&] {
        for (const Picture& picture : pictures()) {
          const Bytes bytes = encodeWithLibpng(picture);
          std::ofstream(folder / "reference.png")
              .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        }
        fs::remove(folder / "reference.png");
      });
  fs::remove_all(folder);
  if (!isDone) state.SkipWithError("a folder could not be branded");
}

BENCHMARK(apply)->Name("apply and reset one folder")->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorvane::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
