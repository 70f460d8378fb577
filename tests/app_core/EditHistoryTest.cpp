// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/EditHistory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/BrandingFixture.h"

namespace quorvane {
namespace {

using namespace std::chrono_literals;

class EditHistoryTest : public ::testing::Test {
 protected:
  IconComposition composition;
  std::chrono::steady_clock::time_point now{};
  EditHistory history{composition, [this] { return now; }};

  EditHistoryTest() {
    composition.centerLabel();
    composition.setListener([this](const CompositionChange&) { history.note(); });
    history.clear();
  }

  void pause() { now += EditHistory::burstPause + 1ms; }
};

TEST_F(EditHistoryTest, TakesBackAndDoesAgainEveryKindOfEdit) {
  IconOverlay overlay;
  overlay.drawing = OverlayEmblem{QStringLiteral("star")};
  const auto change = [&](const std::function<void(IconOverlay&)>& by) {
    IconOverlay changed = *composition.overlay();
    by(changed);
    composition.setOverlay(changed);
  };
  const struct {
    const char* undoText;
    std::function<void()> edit;
  } rows[] = {
      {"Undo Typing", [&] { composition.setLabel(QStringLiteral("A")); }},
      {"Undo Move Label", [&] { composition.moveLabelCenter(1, 2); }},
      {"Undo Font",
       [&] {
         composition.setFont(LabelFont{QStringLiteral("DejaVu Sans"), {}, 20});
       }},
      {"Undo Font Size", [&] { composition.setFontSize(21); }},
      {"Undo Colour", [&] { composition.setColor(QColor(Qt::red)); }},
      {"Undo Effect", [&] { composition.setShadow(LabelShadow()); }},
      {"Undo Line Spacing", [&] { composition.setLineSpacing(2); }},
      {"Undo Shear", [&] { composition.setShearFactor(0.5F); }},
      {"Undo Rotation", [&] { composition.setRotation(30); }},
      {"Undo Opacity", [&] { composition.setOpacity(0.5F); }},
      {"Undo Tint", [&] { composition.setTint(QColor(Qt::green)); }},
      {"Undo Overlay", [&] { composition.setOverlay(overlay); }},
      {"Undo Move Overlay", [&] { change([](IconOverlay& moved) {
                                    moved.center = {1, 2};
                                  }); }},
      {"Undo Overlay Size", [&] { change([](IconOverlay& sized) { sized.size = 90; }); }},
      {"Undo Overlay Opacity", [&] { change([](IconOverlay& faded) { faded.opacity = 0.5F; }); }},
      {"Undo Overlay Colour", [&] { change([](IconOverlay& colored) { colored.color = QColor(Qt::red); }); }},
      {"Undo Choose Icon", [&] { composition.setBaseIcon(test::plainImage(Qt::blue)); }},
  };
  std::vector<EditedValues> states{EditedValues::of(composition)};
  for (const auto& row : rows) {
    row.edit();
    EXPECT_EQ(history.undoText(), QLatin1String(row.undoText));
    states.push_back(EditedValues::of(composition));
  }
  const auto isAt = [&](std::size_t i) { return !editBetween(states[i], EditedValues::of(composition)); };
  for (std::size_t i = std::size(rows); i-- > 0;) {
    EXPECT_TRUE(history.undo());
    EXPECT_TRUE(isAt(i)) << rows[i].undoText;
  }
  EXPECT_FALSE(history.undo());
  EXPECT_EQ(history.undoText(), QStringLiteral("Undo"));
  EXPECT_EQ(history.redoText(), QStringLiteral("Redo Typing"));
  for (std::size_t i = 1; i <= std::size(rows); ++i) {
    EXPECT_TRUE(history.redo());
    EXPECT_TRUE(isAt(i)) << rows[i - 1].undoText;
  }
  EXPECT_FALSE(history.redo());
}

TEST_F(EditHistoryTest, WhatFollowsFastIsOneStepAndAPauseEndsIt) {
  for (const char* text : {"A", "AB", "ABC"}) composition.setLabel(QString::fromLatin1(text));
  pause();
  composition.setLabel(QStringLiteral("ABCD"));
  composition.setOpacity(0.5F);
  composition.setOpacity(0.25F);
  // A drag takes as long as it takes; choices are never joined.
  history.beginStep();
  composition.setRotation(10);
  pause();
  composition.setRotation(20);
  history.endStep();
  composition.setRotation(30);
  composition.setShadow(LabelShadow());
  composition.setShadow(std::nullopt);

  std::vector<float> rotations;
  QStringList labels;
  while (history.undo()) {
    rotations.push_back(composition.look().rotation);
    labels.append(composition.label().value_or(QString()));
  }
  EXPECT_THAT(rotations, ::testing::ElementsAre(30, 30, 20, 0, 0, 0, 0));
  EXPECT_EQ(labels.mid(4), (QStringList{QStringLiteral("ABCD"), QStringLiteral("ABC"), QString()}));
}

TEST_F(EditHistoryTest, StepsHaveOneNameAndNoneIsLeftWhereNothingChanged) {
  history.beginStep(EditKind::Transform);
  composition.setShearFactor(0.5F);
  history.beginStep();
  composition.setRotation(10);
  EXPECT_FALSE(history.undo());
  history.endStep();
  history.endStep();
  EXPECT_EQ(history.undoText(), QStringLiteral("Undo Reset"));

  history.beginStep();
  composition.moveLabelCenter(5, 5);
  composition.moveLabelCenter(-5, -5);
  history.endStep();
  EXPECT_EQ(history.undoText(), QStringLiteral("Undo Reset"));
  EXPECT_TRUE(history.undo());
  EXPECT_EQ(composition.look().shearFactor, 0);
  EXPECT_EQ(composition.look().rotation, 0);
  // A new edit: what was taken back is gone.
  composition.setOpacity(0.5F);
  EXPECT_FALSE(history.canRedo());
}

TEST_F(EditHistoryTest, IsBoundedAndClearedAndTellsOfIt) {
  int told = 0;
  history.setListener([&] { ++told; });
  for (std::size_t i = 1; i <= EditHistory::depth + 5; ++i, pause()) composition.setRotation(static_cast<float>(i));
  EXPECT_EQ(told, EditHistory::depth + 5);
  std::size_t steps = 0;
  while (history.undo()) ++steps;
  EXPECT_EQ(steps, EditHistory::depth);
  EXPECT_EQ(composition.look().rotation, 5);
  composition.setLabel(QStringLiteral("other folder"));
  history.clear();
  EXPECT_FALSE(history.canUndo() || history.canRedo());
  composition.setLabel(std::nullopt);
  EXPECT_TRUE(history.undo());
  EXPECT_EQ(composition.label(), QStringLiteral("other folder"));
}

}  // namespace
}  // namespace quorvane
