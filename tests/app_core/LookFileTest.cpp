// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/LookFile.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/core/LabelPattern.h"
#include "foundation/base/Limits.h"
#include "imaging/PngCodec.h"
#include "support/Bitmaps.h"
#include "support/BrandingFixture.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

Bytes bytesOf(std::string_view text) {
  return {text.begin(), text.end()};
}

std::string textOf(const Bytes& bytes) {
  return {bytes.begin(), bytes.end()};
}

/// A look file with these keys besides the version.
std::string withKeys(const std::string& keys) {
  return R"({"quorvane-look": 1, )" + keys + "}";
}

TEST(LookFile, HoldsAllOfALookAndWhatOthersKeepInIt) {
  SavedLook saved;
  saved.look.fontName = "DejaVu Sans Bold";
  saved.look.fontSize = 24.5;
  saved.look.color = QColor(0xB0, 0, 0x20, 0x80);
  saved.look.effectTag = 7;
  saved.look.lineSpacingFactor = 0.2F;
  saved.look.labelCenter = {10, -2.5F};
  saved.look.shearFactor = 0.1F;
  saved.look.rotation = -15;
  saved.look.opacity = 0.75F;
  saved.labelPattern = QStringLiteral("{name}\n{{x}");
  saved.base = "pictures/box.png";
  saved.others = {{QStringLiteral("note"), QStringLiteral("ours")}};
  const auto json = lookToJson(saved);
  ASSERT_TRUE(json.ok()) << json.error().message();
  for (const char* part : {R"("line-spacing": 0.2,)", R"("color": "#b0002080")", R"("effect": "green-glow")",
                           R"("note": "ours")", R"("quorvane-look": 1)", R"("rotate": -15)"})
    EXPECT_NE(textOf(*json).find(part), std::string::npos) << part << "\n" << textOf(*json);

  const auto read = lookFromJson(*json);
  ASSERT_TRUE(read.ok()) << read.error().message();
  EXPECT_EQ(read->labelPattern, saved.labelPattern);
  EXPECT_EQ(read->base, saved.base);
  EXPECT_EQ(read->look.fontSize, 24.5);
  EXPECT_EQ(read->look.color, saved.look.color);
  EXPECT_EQ(read->look.lineSpacingFactor, 0.2F);
  EXPECT_EQ(read->look.labelCenter, saved.look.labelCenter);
  EXPECT_EQ(*lookToJson(*read), *json);

  const auto least = lookFromJson(bytesOf(R"({"quorvane-look": 1, "size": null})"));
  ASSERT_TRUE(least.ok());
  EXPECT_TRUE(least->labelPattern.isNull());
  EXPECT_FALSE(least->look.fontSize || least->base);
  EXPECT_EQ(lookFromJson(bytesOf(withKeys(R"("effect": 5)")))->look.effectTag, 5);
}

