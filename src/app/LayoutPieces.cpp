// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LayoutPieces.h"

#include <QFrame>
#include <QLabel>

namespace quorvane {

QFrame* makeCard() {
  auto* card = new QFrame;
  card->setProperty("card", true);
  return card;
}

QLabel* makeCaption(const QString& text, QWidget* control) {
  auto* caption = new QLabel(text);
  caption->setProperty("caption", true);
  caption->setBuddy(control);
  return caption;
}

QLabel* makeTitle(const QString& text) {
  auto* title = new QLabel(text);
  title->setTextFormat(Qt::PlainText);
  QFont font = title->font();
  font.setWeight(QFont::DemiBold);
  font.setPointSizeF(font.pointSizeF() * 1.2);
  title->setFont(font);
  return title;
}

QLabel* makeControlName(const QString& text, QWidget* control) {
  auto* name = new QLabel(text);
  name->setWordWrap(true);
  name->setBuddy(control);
  return name;
}

}  // namespace quorvane
