// SPDX-License-Identifier: GPL-3.0-or-later
// Real files of other programs, malformed ones, and other programs as readers of what we write. All of them are looked
// for where the test run was told; what is not there is skipped.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>

#include "format/Fixtures.h"
#include "iconfamily/format/AppleDouble.h"
#include "iconfamily/format/IcnsContainer.h"
#include "iconfamily/format/PackedChannels.h"
#include "iconfamily/format/ResourceFork.h"
#include "support/Corpus.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using test::sharedFolder;

std::vector<fs::path> filesIn(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(folder, none)) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

TEST(ForeignFiles, IconFamiliesHoldWhatAnotherReaderFound) {
  const fs::path corpus = sharedFolder() / "corpus";
  const QJsonObject expected = test::expectedOfIcns();
  if (expected.isEmpty()) GTEST_SKIP() << "no corpus";
  for (auto file = expected.begin(); file != expected.end(); ++file) {
    SCOPED_TRACE(file.key().toStdString());
    std::string lines;
    const auto add = [&lines](const char* indent, const QString& type, int length) {
      lines += indent + test::codeOf(type).toDisplayText() + " " + std::to_string(length) + "\n";
    };
    for (const auto& each : file.value()[QLatin1String("elements")].toArray()) {
      add("", each[QLatin1String("type")].toString(), each[QLatin1String("data_bytes")].toInt());
      for (const auto& inner : each[QLatin1String("nested")].toArray())
        add("  ", inner.toArray()[0].toString(), inner.toArray()[1].toInt());
    }
    Bytes bytes = test::readFile(corpus / "icns" / file.key().toStdString());
    EXPECT_EQ(describeIcns(bytes), lines);

    const auto elements = icnsElements(bytes);
    ASSERT_TRUE(elements.ok());
    // What others packed does not get longer.
    for (const auto& [type, pixels] :
         {std::pair<FourCharCode, std::size_t>{"is32", 256}, {"il32", 1024}, {"ih32", 2304}})
      if (const auto packed = icnsElement(bytes, type)) {
        EXPECT_LE(packColorChannels(*unpackColorChannels(*packed, pixels)).size(), packed->size());
      }
    if (elements->empty()) continue;
    // Storing what is there already changes nothing, the table of contents included.
    const Bytes before = bytes;
    const IcnsElement last = elements->back();
    ASSERT_TRUE(setIcnsElement(bytes, last.type, last.data).ok());
    EXPECT_EQ(bytes, before);
  }
}

TEST(ForeignFiles, CompanionsComeBackByteForByte) {
  const auto files = filesIn(sharedFolder() / "corpus" / "appledouble");
  if (files.empty()) GTEST_SKIP() << "no corpus";
  for (const fs::path& file : files) {
    SCOPED_TRACE(file);
    const Bytes bytes = test::readFile(file);
    const auto companion = AppleDouble::parse(bytes);
    ASSERT_TRUE(companion.ok()) << companion.error().message();
    EXPECT_EQ(*companion->serialize(), bytes);
    EXPECT_TRUE(companion->finderInfo());
    EXPECT_TRUE(ResourceFork::parse(companion->resourceFork()).ok());
  }
}

void readAsEverything(const Bytes& bytes) {
  (void)describeIcns(bytes);
  if (const auto elements = icnsElements(bytes))
    for (const IcnsElement& element : *elements)
      for (const std::size_t pixels : {256, 324, 1024, 2304, 16384}) {
        (void)unpackColorChannels(element.data, pixels);
        (void)unpackArgbChannels(element.data, pixels);
      }
  Bytes changed = bytes;
  (void)setIcnsElement(changed, "is32", {});
  if (const auto fork = ResourceFork::parse(bytes); fork && fork->serialize()) {
    EXPECT_TRUE(ResourceFork::parse(*fork->serialize()).ok());
  }
  if (auto companion = AppleDouble::parse(bytes)) {
    (void)companion->isBlank();
    (void)ResourceFork::parse(companion->resourceFork());
    companion->setResourceFork({});
    EXPECT_TRUE(AppleDouble::parse(*companion->serialize()).ok());
  }
}

TEST(ForeignFiles, MalformedOnesEndInAnAnswer) {
  const fs::path maker = sharedFolder() / "oracles" / "malform.py";
  const auto icons = filesIn(sharedFolder() / "corpus" / "icns");
  if (!fs::exists(maker) || icons.empty()) GTEST_SKIP() << "no maker of malformed files";
  const test::TemporaryFolder folder;
  const std::string command = "/usr/bin/python3 '" + maker.string() + "' '" + folder.path().string() + "' --base '" +
                              icons.front().string() + "' >/dev/null";
  ASSERT_EQ(std::system(command.c_str()), 0);
  std::size_t count = 0;
  for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
    if (!entry.is_regular_file()) continue;
    SCOPED_TRACE(entry.path());
    const auto begin = std::chrono::steady_clock::now();
    readAsEverything(test::readFile(entry.path()));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
    ++count;
  }
  EXPECT_GT(count, 400U);
  for (const char* legal : {"fork/good.rsrc", "fork/name-empty-list.rsrc", "fork/name-255.rsrc", "fork/data-at-16.rsrc",
                            "fork/2500-resources.rsrc", "fork/negative-types.rsrc", "fork/two-share.rsrc"})
    EXPECT_TRUE(ResourceFork::parse(test::readFile(folder / legal)).ok()) << legal;
  for (const char* legal :
       {"good", "fork-first", "only-finder", "only-fork", "fork-zero", "finder-70", "unknown", "v1"})
    EXPECT_TRUE(AppleDouble::parse(test::readFile(folder / "appledouble" / (std::string("._") + legal))).ok()) << legal;
}

}  // namespace
}  // namespace quorvane
