// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/CaretRest.h"

#include <QEvent>
#include <QGuiApplication>
#include <QStyleHints>
#include <utility>

namespace quorvane {

CaretRest::CaretRest(std::chrono::milliseconds patience, QObject* parent) : QObject(parent) {
  _patience.setSingleShot(true);
  _patience.setInterval(patience);
  connect(&_patience, &QTimer::timeout, this, &CaretRest::_rest);
  qApp->installEventFilter(this);
  _patience.start();
}

CaretRest::~CaretRest() {
  _wake();
}

void CaretRest::_rest() {
  if (_blinkTime > 0) return;
  _blinkTime = QGuiApplication::styleHints()->cursorFlashTime();
  QGuiApplication::styleHints()->setCursorFlashTime(0);
}

void CaretRest::_wake() {
  if (_blinkTime > 0) QGuiApplication::styleHints()->setCursorFlashTime(std::exchange(_blinkTime, 0));
}

bool CaretRest::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::InputMethod:
    case QEvent::FocusIn:
      _wake();
      _patience.start();
      break;
    default:
      break;
  }
  return false;
}

}  // namespace quorvane
