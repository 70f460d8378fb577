// SPDX-License-Identifier: GPL-3.0-or-later
#include <thread>
#include <vector>

#include "app/core/IconMaker.h"
#include "support/BrandingFixture.h"

namespace quorvane {
namespace {

using Attributes = AppleDoubleForkStore::Attributes;

class ApplyLookTest : public test::BrandingFixture {
 protected:
  IconMaker maker;

  static Look labelled(const QString& label) {
    Look look;
    look.label = label;
    look.fontSize = 30;
    return look;
  }
  /// What a folder shows that was plain before.
  Bytes iconFor(const Look& look) {
    Image plain = *kinds.systemIcon("fldr");
    return IconFamily::iconFamilyWithThumbnailsOfImage(*composeIcon(look, roundTripped(plain)))->data();
  }

 private:
  /// As the backup holds it.
  static Image roundTripped(const Image& image) {
    Image read = *IconFamily::iconFamilyWithThumbnailsOfImage(image)->imageWithAllReps();
    read.setScalesWhenResized(true);
    read.setSize({128, 128});
    return read;
  }
};
INSTANTIATE_TEST_SUITE_P(, ApplyLookTest, ::testing::Values(Attributes::Use));

TEST_P(ApplyLookTest, DrawsOnTheIconFromBeforeAndFindsItUnchangedTheNextTime) {
  const Look look = labelled(QStringLiteral("one"));
  EXPECT_EQ(*branding.applyLook(look, {}, maker, folder), BrandingOutcome::Changed);
  EXPECT_EQ(shownIcon(), iconFor(look));
  EXPECT_EQ(*branding.applyLook(look, {}, maker, folder), BrandingOutcome::Unchanged);
  IconMaker another;
  EXPECT_EQ(*branding.applyLook(look, {}, another, folder), BrandingOutcome::Unchanged);
  const Look second = labelled(QStringLiteral("two"));
  EXPECT_EQ(*branding.applyLook(second, {}, maker, folder, WriteMode::DryRun), BrandingOutcome::Changed);
  EXPECT_EQ(*branding.applyLook(second, {}, maker, folder), BrandingOutcome::Changed);
  EXPECT_EQ(shownIcon(), iconFor(second));
  const BaseReference missing{.path = folder / "missing.png", .within = {}};
  EXPECT_EQ(branding.applyLook(look, missing, maker, folder).error().where(), missing.path);
}

TEST_P(ApplyLookTest, NeverDrawsALabelOverALabelThatSomebodyElseAppliesMeanwhile) {
  const Look looks[] = {labelled(QStringLiteral("left")), labelled(QStringLiteral("right"))};
  for (int round = 0; round < 4; ++round) {
    std::vector<std::thread> threads;
    for (const Look& look : looks)
      threads.emplace_back([&] { EXPECT_TRUE(branding.applyLook(look, {}, maker, folder).ok()); });
    for (std::thread& thread : threads) thread.join();
    const Bytes shown = shownIcon();
    EXPECT_TRUE(shown == iconFor(looks[0]) || shown == iconFor(looks[1]));
    ASSERT_TRUE(branding.reset(folder).ok());
  }
}

}  // namespace
}  // namespace quorvane
