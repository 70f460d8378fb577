// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>

class QWidget;
class QWindow;

namespace quorvane {

/// Notices that something was let go over a widget which had refused it. The widget itself is told nothing of that: to
/// the desktop a refused thing that is let go is one that leaves. So it is one that left the window while its last
/// place was over the widget.
class RefusedDropWatch : public QObject {
 public:
  /// `told` gets the reason.
  RefusedDropWatch(QWidget& widget, std::function<void(const QString& reason)> told);

  /// To be called when the widget has refused what entered it.
  void begin(const QString& reason);
  void end();

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QWidget& _widget;
  std::function<void(const QString&)> _told;
  QPointer<QWindow> _window;
  QString _reason;
};

}  // namespace quorvane
