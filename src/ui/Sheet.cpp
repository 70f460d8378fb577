// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Sheet.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/Motion.h"
#include "ui/SheetFrame.h"
#include "ui/Tag.h"

namespace quorvane {
namespace {

bool slides = true;
constexpr int slideMilliseconds = 120;
constexpr int sideMargin = 24;
constexpr int shadowReach = 18;

bool takesReturn(const QWidget* focus) {
  if (const auto* plain = qobject_cast<const QPlainTextEdit*>(focus)) return !plain->isReadOnly();
  const auto* rich = qobject_cast<const QTextEdit*>(focus);
  return rich && !rich->isReadOnly();
}

/// What an access key leads to: a button, or the control that a label stands for.
bool followAccessKey(QWidget& panel, const QKeySequence& pressed) {
  for (QAbstractButton* button : panel.findChildren<QAbstractButton*>()) {
    if (button->isVisible() && button->isEnabled() && button->shortcut() == pressed) {
      button->animateClick();
      return true;
    }
  }
  for (const QLabel* label : panel.findChildren<QLabel*>()) {
    QWidget* buddy = label->buddy();
    if (buddy && buddy->isVisible() && buddy->isEnabled() && QKeySequence::mnemonic(label->text()) == pressed) {
      buddy->setFocus(Qt::ShortcutFocusReason);
      return true;
    }
  }
  return false;
}

}  // namespace

void Sheet::setAnimated(bool animated) {
  slides = animated;
}

Sheet::Sheet(QMainWindow& host, QWidget& content, Kind kind)
    : QWidget(&host),
      _host(host),
      _content(&content),
      _kind(kind),
      _clip(new QWidget(this)),
      _frame(new SheetFrame(kind == Kind::Dialog ? QAccessible::Dialog : QAccessible::AlertMessage, _clip)),
      _formerParent(content.parentWidget()),
      _formerFlags(content.windowFlags()) {
  hide();
  // Drops end here; without that they would go on to the window.
  setAcceptDrops(true);
  auto* layout = new QVBoxLayout(_frame);
  layout->setContentsMargins(0, 0, 0, 0);
  const bool named = !content.accessibleName().isEmpty();
  _frame->setAccessibleName(named ? content.accessibleName() : content.windowTitle());
  _frame->setAccessibleDescription(content.accessibleDescription());
  _slide.setDuration(slideMilliseconds);
  _slide.setStartValue(0.0);
  _slide.setEndValue(1.0);
  _slide.setEasingCurve(QEasingCurve::OutCubic);
  connect(&_slide, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
    _shown = value.toDouble();
    _place();
    update();
  });
}

Sheet::~Sheet() {
  end();
}

