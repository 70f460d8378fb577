// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/DesktopAppearance.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <tuple>

namespace quorvane {
namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");

struct Setting {
  const char* group;
  const char* key;
};
/// All that is asked for. Of motion the desktops speak in three ways.
constexpr Setting reducedMotion{"org.freedesktop.appearance", "reduced-motion"};
constexpr Setting enableAnimations{"org.gnome.desktop.interface", "enable-animations"};
constexpr Setting durationFactor{"org.kde.kdeglobals.KDE", "AnimationDurationFactor"};
constexpr Setting settings[] = {{"org.freedesktop.appearance", "color-scheme"},
                                {"org.freedesktop.appearance", "accent-color"},
                                {"org.freedesktop.appearance", "contrast"},
                                reducedMotion,
                                enableAnimations,
                                durationFactor};

/// Read wraps its answer once more than the signal does.
QVariant unwrapped(QVariant value) {
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

/// Three numbers from 0 to 1; what is outside means "none".
std::optional<QColor> accentOf(const QVariant& value) {
  if (!value.canConvert<QDBusArgument>()) return std::nullopt;
  const auto argument = value.value<QDBusArgument>();
  if (argument.currentType() != QDBusArgument::StructureType || argument.currentSignature() != QLatin1String("(ddd)")) {
    return std::nullopt;
  }
  double red = -1;
  double green = -1;
  double blue = -1;
  argument.beginStructure();
  argument >> red >> green >> blue;
  argument.endStructure();
  for (const double channel : {red, green, blue}) {
    if (!(channel >= 0 && channel <= 1)) return std::nullopt;
  }
  return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue));
}

}  // namespace

DesktopAppearance::DesktopAppearance(QObject* parent) : QObject(parent) {}

void DesktopAppearance::start() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  // The whole message: a slot with the three arguments is found by name and yet never called.
  bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this, SLOT(settingChanged(QDBusMessage)));
  for (const Setting& setting : settings) _ask(QLatin1String(setting.group), QLatin1String(setting.key));
}

void DesktopAppearance::_ask(const QString& group, const QString& key) {
  QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
  message << group << key;
  auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, group, key](QDBusPendingCallWatcher* finished) {
    const QDBusPendingReply<QDBusVariant> reply = *finished;
    if (!reply.isError()) take(group, key, reply.value().variant());
    finished->deleteLater();
  });
}

void DesktopAppearance::settingChanged(const QDBusMessage& message) {
  const QVariantList arguments = message.arguments();
  if (arguments.size() == 3) take(arguments.at(0).toString(), arguments.at(1).toString(), arguments.at(2));
}

void DesktopAppearance::take(const QString& group, const QString& key, const QVariant& value) {
  const QVariant plain = unwrapped(value);
  const auto before = std::make_tuple(_prefersDark, _accent, _highContrast, prefersReducedMotion());
  const auto is = [&](const Setting& setting) {
    return group == QLatin1String(setting.group) && key == QLatin1String(setting.key);
  };
  if (is(reducedMotion)) {
    _takeMotion(key, plain.toUInt() == 1);
  } else if (is(enableAnimations)) {
    _takeMotion(key, plain.typeId() == QMetaType::Bool && !plain.toBool());
  } else if (is(durationFactor)) {
    bool isNumber = false;
    const double factor = plain.toDouble(&isNumber);
    _takeMotion(key, isNumber && factor <= 0);
  } else if (group != appearance) {
    return;
  } else if (key == QLatin1String("color-scheme")) {
    // 0: no preference; 1: dark; 2: light.
    const uint scheme = plain.toUInt();
    _prefersDark = scheme == 1 || scheme == 2 ? std::optional(scheme == 1) : std::nullopt;
  } else if (key == QLatin1String("accent-color")) {
    _accent = plain.typeId() == QMetaType::QColor ? std::optional(plain.value<QColor>()) : accentOf(plain);
  } else if (key == QLatin1String("contrast")) {
    _highContrast = plain.toUInt() == 1;
  }
  if (before != std::make_tuple(_prefersDark, _accent, _highContrast, prefersReducedMotion())) Q_EMIT changed();
}

void DesktopAppearance::_takeMotion(const QString& key, bool isAgainst) {
  _againstMotion.removeAll(key);
  if (isAgainst) _againstMotion.append(key);
}

}  // namespace quorvane
