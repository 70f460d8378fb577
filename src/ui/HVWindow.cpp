// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/HVWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QToolBar>
#include <utility>
#include <vector>

namespace quorvane {
namespace {

Qt::WindowFlags styleFlags(const QWidget& window) {
  return window.windowFlags() & ~Qt::WindowType_Mask;
}

}  // namespace

HVWindow::HVWindow(QWidget* parent, Qt::WindowFlags flags) : QMainWindow(parent, flags) {}

HVWindow::HVWindow(QMainWindow& window, bool textured)
    : QMainWindow(nullptr, Qt::Window | styleFlags(window)), _textured(textured) {
  auto* known = qobject_cast<HVWindow*>(&window);
  if (known) {
    _textured = textured || known->_textured;
    _title = known->_title;
    _titleSuffix = known->_titleSuffix;
    _delegate = known->_delegate;
    _frameStore = known->_frameStore;
    _initialFirstResponder = known->_initialFirstResponder;
  } else {
    _title = window.windowTitle();
    _initialFirstResponder = window.focusWidget();
  }
  setWindowTitle(window.windowTitle());
  setMinimumSize(window.minimumSize());
  setMaximumSize(window.maximumSize());
  // The style sheet tones a textured window by this property.
  setProperty("textured", _textured);
  if (QWidget* content = window.takeCentralWidget()) {
    resize(content->size());
    setCentralWidget(content);
  } else {
    resize(window.size());
  }
  center();
  const QString name = known ? known->_frameAutosaveName : window.objectName();
  setFrameAutosaveName(QStringLiteral("HV%@").replace(QLatin1String("%@"), name));
}

HVWindow::~HVWindow() {
  // Callers' sheets go back to their owners before the window's children are deleted.
  cancelSheets();
  const std::vector<Sheet*> sheets = _guard.sheets();
  for (Sheet* sheet : sheets) _removeSheet(*sheet);
}

unsigned HVWindow::styleMask() const {
  const Qt::WindowFlags flags = windowFlags();
  const bool custom = flags & Qt::CustomizeWindowHint;
  unsigned mask = 0;
  if (!(flags & Qt::FramelessWindowHint)) mask |= 1;
  if (!custom || (flags & Qt::WindowCloseButtonHint)) mask |= 2;
  if (!custom || (flags & Qt::WindowMinimizeButtonHint)) mask |= 4;
  if (minimumSize() != maximumSize()) mask |= 8;
  return mask | (_textured ? texturedBackgroundWindowMask : 0);
}

void HVWindow::setTitle(const std::optional<QString>& title) {
  _title = title;
  _updateTitle();
}

void HVWindow::setTitleSuffix(const std::optional<QString>& suffix) {
  _titleSuffix = suffix;
  _updateTitle();
}

void HVWindow::_updateTitle() {
  QString text = _title.value_or(QStringLiteral("null"));
  if (_titleSuffix) text += QLatin1Char(' ') + *_titleSuffix;
  // Once, these three characters would be taken for the place of a mark and vanish.
  setWindowTitle(text.replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

void HVWindow::zoom(QObject*) {
  std::vector<QToolBar*> toolbars;
  for (QToolBar* toolbar : findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (toolbar->isVisible()) toolbars.push_back(toolbar);
  }
  for (QToolBar* toolbar : toolbars) toolbar->hide();
  if (isMaximized()) {
    showNormal();
  } else {
    showMaximized();
  }
  for (QToolBar* toolbar : toolbars) toolbar->show();
}

void HVWindow::setInitialFirstResponder(QWidget* control) {
  _initialFirstResponder = control;
}

bool HVWindow::setFrameAutosaveName(const QString& name) {
  _frameAutosaveName = name;
  const auto frame = _frameStore ? _frameStore->frameForName(name) : std::nullopt;
  return frame && restoreGeometry(*frame);
}

void HVWindow::center() {
  const QRect room = screen()->availableGeometry();
  QRect frame = frameGeometry();
  frame.moveCenter(room.center());
  move(frame.topLeft());
}

void HVWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!event->spontaneous() && _initialFirstResponder && !focusWidget()) _initialFirstResponder->setFocus();
}

void HVWindow::closeEvent(QCloseEvent* event) {
  if (isSheetUp()) {
    if (!qApp->isSavingSession()) {
      _guard.top()->takeFocus();
      return event->ignore();
    }
    cancelSheets();
  }
  if (_delegate && !_delegate->windowShouldClose(*this)) return event->ignore();
  if (_frameStore && !_frameAutosaveName.isEmpty()) _frameStore->setFrame(saveGeometry(), _frameAutosaveName);
  if (_delegate) _delegate->windowWillClose(*this);
  event->accept();
}

}  // namespace quorvane
