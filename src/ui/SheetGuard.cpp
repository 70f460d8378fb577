// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/SheetGuard.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <algorithm>

#include "ui/Sheet.h"

namespace quorvane {
namespace {

/// Parents across windows too: the list of a combo box is a window of its own.
bool belongsTo(const QObject* object, const QObject* ancestor) {
  for (; object; object = object->parent()) {
    if (object == ancestor) return true;
  }
  return false;
}

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::InputMethod:
      return true;
    default:
      return false;
  }
}

bool isDrag(QEvent::Type type) {
  return type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop;
}

}  // namespace

SheetGuard::SheetGuard(QMainWindow& host) : _host(host) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { _focusChanged(now); });
}

SheetGuard::~SheetGuard() {
  if (!_sheets.empty()) qApp->removeEventFilter(this);
}

void SheetGuard::add(Sheet& sheet) {
  if (_sheets.empty()) {
    qApp->installEventFilter(this);
    _setMenuBarEnabled(false);
  }
  _sheets.push_back(&sheet);
}

void SheetGuard::remove(Sheet& sheet) {
  if (std::erase(_sheets, &sheet) == 0) return;
  if (!_sheets.empty()) return _sheets.back()->takeFocus();
  qApp->removeEventFilter(this);
  _setMenuBarEnabled(true);
}

void SheetGuard::_setMenuBarEnabled(bool enabled) {
  if (enabled) {
    for (const auto& action : _disabledActions) {
      if (action) action->setEnabled(true);
    }
    _disabledActions.clear();
    return;
  }
  auto* bar = qobject_cast<QMenuBar*>(_host.menuWidget());
  if (!bar) return;
  for (QAction* action : bar->actions()) {
    if (!action->isEnabled()) continue;
    action->setEnabled(false);
    _disabledActions.emplace_back(action);
  }
}

void SheetGuard::_focusChanged(QWidget* now) {
  if (!top() || !now || now == top() || now->window() != &_host) return;
  if (top()->isAncestorOf(now)) {
    top()->rememberFocus(*now);
  } else {
    // Whoever gave it the focus means it to have it as soon as that can be.
    _sheets.front()->setFormerFocus(*now);
    top()->takeFocus();
  }
}

bool SheetGuard::_isBelow(const QObject* object) const {
  const QObject* part = object;
  while (part && !part->isWidgetType()) part = part->parent();
  const auto* widget = qobject_cast<const QWidget*>(part);
  if (!widget || belongsTo(widget, top())) return false;
  // A menu of the window is a window of its own as well, though its actions are the window's.
  return object == part ? widget->window() == &_host : belongsTo(widget, &_host);
}

bool SheetGuard::_guardKey(QWidget& widget, QEvent& event) {
  if (widget.window() != &_host) return false;
  auto& key = static_cast<QKeyEvent&>(event);
  if (event.type() == QEvent::ShortcutOverride) {
    // Taken here, the key comes as a plain press and wakes no shortcut.
    event.accept();
    return true;
  }
  const bool below = &widget != top() && _isBelow(&widget);
  if (below || (event.type() == QEvent::KeyPress && top()->handleKey(key, &widget))) {
    event.accept();
    return true;
  }
  // Behind the sheet nobody is asked.
  if (&widget == top() && key.key() != Qt::Key_Tab && key.key() != Qt::Key_Backtab) {
    event.accept();
    return true;
  }
  return false;
}

bool SheetGuard::eventFilter(QObject* watched, QEvent* event) {
  if (!top()) return false;
  const QEvent::Type type = event->type();
  if (type == QEvent::Shortcut) return _isBelow(watched);
  const bool isKey = type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::ShortcutOverride;
  if (!watched->isWidgetType() || !(isKey || isInput(type) || isDrag(type))) return false;
  auto& widget = static_cast<QWidget&>(*watched);
  if (isKey) return _guardKey(widget, *event);
  if (isDrag(type) && &widget == top()) {
    event->ignore();
    return true;
  }
  if (!_isBelow(watched)) return false;
  event->setAccepted(!isDrag(type));
  return true;
}

}  // namespace quorvane
