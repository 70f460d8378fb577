// SPDX-License-Identifier: GPL-3.0-or-later
// Over a real bus, with a portal of the test's own.
#include "ui/DesktopAppearance.h"

#include <gtest/gtest.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QProcess>
#include <QSignalSpy>
#include <QWidget>

#include "ui/Motion.h"
#include "ui/Theme.h"

namespace quorvane::test {

struct Rgb {
  double red = 0;
  double green = 0;
  double blue = 0;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Rgb& color) {
  argument.beginStructure();
  argument << color.red << color.green << color.blue;
  argument.endStructure();
  return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, Rgb& color) {
  argument.beginStructure();
  argument >> color.red >> color.green >> color.blue;
  argument.endStructure();
  return argument;
}

class Portal : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
 public Q_SLOTS:
  QDBusVariant Read(const QString&, const QString& key) {
    const QVariant value =
        key == QLatin1String("color-scheme") ? QVariant(1U) : QVariant::fromValue(Rgb{0.2, 0.4, 0.8});
    return QDBusVariant(QVariant::fromValue(QDBusVariant(value)));  // wrapped twice, as real ones do
  }
 Q_SIGNALS:
  void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

TEST(DesktopAppearanceTest, ReadsAndFollowsThePortal) {
  qDBusRegisterMetaType<Rgb>();
  QProcess bus;
  bus.start(QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
  ASSERT_TRUE(bus.waitForReadyRead(10000));
  qputenv("DBUS_SESSION_BUS_ADDRESS", bus.readLine().trimmed());
  Portal portal;
  QDBusConnection side = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal"));
  ASSERT_TRUE(side.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal,
                                  QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
  ASSERT_TRUE(side.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));

  DesktopAppearance appearance;
  QSignalSpy changed(&appearance, &DesktopAppearance::changed);
  appearance.start();
  for (int round = 0; round < 100 && changed.count() < 2; ++round) changed.wait(50);
  EXPECT_EQ(appearance.prefersDark(), true);
  EXPECT_EQ(appearance.accent(), std::optional(QColor::fromRgbF(0.2F, 0.4F, 0.8F)));
  EXPECT_FALSE(appearance.prefersHighContrast()) << "an answer of another kind";

  const auto say = [&](const char* key, const QVariant& value) {
    Q_EMIT portal.SettingChanged(QStringLiteral("org.freedesktop.appearance"), QLatin1String(key), QDBusVariant(value));
    changed.wait(5000);
  };
  say("color-scheme", 0U);
  EXPECT_EQ(appearance.prefersDark(), std::nullopt);
  say("accent-color", QVariant::fromValue(Rgb{-1, 0, 0}));
  EXPECT_EQ(appearance.accent(), std::nullopt);

  // Motion, in the three ways of the desktops.
  struct Motion {
    const char* group;
    const char* key;
    QVariant against;
    QVariant fine;
  };
  const QWidget widget;
  const bool before = wantsMotion(widget);
  Theme theme(&appearance);
  theme.apply();
  for (const Motion& each :
       {Motion{"org.freedesktop.appearance", "reduced-motion", 1U, 0U},
        Motion{"org.gnome.desktop.interface", "enable-animations", false, true},
        Motion{"org.kde.kdeglobals.KDE", "AnimationDurationFactor", QStringLiteral("0"), QStringLiteral("0.5")}}) {
    const auto take = [&](const QVariant& value) {
      appearance.take(QLatin1String(each.group), QLatin1String(each.key), value);
      return appearance.prefersReducedMotion();
    };
    EXPECT_FALSE(take(QStringLiteral("nonsense"))) << each.key;
    EXPECT_TRUE(take(each.against)) << each.key;
    EXPECT_FALSE(wantsMotion(widget)) << each.key;
    EXPECT_FALSE(take(each.fine)) << each.key;
    EXPECT_EQ(wantsMotion(widget), before) << each.key;
  }
  bus.kill();
  bus.waitForFinished();
}

}  // namespace quorvane::test

#include "DesktopAppearanceTest.moc"
