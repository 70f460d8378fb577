// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/EmptyState.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvane {

EmptyState::EmptyState(QWidget* parent)
    : QWidget(parent), _heading(new QLabel), _explanation(new QLabel), _button(new QPushButton) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(8, 8, 8, 8);
  layout->setSpacing(6);
  for (QLabel* label : {_heading, _explanation}) {
    label->setAlignment(Qt::AlignCenter);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
  }
  QFont strong = _heading->font();
  strong.setWeight(QFont::DemiBold);
  _heading->setFont(strong);
  _explanation->setForegroundRole(QPalette::PlaceholderText);
  layout->addStretch(2);
  layout->addWidget(_heading);
  layout->addWidget(_explanation);
  layout->addSpacing(4);
  layout->addWidget(_button, 0, Qt::AlignHCenter);
  layout->addStretch(3);
  connect(_button, &QPushButton::clicked, this, &EmptyState::stepTaken);
}

void EmptyState::setTexts(const QString& heading, const QString& explanation, const QString& button) {
  _heading->setText(heading);
  _explanation->setText(explanation);
  _button->setText(button);
  _button->setVisible(!button.isEmpty());
  // One without words is hidden; assistive tools may meet it all the same.
  _button->setAccessibleName(button.isEmpty() ? heading : button);
}

QString EmptyState::heading() const {
  return _heading->text();
}

}  // namespace quorvane
