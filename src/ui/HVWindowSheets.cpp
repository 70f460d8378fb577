// SPDX-License-Identifier: GPL-3.0-or-later
// The sheet operations of HVWindow.
#include <QAbstractButton>
#include <QCheckBox>
#include <QEventLoop>
#include <QMetaMethod>
#include <QPushButton>
#include <QRadioButton>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include "ui/HVWindow.h"
#include "ui/Tag.h"

namespace quorvane {
namespace {

/// How often a lock that another thread holds is looked at. The event loop runs meanwhile: the other's sheet needs it.
constexpr int lockMilliseconds = 5;
constexpr double longestTimeout = 24 * 60 * 60;

/// Asks an object that is not ours whether anybody listens, which only its own class may otherwise.
struct Listeners : QObject {
  static bool has(const QObject& object, const QMetaMethod& signal) {
    const auto ask = &Listeners::isSignalConnected;
    return (object.*ask)(signal);
  }
};

bool hasAction(const QAbstractButton& button) {
  return Listeners::has(button, QMetaMethod::fromSignal(&QAbstractButton::clicked)) ||
         Listeners::has(button, QMetaMethod::fromSignal(&QAbstractButton::pressed)) ||
         Listeners::has(button, QMetaMethod::fromSignal(&QAbstractButton::released)) || !button.actions().isEmpty();
}

std::vector<QWidget*> subviews(const QWidget& view) {
  std::vector<QWidget*> widgets;
  for (QObject* child : view.children()) {
    auto* widget = qobject_cast<QWidget*>(child);
    if (widget && !widget->isWindow()) widgets.push_back(widget);
  }
  return widgets;
}

}  // namespace

/// One sheet that somebody waits for.
struct HVWindow::Run {
  Sheet* sheet = nullptr;
  QEventLoop loop;
  int code = -1;
};

int HVWindow::_runLocked(const std::function<int()>& operation) {
  const auto lock = _lock;
  if (QThread::currentThread() != thread()) {
    const std::scoped_lock held(*lock);
    int code = -1;
    QMetaObject::invokeMethod(
        this, [&] { code = operation(); }, Qt::BlockingQueuedConnection);
    return code;
  }
  // Waiting for ourselves would last for ever.
  if (_operating) return -1;
  const QPointer<HVWindow> self(this);
  while (!lock->try_lock()) {
    QEventLoop wait;
    QTimer::singleShot(lockMilliseconds, &wait, &QEventLoop::quit);
    wait.exec();
    if (!self || _operating) return -1;
  }
  const std::unique_lock held(*lock, std::adopt_lock);
  return operation();
}

int HVWindow::_runSheet(QWidget& content, Sheet::Kind kind, std::optional<double> timeout) {
  const QPointer<HVWindow> self(this);
  const QPointer<Sheet> sheet = new Sheet(*this, content, kind);
  Run run;
  run.sheet = sheet;
  connect(sheet, &Sheet::answered, &run.loop, [&](int code) { _promptSheetDidEnd(run.sheet->content(), code, &run); });
  connect(sheet, &QObject::destroyed, &run.loop, &QEventLoop::quit);
  if (auto* alert = qobject_cast<AlertPanel*>(&content)) {
    connect(sheet, &Sheet::roomChanged, alert, &AlertPanel::fit);
    connect(alert, &AlertPanel::answered, &run.loop, [&, alert](int code) { _promptSheetDidEnd(alert, code, &run); });
  }
  const bool outermost = !_operating;
  _operating = true;
  _runs.push_back(&run);
  _guard.add(*sheet);
  sheet->begin();
  if (timeout) {
    const double seconds = std::isnan(*timeout) ? 0 : std::clamp(*timeout, 0.0, longestTimeout);
    QTimer::singleShot(static_cast<int>(seconds * 1000), Qt::PreciseTimer, &run.loop, &QEventLoop::quit);
  }
  run.loop.exec();
  if (!self) return -1;
  if (outermost) _operating = false;
  std::erase(_runs, &run);
  if (sheet) _removeSheet(*sheet);
  return run.code;
}

void HVWindow::_removeSheet(Sheet& sheet) {
  _guard.remove(sheet);
  sheet.end();
  // Not at once: a button or key of the sheet may still be at work further up the stack.
  sheet.deleteLater();
}

void HVWindow::_promptSheetDidEnd(QWidget*, int returnCode, void* contextInfo) {
  auto& run = *static_cast<Run*>(contextInfo);
  run.code = returnCode;
  run.loop.quit();
}

int HVWindow::_runAlert(const QString& title, const QString& message, const AlertPanel::Buttons& buttons,
                        const QString& details) {
  if (_alertPanel) return -1;
  const QPointer<HVWindow> self(this);
  AlertPanel panel(title, message, buttons, details);
  _alertPanel = &panel;
  _setKeyEquivalent(panel);
  const int code = _runSheet(panel, Sheet::Kind::Alert);
  if (self) _alertPanel = nullptr;
  return code;
}

void HVWindow::runMessageSheetWithTitle(const QString& title, const QString& message, const QString& details) {
  _runLocked([&] { return _runAlert(title, message, {tr("Okay"), {}, {}}, details); });
}

void HVWindow::runMessageSheetWithTitle(const QString& title, const QString& message, double timeout) {
  _runLocked([&] {
    AlertPanel panel(title, message, {});
    return _runSheet(panel, Sheet::Kind::Notice, timeout);
  });
}

int HVWindow::runPromptSheetWithTitle(const QString& title, const QString& message,
                                      const std::optional<QString>& defaultButton,
                                      const std::optional<QString>& alternateButton,
                                      const std::optional<QString>& otherButton, const QString& details) {
  AlertPanel::Buttons buttons{defaultButton, alternateButton, otherButton};
  // A question that cannot be answered would hold the window for ever.
  if (!defaultButton && !alternateButton && !otherButton) buttons.defaultButton = tr("Okay");
  return _runLocked([&] { return _runAlert(title, message, buttons, details); });
}

int HVWindow::runPromptSheet(QWidget& sheet) {
  return _runLocked([&] {
    _setButtonActionForSheet(sheet);
    const QPointer<HVWindow> self(this);
    const int code = _runSheet(sheet, Sheet::Kind::Dialog);
    if (!self) return -1;
    for (const auto& connection : std::exchange(_wiredButtons, {})) disconnect(connection);
    return code;
  });
}

void HVWindow::endPromptSheet(QObject* button) {
  if (_runs.empty() || !button) return;
  _promptSheetDidEnd(_runs.back()->sheet->content(), tag(*button), _runs.back());
}

void HVWindow::cancelSheets() {
  for (Run* run : _runs) {
    run->code = -1;
    run->loop.quit();
  }
  endSheet();
}

void HVWindow::beginSheet(QWidget& sheet) {
  endSheet();
  _currentSheet = &sheet;
  _begunSheet = new Sheet(*this, sheet, Sheet::Kind::Dialog);
  connect(_begunSheet, &Sheet::answered, this, &HVWindow::endSheet);
  if (auto* alert = qobject_cast<AlertPanel*>(&sheet))
    connect(_begunSheet, &Sheet::roomChanged, alert, &AlertPanel::fit);
  _guard.add(*_begunSheet);
  _begunSheet->begin();
}

void HVWindow::endSheet() {
  if (!_begunSheet) return;
  Sheet& sheet = *_begunSheet;
  _begunSheet = nullptr;
  _removeSheet(sheet);
}

void HVWindow::_setButtonActionForSheet(QWidget& sheet) {
  auto* window = qobject_cast<QMainWindow*>(&sheet);
  _setButtonActionForView(window && window->centralWidget() ? *window->centralWidget() : sheet);
}

void HVWindow::_setButtonActionForView(QWidget& view) {
  for (QWidget* subview : subviews(view)) {
    if (auto* button = qobject_cast<QAbstractButton*>(subview)) {
      if (hasAction(*button) || button->isCheckable()) continue;
      _wiredButtons.push_back(
          connect(button, &QAbstractButton::clicked, this, [this, button] { endPromptSheet(button); }));
    } else {
      for (QWidget* inner : subviews(*subview)) _setButtonActionForView(*inner);
    }
  }
}

void HVWindow::_setKeyEquivalent(QWidget& panel) {
  for (QObject* child : panel.children()) {
    if (child->metaObject() != &QPushButton::staticMetaObject) continue;
    if (tag(*child) == 0) setKeyEquivalent(*child, QStringLiteral("\033"));
    if (tag(*child) == 1) setKeyEquivalent(*child, QStringLiteral("\r"));
  }
}

}  // namespace quorvane
