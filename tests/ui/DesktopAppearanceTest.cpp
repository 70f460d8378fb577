// SPDX-License-Identifier: GPL-3.0-or-later
// Over a real bus, with a portal of the test's own.
#include "ui/DesktopAppearance.h"

#include <gtest/gtest.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QProcess>
#include <QSignalSpy>

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
  bus.kill();
  bus.waitForFinished();
}

}  // namespace quorvane::test

#include "DesktopAppearanceTest.moc"
