// SPDX-License-Identifier: GPL-3.0-or-later
// Real files of other programs, malformed ones, and other programs as readers of what we write. All of them are looked
// for where the test run was told; what is not there is skipped.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>

#include "format/Fixtures.h"
#include "iconfamily/format/AppleDouble.h"
#include "iconfamily/format/IcnsContainer.h"
#include "iconfamily/format/PackedChannels.h"
#include "iconfamily/format/ResourceFork.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

fs::path sharedFolder() {
  const char* told = std::getenv("QUORVANE_SHARED");
  return told != nullptr ? told : QUORVANE_SHARED;
}

std::vector<fs::path> filesIn(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(folder, none)) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

// Unpacks, packs and unpacks again; nothing when the data is no packed colour.
void checkPackedElement(FourCharCode type, ByteView data) {
  const std::pair<FourCharCode, std::size_t> sizes[] = {{"is32", 256}, {"il32", 1024}, {"ih32", 2304}, {"it32", 16384}};
  for (const auto& [packedType, pixels] : sizes) {
    if (type != packedType) continue;
    const auto argb = unpackColorChannels(type == FourCharCode("it32") ? data.subspan(4) : data, pixels);
    ASSERT_TRUE(argb.ok());
    const Bytes packed = packColorChannels(*argb);
    EXPECT_LE(packed.size(), data.size()) << "longer than what others write";
    EXPECT_EQ(*unpackColorChannels(packed, pixels), *argb);
  }
  if (const Bytes start(data.begin(), data.begin() + std::min<std::size_t>(4, data.size()));
      start == test::letters("ARGB")) {
    const std::size_t side = type == FourCharCode("ic04") ? 16 : type == FourCharCode("ic05") ? 32 : 18;
    EXPECT_TRUE(unpackArgbChannels(data.subspan(4), side * side).ok());
  }
}

TEST(ForeignFiles, IconFamiliesHoldWhatAnotherReaderFound) {
  const fs::path corpus = sharedFolder() / "corpus";
  if (!fs::exists(corpus / "icns-expected.json")) GTEST_SKIP() << "no corpus";
  const Bytes text = test::readFile(corpus / "icns-expected.json");
  const QJsonObject expected =
      QJsonDocument::fromJson(QByteArray(reinterpret_cast<const char*>(text.data()), qsizetype(text.size()))).object();
  ASSERT_FALSE(expected.isEmpty());
  for (auto file = expected.begin(); file != expected.end(); ++file) {
    SCOPED_TRACE(file.key().toStdString());
    std::string lines;
    const auto add = [&lines](const char* indent, const QString& type, int length) {
      std::uint32_t code = 0;
      for (const QChar letter : type) code = code << 8 | letter.unicode();
      lines += indent + FourCharCode(code).toDisplayText() + " " + std::to_string(length) + "\n";
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
    for (const IcnsElement& element : *elements) checkPackedElement(element.type, element.data);
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

TEST(ForeignFiles, AnotherReaderSeesThePixelsThatWePacked) {
  if (std::system("/usr/bin/python3 -c 'import PIL.IcnsImagePlugin' 2>/dev/null") != 0) GTEST_SKIP() << "no Pillow";
  const test::TemporaryFolder folder;
  Bytes family;
  Bytes expected;
  for (const std::size_t side : {16, 128}) {
    Bytes argb, mask;
    for (std::size_t i = 0; i < side * side; ++i) {
      const auto level = [&](std::size_t value) { return static_cast<std::uint8_t>(value); };
      // Stretches of one colour, slopes and noise.
      const std::uint8_t pixel[] = {level(i * 255 / (side * side)), level(i / 37 * 50), level(i),
                                    level(i * i * 31 >> 3)};
      argb.insert(argb.end(), {0, pixel[1], pixel[2], pixel[3]});
      expected.insert(expected.end(), {pixel[1], pixel[2], pixel[3], pixel[0]});
      mask.push_back(pixel[0]);
    }
    const bool isLarge = side == 128;
    const Bytes packed = test::join({Bytes(isLarge ? 4 : 0), packColorChannels(argb)});
    ASSERT_TRUE(setIcnsElement(family, isLarge ? "it32" : "is32", packed).ok());
    ASSERT_TRUE(setIcnsElement(family, isLarge ? "t8mk" : "s8mk", mask).ok());
  }
  test::writeFile(folder / "a.icns", family);
  const std::string script =
      "import sys; from PIL import Image; icns = Image.open(sys.argv[1]).icns; "
      "open(sys.argv[2], 'wb').write(b''.join(icns.getimage((n, n, 1)).convert('RGBA').tobytes() for n in (16, 128)))";
  const std::string command = "/usr/bin/python3 -c \"" + script + "\" '" + (folder / "a.icns").string() + "' '" +
                              (folder / "a.rgba").string() + "'";
  ASSERT_EQ(std::system(command.c_str()), 0);
  EXPECT_EQ(test::readFile(folder / "a.rgba"), expected);
}

}  // namespace
}  // namespace quorvane
