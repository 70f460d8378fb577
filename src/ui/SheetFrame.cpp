// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/SheetFrame.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace quorvane {
namespace {

constexpr double cornerRadius = 12;

QAccessibleInterface* sheetInterface(const QString&, QObject* object) {
  const auto* frame = qobject_cast<SheetFrame*>(object);
  return frame ? new QAccessibleWidget(qobject_cast<QWidget*>(object), frame->role()) : nullptr;
}

}  // namespace

SheetFrame::SheetFrame(QAccessible::Role role, QWidget* parent) : QFrame(parent), _role(role) {
  [[maybe_unused]] static const bool once = [] {
    QAccessible::installFactory(sheetInterface);
    return true;
  }();
}

void SheetFrame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Mid), 1));
  painter.setBrush(palette().color(QPalette::Base));
  // The upper corners lie above the panel, so that it seems to come out of the edge.
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, -cornerRadius, -0.5, -0.5), cornerRadius, cornerRadius);
}

}  // namespace quorvane
