// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <optional>

namespace quorvane {

/// What the desktop's user prefers, as far as the desktop says so: read from its settings portal over the session bus
/// (org.freedesktop.appearance, and for motion what single desktops have of their own), at the start and at each
/// change. Without a bus or a portal nothing is ever said. The answers come in the event loop; nobody waits.
class DesktopAppearance : public QObject {
  Q_OBJECT
 public:
  explicit DesktopAppearance(QObject* parent = nullptr);

  /// Asks, and listens from now on.
  void start();

  /// nullopt: no preference.
  [[nodiscard]] std::optional<bool> prefersDark() const { return _prefersDark; }
  [[nodiscard]] std::optional<QColor> accent() const { return _accent; }
  [[nodiscard]] bool prefersHighContrast() const { return _highContrast; }
  [[nodiscard]] bool prefersReducedMotion() const { return !_againstMotion.isEmpty(); }

  /// Takes in one setting as the portal gives it; settings that mean nothing here are passed over.
  void take(const QString& group, const QString& key, const QVariant& value);

 Q_SIGNALS:
  void changed();

 private Q_SLOTS:
  void settingChanged(const QDBusMessage& message);

 private:
  void _ask(const QString& group, const QString& key);
  void _takeMotion(const QString& key, bool isAgainst);

  std::optional<bool> _prefersDark;
  std::optional<QColor> _accent;
  bool _highContrast = false;
  QStringList _againstMotion;  ///< the settings that ask for little of it
};

}  // namespace quorvane
