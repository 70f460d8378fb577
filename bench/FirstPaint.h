// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <ctime>
#include <functional>

namespace quorvane::bench {

/// Seconds of a clock.
inline double seconds(clockid_t clock) {
  timespec now{};
  ::clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

/// Calls back once, when the first frame of the first window has been painted and handed to the display.
class FirstPaint : public QObject {
 public:
  explicit FirstPaint(std::function<void()> painted) : QObject(qApp), _painted(std::move(painted)) {
    qApp->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* widget = event->type() == QEvent::Paint && object->isWidgetType() ? static_cast<QWidget*>(object) : nullptr;
    if (widget && widget->isWindow()) {
      qApp->removeEventFilter(this);
      // The whole frame is painted and flushed within the event that this one is part of.
      QTimer::singleShot(0, this, _painted);
    }
    return false;
  }

 private:
  std::function<void()> _painted;
};

}  // namespace quorvane::bench