void Sheet::begin() {
  while (QWidget* popup = QApplication::activePopupWidget()) {
    popup->close();
    if (QApplication::activePopupWidget() == popup) break;
  }
  _formerFocus = _host.focusWidget();
  _up = true;
  // Changing its parent makes the content forget which control is to have the focus first.
  if (QWidget* first = _content->focusWidget(); first && _kind == Kind::Dialog) rememberFocus(*first);
  _content->setParent(_frame, Qt::Widget);
  _frame->layout()->addWidget(_content);
  _content->show();
  _host.installEventFilter(this);
  _frame->installEventFilter(this);
  _content->installEventFilter(this);
  connect(_content, &QObject::destroyed, this, [this] {
    // Pointers to a widget that is being deleted are not null yet.
    _content.clear();
    Q_EMIT answered(-1);
  });
  if (auto* dialog = qobject_cast<QDialog*>(_content.data()))
    connect(dialog, &QDialog::finished, this, &Sheet::answered);

  const bool animated = slides && wantsMotion(*this);
  _shown = animated ? 0 : 1;
  _place();
  raise();
  show();
  takeFocus();
  if (animated) _slide.start();
  QAccessibleEvent event(_frame, _kind == Kind::Dialog ? QAccessible::DialogStart : QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

void Sheet::end() {
  if (!_up) return;
  _up = false;
  _slide.stop();
  _host.removeEventFilter(this);
  QWidget* focus = _host.focusWidget();
  const bool focused = !focus || focus == this || isAncestorOf(focus);
  // The window would go on pointing to a control that may be deleted next.
  if (focused && focus) focus->clearFocus();
  if (_content) {
    _content->removeEventFilter(this);
    disconnect(_content, nullptr, this, nullptr);
    _content->hide();
    _content->setParent(_formerParent, _formerFlags);
  }
  hide();
  if (focused && _formerFocus && _formerFocus->isVisible() && _formerFocus->window() == &_host)
    _formerFocus->setFocus();
}

int Sheet::_top() const {
  const QWidget* bar = _host.menuWidget();
  return bar && bar->isVisible() ? bar->geometry().bottom() + 1 : 0;
}

void Sheet::_place() {
  setGeometry(_host.rect());
  _clip->setGeometry(0, _top(), width(), height() - _top());
  const QSize room(std::max(0, width() - 2 * sideMargin), std::max(0, _clip->height() - sideMargin));
  Q_EMIT roomChanged(room);
  _frame->layout()->activate();
  const QSize wanted = _frame->sizeHint().expandedTo(_frame->minimumSizeHint()).boundedTo(room);
  const int hidden = static_cast<int>((1 - _shown) * wanted.height());
  _frame->setGeometry((width() - wanted.width()) / 2, -hidden, wanted.width(), wanted.height());
  update();
}

void Sheet::takeFocus() {
  if (_lastFocus && _canTakeFocus(*_lastFocus)) return _lastFocus->setFocus();
  if (QAbstractButton* button = buttonForKey(QStringLiteral("\r")); _kind == Kind::Alert && button) {
    return button->setFocus(Qt::PopupFocusReason);
  }
  QWidget* first = _content ? _content->focusWidget() : nullptr;
  if (first && _canTakeFocus(*first)) return first->setFocus(Qt::PopupFocusReason);
  // Without a control inside, the sheet itself must hold the focus: keys would reach the window otherwise.
  setFocusPolicy(Qt::NoFocus);
  for (QWidget* next = nextInFocusChain(); next != this; next = next->nextInFocusChain()) {
    if (_canTakeFocus(*next)) return next->setFocus(Qt::PopupFocusReason);
  }
  setFocusPolicy(Qt::StrongFocus);
  setFocus();
}

bool Sheet::_canTakeFocus(const QWidget& widget) const {
  return (widget.focusPolicy() & Qt::TabFocus) && widget.isEnabled() && widget.isVisibleTo(this) &&
         isAncestorOf(&widget);
}

bool Sheet::focusNextPrevChild(bool next) {
  QWidget* from = _host.focusWidget() && isAncestorOf(_host.focusWidget()) ? _host.focusWidget() : this;
  for (QWidget* to = next ? from->nextInFocusChain() : from->previousInFocusChain(); to != from;
       to = next ? to->nextInFocusChain() : to->previousInFocusChain()) {
    if (!_canTakeFocus(*to) || to->focusProxy()) continue;
    to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  return true;  // one control alone: the focus stays, and does not leave for the window below
}

QAbstractButton* Sheet::buttonForKey(const QString& key) const {
  if (!_content) return nullptr;
  const bool isReturn = key == QLatin1String("\r");
  QAbstractButton* fallback = nullptr;
  const auto buttons = _content->findChildren<QPushButton*>();
  for (QPushButton* button : buttons) {
    if (keyEquivalent(*button) == key) return button;
    if (_kind != Kind::Dialog || fallback) continue;
    const bool cancels = button->property("tag").isValid() && tag(*button) == 0;
    if (isReturn ? button->isDefault() : cancels) fallback = button;
  }
  if (fallback || _kind != Kind::Alert || isReturn) return fallback;
  // A message that has one button only is put away by Escape too.
  return buttons.size() == 1 ? buttons.front() : nullptr;
}

bool Sheet::handleKey(const QKeyEvent& key, QWidget* focus) {
  if (_kind == Kind::Notice || !_content) return true;
  const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
  if (isReturn || key.key() == Qt::Key_Escape) {
    if (modifiers != Qt::NoModifier) return false;
    if (isReturn && _kind == Kind::Dialog) {
      if (takesReturn(focus)) return false;
      auto* focused = qobject_cast<QPushButton*>(focus);
      if (focused && isAncestorOf(focused) && !key.isAutoRepeat()) {
        focused->click();
        return true;
      }
    }
    // A key that is still held from what brought the sheet up is no answer.
    if (key.isAutoRepeat()) return true;
    if (QAbstractButton* button = buttonForKey(isReturn ? QStringLiteral("\r") : QStringLiteral("\033"))) {
      button->click();
    } else if (auto* dialog = qobject_cast<QDialog*>(_content.data()); dialog && !isReturn) {
      dialog->reject();
    }
    return true;
  }
  return modifiers == Qt::AltModifier && followAccessKey(*_content, QKeySequence(key.key() | Qt::ALT));
}

bool Sheet::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &_host && event->type() == QEvent::Resize) _place();
  if (watched == _frame && event->type() == QEvent::LayoutRequest) _place();
  // Hidden by its owner: nobody could answer any more.
  if (_up && watched == _content && event->type() == QEvent::HideToParent) {
    const auto* dialog = qobject_cast<QDialog*>(_content.data());
    Q_EMIT answered(dialog ? dialog->result() : -1);
  }
  return QWidget::eventFilter(watched, event);
}

void Sheet::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool dark = palette().color(QPalette::Window).lightness() < 128;
  painter.fillRect(rect(), QColor(0, 0, 0, static_cast<int>(_shown * (dark ? 120 : 70))));
  painter.setClipRect(_clip->geometry());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, dark ? 9 : 5));
  const QRectF panel = QRectF(_frame->geometry()).translated(0, _clip->y());
  for (int reach = shadowReach; reach > 0; reach -= 2) {
    painter.drawRoundedRect(panel.adjusted(-reach, -reach, reach, reach + 4), 12 + reach, 12 + reach);
  }
}

}  // namespace quorvane
