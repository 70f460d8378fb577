// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/LookStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "app/core/EditedValues.h"
#include "app/core/EffectPresets.h"
#include "app/core/LookConversion.h"
#include "app/core/SettingsTable.h"
#include "imaging/PngCodec.h"
#include "support/BrandingFixture.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::SizeIs;

QString text(const char* words) {
  return QString::fromUtf8(words);
}

class LookStoreTest : public ::testing::Test {
 protected:
  test::TemporaryFolder tree;
  fs::path folder = tree / "data/quorvane/looks";
  LookStore store{folder};

  [[nodiscard]] std::vector<std::string> files() const {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder)) found.push_back(entry.path().filename().string());
    return found;
  }
  [[nodiscard]] BaseReference picture(const fs::path& path) const {
    test::writeFile(path, *encodePng(*test::plainImage(Qt::red).bitmapRepresentation()));
    return {.path = path, .within = {}};
  }
};

TEST_F(LookStoreTest, KeepsLooksUnderAnyNameThatPeopleGiveThem) {
  EXPECT_THAT(*store.names(), SizeIs(0));
  EXPECT_FALSE(fs::exists(folder));
  for (const char* name : {"b", "10", "2", ".hidden", "a/../b", "100%2F", "A\nb", "Büro 100%"})
    EXPECT_TRUE(store.save(text(name), {}, {})) << name;
  struct stat info {};
  ASSERT_EQ(::stat(folder.c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0700U);
  for (const char* name : {"", " ", " a", "a "}) EXPECT_FALSE(store.save(text(name), {}, {})) << name;
  EXPECT_FALSE(store.save(QString(300, u'x'), {}, {}));
  // What is not ours is not listed.
  for (const char* other : {"notes.txt", "%41.look", "\xFF.look", "x.look.bak"})
    test::writeFile(folder / other, std::string("?"));
  const auto names = store.names();
  EXPECT_THAT(*names, ElementsAre(text(".hidden"), text("2"), text("10"), text("100%2F"), text("A\nb"), text("a/../b"),
                                  text("b"), text("Büro 100%")));
  for (const QString& name : *names) EXPECT_TRUE(store.read(name)) << name.toStdString();

  EXPECT_FALSE(store.rename(text("b"), text("2")));
  EXPECT_TRUE(store.rename(text("b"), text("c/d")));
  EXPECT_FALSE(store.read(text("b")));
  EXPECT_TRUE(store.read(text("c/d")));
  EXPECT_FALSE(store.rename(text("b"), text("e")));
}

TEST_F(LookStoreTest, KeepsThePictureBesideAndBringsBackWhatWasRemoved) {
  const BaseReference outside = picture(tree / "box.PNG");
  SavedLook look;
  look.look.rotation = 5;
  look.base = "of/somewhere.else";
  ASSERT_TRUE(store.save(text("a"), look, outside));
  ASSERT_TRUE(store.save(text("b"), look, outside));
  fs::remove(outside.path);
  EXPECT_THAT(files(), SizeIs(3));
  const auto read = store.read(text("a"));
  ASSERT_TRUE(read && read->base);
  EXPECT_TRUE(readBasePicture(*read->base));
  EXPECT_EQ(read->base->path.extension(), ".png");
  // Saved again from what was read, nothing is copied.
  EXPECT_TRUE(store.save(text("b"), read->saved, read->base));
  EXPECT_THAT(files(), SizeIs(3));

  const auto first = store.remove(text("a"));
  const auto second = store.remove(text("b"));
  EXPECT_THAT(files(), SizeIs(0));
  ASSERT_TRUE(first && second);
  EXPECT_FALSE(first->pictureName);
  EXPECT_TRUE(store.restore(*second) && store.restore(*first));
  EXPECT_FALSE(store.restore(*first));
  EXPECT_TRUE(readBasePicture(*store.read(text("a"))->base));
  EXPECT_EQ(store.read(text("b"))->saved.look.rotation, 5);
  // A look that loses its picture takes it along.
  EXPECT_TRUE(store.save(text("a"), look, {}));
  EXPECT_TRUE(store.save(text("b"), look, {}));
  EXPECT_THAT(files(), SizeIs(2));
  test::writeFile(tree / "broken.png", std::string("no picture"));
  EXPECT_FALSE(store.save(text("a"), look, BaseReference{.path = tree / "broken.png", .within = {}}));
  EXPECT_FALSE(store.read(text("a"))->base);
  look.look.opacity = 7;
  EXPECT_FALSE(store.save(text("a"), look, {}));
}

TEST(LookConversion, ACompositionComesBackFromItsLook) {
  IconComposition composition;
  composition.setLabel(text("A\n{b}"));
  composition.setFont(LabelFont{text("DejaVu Sans"), text("Bold"), 33});
  composition.setColor(QColor(1, 2, 3, 4));
  composition.setLineSpacing(1.5F);
  composition.setCanvasLabelCenter({-3, 130.5F});
  composition.setShearFactor(-0.25F);
  composition.setRotation(190);
  composition.setOpacity(0.125F);
  for (const int tag : {0, 1, 2, 3, 4, 6, 7, 8}) {
    composition.setShadow(shadowForEffectTag(tag));
    const auto look = lookOf(composition);
    ASSERT_TRUE(look);
    IconComposition again;
    ASSERT_TRUE(showLook(*look, again));
    EXPECT_EQ(again.look(), composition.look()) << tag;
    EXPECT_EQ(again.label(), composition.label());
  }
  composition.setShadow(LabelShadow{.offsetX = 9});
  EXPECT_FALSE(lookOf(composition));
  const EditedValues before = EditedValues::of(composition);
  Look strange;
  strange.fontName = "No Such Font";
  EXPECT_FALSE(showLook(strange, composition));
  EXPECT_FALSE(editBetween(before, EditedValues::of(composition)));
}

TEST(SettingsTable, FactoryDefaultsHoldAndWrongTypesReadAsThem) {
  using namespace settings;
  MemorySettings storage;
  UserDefaults defaults(storage);
  EXPECT_THAT(factoryDefaults().values().keys(), SizeIs(10));
  defaults.registerDefaults(factoryDefaults());
  EXPECT_TRUE(storage.values.isEmpty());
  const auto expectFactory = [&] {
    for (const auto& key : {useDefaultColor, useDefaultFont, showDockTip, askToShareOnFacebook, askToRateOnAppStore})
      EXPECT_TRUE(value(defaults, key)) << key.name.data();
    for (const auto& key : {autoVersionCheck, checkAtStartup, frameworkChecksAtStartup})
      EXPECT_FALSE(value(defaults, key)) << key.name.data();
    EXPECT_EQ(startColor(defaults), QColor(Qt::black));
    EXPECT_EQ(startFont(defaults), systemFont(50));
    EXPECT_EQ(value(defaults, lastUsedColor), QColor(Qt::black));
    EXPECT_EQ(value(defaults, lastUsedFont), systemFont(50));
    EXPECT_EQ(value(defaults, usageCount), 0);
    EXPECT_EQ(value(defaults, feedAddress), QString());
    EXPECT_TRUE(value(defaults, builtinIconSetSelection).isEmpty());
  };
  expectFactory();
  const QVariant odd = QVariantMap{{text("x"), 1}};
  for (const QString& key : factoryDefaults().values().keys()) defaults.setObject(odd, key);
  for (const auto name : {usageCount.name, checkAtStartup.name, frameworkChecksAtStartup.name, feedAddress.name,
                          builtinIconSetSelection.name})
    defaults.setObject(odd, name);
  expectFactory();

  const LabelFont font{text("DejaVu Sans"), text("Bold"), 20.5};
  setValue(defaults, useDefaultColor, false);
  setValue(defaults, lastUsedColor, QColor(Qt::red));
  setValue(defaults, defaultFont, font);
  setValue(defaults, customIconSetSelection, {3, 0});
  EXPECT_EQ(startColor(defaults), QColor(Qt::red));
  EXPECT_EQ(startFont(defaults), font);
  EXPECT_THAT(value(defaults, customIconSetSelection), ElementsAre(3, 0));
  defaults.setArray({1, -1, text("2"), 4.5, 5}, customIconSetSelection.name);
  EXPECT_THAT(value(defaults, customIconSetSelection), ElementsAre(1, 5));
  defaults.setString(text("No"), showDockTip.name);
  EXPECT_FALSE(value(defaults, showDockTip));
  defaults.setFont({.family = text("X"), .style = {}, .size = -1}, defaultFont.name);
  EXPECT_EQ(startFont(defaults), systemFont(50));
}

}  // namespace
}  // namespace quorvane
