// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QDBusMessage>
#include <QObject>
#include <optional>

namespace quorvane {

/// What the desktop's user prefers, as far as the desktop says so: read from its settings portal over the session bus
/// (org.freedesktop.appearance), at the start and at each change. Without a bus or a portal nothing is ever said. The
/// answers come in the event loop; nobody waits.
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

  /// Takes in one setting as the portal gives it; settings that mean nothing here are passed over.
  void take(const QString& group, const QString& key, const QVariant& value);

 Q_SIGNALS:
  void changed();

 private Q_SLOTS:
  void settingChanged(const QDBusMessage& message);

 private:
  void _ask(const QString& key);

  std::optional<bool> _prefersDark;
  std::optional<QColor> _accent;
  bool _highContrast = false;
};

}  // namespace quorvane
