// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/FirstFrame.h"

#include <QEvent>
#include <QTimer>

namespace quorvane {
namespace {

class FirstFrame : public QObject {
 public:
  FirstFrame(QWidget& window, std::function<void()> work) : QObject(&window), _work(std::move(work)) {
    window.installEventFilter(this);
    _doLater(1000);
  }

 protected:
  bool eventFilter(QObject* window, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      window->removeEventFilter(this);
      // The whole frame is painted and handed over within the event that this one is part of.
      _doLater(0);
    }
    return false;
  }

 private:
  void _doLater(int milliseconds) {
    QTimer::singleShot(milliseconds, this, [this] {
      // A work that waits in an event loop of its own must not be begun again in there.
      if (const auto work = std::exchange(_work, nullptr)) work();
      deleteLater();
    });
  }

  std::function<void()> _work;
};

}  // namespace

void afterFirstFrame(QWidget& window, std::function<void()> work) {
  new FirstFrame(window, std::move(work));
}

}  // namespace quorvane
