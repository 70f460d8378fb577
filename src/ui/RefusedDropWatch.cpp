// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/RefusedDropWatch.h"

#include <QDropEvent>
#include <QWidget>
#include <QWindow>

namespace quorvane {

RefusedDropWatch::RefusedDropWatch(QWidget& widget, std::function<void(const QString&)> told)
    : _widget(widget), _told(std::move(told)) {}

void RefusedDropWatch::begin(const QString& reason) {
  end();
  _window = _widget.window()->windowHandle();
  if (!_window) return;
  _reason = reason;
  _window->installEventFilter(this);
}

void RefusedDropWatch::end() {
  if (_window) _window->removeEventFilter(this);
  _window.clear();
}

bool RefusedDropWatch::eventFilter(QObject* object, QEvent* event) {
  if (object != _window) return false;
  switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
      const QPointF place = static_cast<QDropEvent*>(event)->position();
      if (!_widget.rect().contains(_widget.mapFrom(_widget.window(), place.toPoint()))) end();
      break;
    }
    case QEvent::DragLeave:
      end();
      _told(_reason);
      break;
    default:
      break;
  }
  return false;
}

}  // namespace quorvane