TEST(LookFile, OfAnotherKindIsRefusedWithTheReason) {
  struct Row {
    std::string json;
    std::string reason;
  };
  for (const Row& row : std::vector<Row>{
           {"", "is no JSON"},
           {"{\"quorvane-look\": 1", "is no JSON"},
           {"[]", "is no look file"},
           {"{}", "is no look file"},
           {R"({"quorvane-look": "1"})", "is no look file"},
           {R"({"quorvane-look": 2})", "newer version"},
           {withKeys(R"("size": NaN)"), "is no JSON"},
           {withKeys(R"("size": 1e999)"), "is no JSON"},
           {withKeys(R"("size": 1e308)"), "size takes a number from 1 to 2000, not '1e+308'"},
           {withKeys(R"("size": "12")"), "\"size\" is no number"},
           {withKeys(R"("rotate": 1e9)"), "rotate takes a number"},
           {withKeys(R"("opacity": -0.5)"), "opacity takes a number from 0 to 1"},
           {withKeys(R"("center": [1])"), "\"center\" is no pair of numbers"},
           {withKeys(R"("center": [1e308, 0])"), "center takes X,Y"},
           {withKeys(R"("color": "reddish")"), "'reddish' is no colour"},
           {withKeys(R"("effect": "sparkling")"), "no effect 'sparkling'"},
           {withKeys(R"("effect": [])"), "\"effect\" is no name"},
           {withKeys(R"("label": "\ud800")"), "\"label\" is no text"},
           {withKeys(R"("label": 5)"), "\"label\" is no text"},
           {withKeys(R"("label": "a\u0000b")"), "zero byte"},
           {withKeys(R"("label": "{date}")"), "no placeholder {date}"},
           {withKeys("\"label\": \"" + std::string(limits::labelBytes + 1, 'x') + "\""), "the label is longer"},
           {withKeys("\"label\": \"\xFF\""), "is no JSON"},
           {withKeys("\"x\": \"" + std::string(limits::lookFileBytes, 'x') + "\""), "no look file"},
           {withKeys("\"font\": \"" + std::string(limits::fontNameBytes + 1, 'x') + "\""), "the font's name is longer"},
           {withKeys(R"("base": "../box.png")"), "leads out of the folder"},
           {withKeys(R"("base": "a/../../box.png")"), "leads out of the folder"},
           {withKeys(R"("base": "/etc/passwd")"), "absolute path"},
           {withKeys(R"("base": "")"), "names no file"},
           {withKeys(R"("base": "a/")"), "names no file"},
           {withKeys("\"x\": " + std::string(100000, '[')), "is no JSON"},
       }) {
    const auto look = lookFromJson(bytesOf(row.json));
    ASSERT_FALSE(look.ok()) << row.json.substr(0, 100);
    EXPECT_NE(look.error().message().find(row.reason), std::string::npos) << look.error().message();
  }
}

TEST(LookFile, ItsBasePictureStaysInTheFolderOfTheFile) {
  const test::TemporaryFolder place;
  fs::create_directories(place / "looks/pictures");
  fs::create_directories(place / "elsewhere");
  const Bytes png = *encodePng(test::plainImage(Qt::green, 16).rendered(16, 16));
  for (const char* name : {"looks/pictures/box.png", "elsewhere/box.png"}) {
    auto folder = Folder::open((place / name).parent_path(), Folder::Access::Write);
    ASSERT_TRUE(folder->writeFile("box.png", png).ok());
  }
  fs::create_symlink(place / "elsewhere", place / "looks/link");
  fs::create_symlink("../../elsewhere/box.png", place / "looks/pictures/link.png");
  fs::create_symlink("looks/x.look", place / "from-outside.look");

  const fs::path file = place / "looks/x.look";
  const auto baseAfterSaving = [&](const fs::path& base) {
    SavedLook saved;
    saved.base = base;
    EXPECT_TRUE(writeLookFile(file, saved).ok());
    // Found beside the very file, from wherever it is reached.
    auto look = readLookFile(place / "from-outside.look");
    EXPECT_TRUE(look.ok()) << look.error().message();
    return readBasePicture(*look->base);
  };
  EXPECT_TRUE(baseAfterSaving("pictures/box.png").ok());
  EXPECT_TRUE(baseAfterSaving("./pictures//box.png").ok());
  EXPECT_FALSE(baseAfterSaving("link/box.png").ok());
  EXPECT_FALSE(baseAfterSaving("pictures/link.png").ok());
  EXPECT_FALSE(baseAfterSaving("pictures/none.png").ok());
  EXPECT_FALSE(baseAfterSaving("pictures").ok());

  const auto reference = [&](const fs::path& picture) {
    return innerReference({.path = picture, .within = {}}, place / "looks/new.look");
  };
  EXPECT_EQ(*reference(place / "looks/pictures/box.png"), "pictures/box.png");
  EXPECT_EQ(reference(place / "elsewhere/box.png").error().kind(), ErrorKind::Refused);
  EXPECT_EQ(reference(place / "looks/link/box.png").error().kind(), ErrorKind::Refused);

  // Never through a link.
  fs::create_symlink(place / "elsewhere/victim", place / "looks/planted.look");
  EXPECT_FALSE(writeLookFile(place / "looks/planted.look", {}).ok());
  EXPECT_FALSE(fs::exists(place / "elsewhere/victim"));
}

