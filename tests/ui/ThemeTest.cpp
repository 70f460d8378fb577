// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Theme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusVariant>
#include <QImage>

#include "ui/ActionIcons.h"
#include "ui/ApplicationIcon.h"
#include "ui/ColorText.h"
#include "ui/DesktopAppearance.h"

namespace quorvane::test {
namespace {

TEST(ThemeTest, ContrastIsEnoughWithAnyAccent) {
  EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(contrastRatio(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
  using P = QPalette;
  const std::tuple<P::ColorRole, P::ColorRole, double> rows[] = {{P::WindowText, P::Window, 4.5},
                                                                 {P::Text, P::Base, 4.5},
                                                                 {P::Text, P::AlternateBase, 4.5},
                                                                 {P::ButtonText, P::Button, 4.5},
                                                                 {P::ToolTipText, P::ToolTipBase, 4.5},
                                                                 {P::PlaceholderText, P::Base, 4.5},
                                                                 {P::PlaceholderText, P::Window, 4.5},
                                                                 {P::HighlightedText, P::Highlight, 4.5},
                                                                 {P::Link, P::Window, 4.5},
                                                                 {P::Dark, P::Base, 3},
                                                                 {P::Dark, P::Window, 3},
                                                                 {P::Highlight, P::Base, 3},
                                                                 {P::Highlight, P::Window, 3}};
  const std::optional<QColor> accents[] = {std::nullopt,        QColor(255, 220, 0), QColor(Qt::black),
                                           QColor(Qt::white),   QColor(0, 200, 90),  QColor(128, 128, 128),
                                           QColor(120, 60, 200)};
  for (const bool dark : {false, true}) {
    for (const auto& accent : accents) {
      for (const bool high : {false, true}) {
        const QPalette palette = Theme::palette(dark, accent, high);
        EXPECT_EQ(palette.color(P::Window).lightness() < 128, dark);
        for (const auto& [front, ground, least] : rows) {
          EXPECT_GE(contrastRatio(palette.color(front), palette.color(ground)), least)
              << front << " on " << ground << (dark ? " dark " : " light ")
              << (accent ? accent->name().toStdString() : "own accent");
        }
      }
    }
    EXPECT_FALSE(Theme::styleSheet(Theme::palette(dark)).contains(QLatin1Char('%'))) << "a colour left unfilled";
  }
}

TEST(ThemeTest, FollowsTheDesktopAndRecoloursIcons) {
  DesktopAppearance desktop;
  Theme theme(&desktop);
  theme.apply();
  const auto say = [&](const char* key, const QVariant& value) {
    desktop.take(QStringLiteral("org.freedesktop.appearance"), QLatin1String(key), value);
  };
  const auto inkOf = [](QIcon::Mode mode, QPalette::ColorRole role = QPalette::ButtonText) {
    const QImage image = actionIcon(QStringLiteral("add"), role).pixmap(24, 24, mode).toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2).rgb();
  };
  const std::pair<uint, bool> schemes[] = {{1, true}, {2, false}, {1, true}, {7, false}};
  for (const auto& [scheme, dark] : schemes) {
    say("color-scheme", QVariant::fromValue(QDBusVariant(scheme)));
    EXPECT_EQ(theme.isDark(), dark);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window).lightness() < 128, dark);
    EXPECT_EQ(inkOf(QIcon::Normal), QApplication::palette().color(QPalette::ButtonText).rgb());
    EXPECT_NE(inkOf(QIcon::Disabled), inkOf(QIcon::Normal));
    EXPECT_EQ(inkOf(QIcon::Active), inkOf(QIcon::Normal)) << "a button with the keys";
    EXPECT_EQ(inkOf(QIcon::Active, QPalette::Text), QApplication::palette().color(QPalette::HighlightedText).rgb());
  }
  say("accent-color", QColor(120, 60, 200));
  EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), QColor(120, 60, 200));
  desktop.take(QStringLiteral("org.other"), QStringLiteral("color-scheme"), 1U);
  say("color-scheme", QStringLiteral("nonsense"));
  EXPECT_FALSE(theme.isDark());
  theme.setScheme(Theme::Scheme::Dark);
  EXPECT_TRUE(theme.isDark());
  qApp->setStyleSheet({});
}

TEST(ActionIconsTest, AllAreThereAndFillTheirSquare) {
  const QStringList names = actionIconNames();
  for (const char* name : {"open", "apply", "revert", "close", "reveal", "font", "reset", "center", "undo", "redo",
                           "add", "remove", "search", "look", "save", "settings", "help", "zoom-in", "zoom-out"}) {
    EXPECT_TRUE(names.contains(QLatin1String(name))) << name;
  }
  for (const QString& name : names) {
    for (const int side : {16, 24, 48}) {
      const QImage image = actionIcon(name).pixmap(QSize(side, side), 1.0).toImage();
      ASSERT_EQ(image.size(), QSize(side, side));
      int ink = 0;
      for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) ink += image.pixelColor(x, y).alpha() > 60;
      }
      EXPECT_GT(ink, side / 2) << name.toStdString();
    }
  }
  EXPECT_TRUE(actionIcon(QStringLiteral("nonesuch")).isNull());
  EXPECT_EQ(applicationIcon(QStringLiteral("nonesuch")).availableSizes().size(), 4);
}

}  // namespace
}  // namespace quorvane::test
