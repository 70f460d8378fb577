// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ElidedLabel.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <algorithm>

#include "foundation/base/Text.h"
#include "ui/Texts.h"

namespace quorvane {

namespace {

/// Assistive tools would pass over what is only a place for others.
QAccessibleInterface* elidedLabelInterface(const QString&, QObject* object) {
  auto* label = qobject_cast<ElidedLabel*>(object);
  return label ? new QAccessibleWidget(label, QAccessible::StaticText) : nullptr;
}

}  // namespace

QString visibleText(const QString& text) {
  return QString::fromStdString(printable(text.toStdString()));
}

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent) : QWidget(parent) {
  [[maybe_unused]] static const bool once = [] {
    QAccessible::installFactory(elidedLabelInterface);
    return true;
  }();
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setText(text);
}

void ElidedLabel::setText(const QString& text) {
  _text = text;
  _visible = visibleText(text);
  setAccessibleName(_visible);
  updateGeometry();
  update();
}

void ElidedLabel::setElideMode(Qt::TextElideMode mode) {
  _mode = mode;
  update();
}

void ElidedLabel::setAlignment(Qt::Alignment alignment) {
  _alignment = alignment;
  update();
}

QString ElidedLabel::shownText() const {
  return fontMetrics().elidedText(_visible, _mode, contentsRect().width());
}

bool ElidedLabel::isElided() const {
  return fontMetrics().horizontalAdvance(_visible) > contentsRect().width();
}

QSize ElidedLabel::sizeHint() const {
  return {fontMetrics().horizontalAdvance(_visible) + 2, fontMetrics().height() + 4};
}

QSize ElidedLabel::minimumSizeHint() const {
  return {std::min(sizeHint().width(), fontMetrics().averageCharWidth() * 10), fontMetrics().height() + 4};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  // The text's own direction: a path reads from the left in windows that read from the right too.
  painter.setLayoutDirection(_text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
  const int alignment =
      static_cast<int>(QStyle::visualAlignment(layoutDirection(), _alignment) | Qt::AlignAbsolute) | Qt::TextSingleLine;
  style()->drawItemText(&painter, contentsRect(), alignment, palette(), isEnabled(), shownText(), foregroundRole());
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !toolTip().isEmpty()) return QWidget::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), isElided() ? plainToolTip(_visible) : QString(),
                     this);
  return true;
}

void ElidedLabel::contextMenuEvent(QContextMenuEvent* event) {
  if (_text.isEmpty()) return event->ignore();
  QMenu menu(this);
  const QAction* copy = menu.addAction(tr("Copy"));
  if (menu.exec(event->globalPos()) == copy) QGuiApplication::clipboard()->setText(_text);
}

}  // namespace quorvane
