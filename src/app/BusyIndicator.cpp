// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/BusyIndicator.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

#include "ui/Motion.h"

namespace quorvane {

BusyIndicator::BusyIndicator(QWidget* parent) : QWidget(parent), _words(new QLabel(this)) {
  auto* bar = new QProgressBar(this);
  bar->setRange(0, 0);
  bar->setTextVisible(false);
  bar->setFixedSize(96, 6);
  bar->setAccessibleName(tr("Busy"));
  _bar = bar;
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(10);
  layout->addWidget(_bar);
  layout->addWidget(_words);
  end();
}

void BusyIndicator::begin(const QString& words) {
  _words->setText(words);
  _bar->setAccessibleDescription(words);
  _words->setVisible(true);
  // The words say it too.
  _bar->setVisible(wantsMotion(*this));
}

void BusyIndicator::end() {
  _words->setVisible(false);
  _bar->setVisible(false);
}

bool BusyIndicator::isShown() const {
  return !_words->isHidden();
}

}  // namespace quorvane
