// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace quorvane {

class HVWindow;

/// Who is asked and told about a window's closing.
class HVWindowDelegate {
 public:
  virtual ~HVWindowDelegate() = default;
  /// False keeps the window open.
  virtual bool windowShouldClose(HVWindow& window) {
    Q_UNUSED(window);
    return true;
  }
  virtual void windowWillClose(HVWindow& window) { Q_UNUSED(window); }
};

/// Where windows' frames are remembered between runs, by name. The bytes are a window's saveGeometry().
class FrameStore {
 public:
  virtual ~FrameStore() = default;
  [[nodiscard]] virtual std::optional<QByteArray> frameForName(const QString& name) const = 0;
  virtual void setFrame(const QByteArray& frame, const QString& name) = 0;
};

}  // namespace quorvane