TEST(LookFile, BringsTintAndOverlayAlong) {
  const auto picture =
      OverlayPicture::fromImage(Image::imageWithBitmapImageRep(test::filledBitmap(3, 2, {9, 8, 7, 255})));
  ASSERT_TRUE(picture.ok());
  for (const OverlayDrawing& drawing : {OverlayDrawing(OverlayEmblem{QStringLiteral("star")}),
                                        OverlayDrawing(OverlayEmoji{QStringLiteral("🎉")}), OverlayDrawing(*picture)}) {
    SavedLook saved;
    saved.look.tint = QColor(1, 2, 3, 128);
    saved.look.overlay = {drawing, {20.5F, -3}, 77, 0.25F, QColor(Qt::yellow)};
    const auto read = lookFromJson(*lookToJson(saved));
    ASSERT_TRUE(read.ok()) << read.error().message();
    EXPECT_EQ(read->look.tint, saved.look.tint);
    EXPECT_EQ(read->look.overlay, saved.look.overlay);
    EXPECT_TRUE(read->others.isEmpty());
  }
  const auto plain = lookFromJson(bytesOf(withKeys(R"("color": "red")")));
  EXPECT_FALSE(plain->look.tint || plain->look.overlay.hasDrawing());
  EXPECT_EQ(textOf(*lookToJson(*plain)).find("overlay"), std::string::npos);

  const std::string tooLong(600'000, 'A');
  const auto wide = encodePng(test::filledBitmap(513, 1));
  const auto base64 = [](const Bytes& bytes) {
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()))
        .toBase64()
        .toStdString();
  };
  for (const std::string& keys : std::vector<std::string>{
           R"("tint": "none of these")", R"("tint": 7)", R"("overlay": "/etc/passwd")", R"("overlay": "../a.png")",
           R"("overlay": "emblem:../../pictures/folder")", R"("overlay": "emblem:")", R"("overlay": "emoji:ab")",
           R"("overlay": ["emoji:a"])", R"("overlay-picture": "/etc/passwd")", R"("overlay-picture": "AAAA")",
           R"("overlay-picture": ")" + tooLong + "\"", R"("overlay-picture": ")" + base64(*wide) + "\"",
           R"("overlay": "emoji:a", "overlay-picture": ")" + base64(picture->png()) + "\"", R"("overlay-size": 1e308)",
           R"("overlay-size": 0)", R"("overlay-opacity": -1)", R"("overlay-center": [1e308, 0])",
           R"("overlay-center": 5)", R"("overlay-size": NaN)"})
    EXPECT_FALSE(lookFromJson(bytesOf(withKeys(keys))).ok()) << keys.substr(0, 100);
}

TEST(LabelPattern, PutsTheNameInAndLeavesTheRest) {
  struct Row {
    QString pattern;
    QString label;
  };
  const auto name = []() -> Result<QString> { return QStringLiteral("{N}"); };
  for (const Row& row : {Row{QStringLiteral("{name}"), QStringLiteral("{N}")},
                         {QStringLiteral("a{name}b{name}"), QStringLiteral("a{N}b{N}")},
                         {QStringLiteral("{{name}"), QStringLiteral("{name}")},
                         {QStringLiteral("{ {} {Name} }{{{name}"), QStringLiteral("{ {} {Name} }{{N}")},
                         {QStringLiteral("{name"), QStringLiteral("{name")},
                         {QStringLiteral(""), QStringLiteral("")}}) {
    const auto label = labelOf(row.pattern, name);
    ASSERT_TRUE(label.ok());
    EXPECT_EQ(*label, row.label);
    EXPECT_EQ(*labelOf(patternOf(row.pattern), name), row.pattern);
  }
  EXPECT_TRUE(labelOf(QString(), name)->isNull());
  EXPECT_FALSE(labelOf(QStringLiteral("{name}"), [] { return Result<QString>(Error::broken("none")); }));
  EXPECT_TRUE(labelOf(QStringLiteral("x"), [] { return Result<QString>(Error::broken("none")); }));
  EXPECT_FALSE(labelOf(QStringLiteral("{name}"),
                       [] { return Result<QString>(QString(limits::labelBytes + 1, QLatin1Char('x'))); }));
}

}  // namespace
}  // namespace quorvane
