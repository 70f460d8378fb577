// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/BusyIndicator.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include "ui/Motion.h"

namespace quorvane {

BusyIndicator::BusyIndicator(QWidget* parent)
    : QWidget(parent), _words(new QLabel(this)), _cancel(new QToolButton(this)) {
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
  _cancel->setText(tr("Cancel"));
  // A click leaves the focus where it is: the button goes with it.
  _cancel->setFocusPolicy(Qt::TabFocus);
  _cancel->installEventFilter(this);
  connect(_cancel, &QToolButton::clicked, this, &BusyIndicator::cancelled);
  layout->addWidget(_cancel);
  _cancelDelay.setSingleShot(true);
  _cancelDelay.setInterval(900);  // with the moment before it began, a second
  connect(&_cancelDelay, &QTimer::timeout, this, [this] {
    _cancel->show();
    // Where all else is disabled it is what the keyboard is for.
    if (!window()->focusWidget() || !window()->focusWidget()->isEnabled()) _cancel->setFocus();
  });
  end();
}

void BusyIndicator::begin(const QString& words, bool canCancel) {
  _words->setText(words);
  _bar->setAccessibleDescription(words);
  _cancel->setAccessibleDescription(words);
  _words->setVisible(true);
  // The words say it too.
  _bar->setVisible(wantsMotion(*this));
  canCancel ? _cancelDelay.start() : _cancelDelay.stop();
}

void BusyIndicator::end() {
  _words->setVisible(false);
  _bar->setVisible(false);
  _cancelDelay.stop();
  _cancel->hide();
}

bool BusyIndicator::eventFilter(QObject* watched, QEvent* event) {
  if (watched == _cancel && event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool isMeant = key.key() == Qt::Key_Escape || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    // A key that is still held from before is no answer.
    if (isMeant && !key.isAutoRepeat()) {
      _cancel->click();
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

bool BusyIndicator::isShown() const {
  return !_words->isHidden();
}

}  // namespace quorvane
