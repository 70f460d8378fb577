// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/NoticeLabel.h"

#include <QAccessible>

#include "ui/Motion.h"
#include "ui/Texts.h"

namespace quorvane {

NoticeLabel::NoticeLabel(QWidget* parent) : QLabel(parent), _opacity(new QGraphicsOpacityEffect(this)) {
  setObjectName(QStringLiteral("notice"));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAccessibleName(tr("Notice"));
  setGraphicsEffect(_opacity);
  _opacity->setEnabled(false);
  _stay.setSingleShot(true);
  _fade.setDuration(600);
  _fade.setStartValue(1.0);
  _fade.setEndValue(0.0);
  connect(&_stay, &QTimer::timeout, this, [this] {
    if (!wantsMotion(*this)) return _end();
    _opacity->setEnabled(true);
    _fade.start();
  });
  connect(&_fade, &QVariantAnimation::valueChanged, this,
          [this](const QVariant& value) { _opacity->setOpacity(value.toDouble()); });
  connect(&_fade, &QVariantAnimation::finished, this, &NoticeLabel::_end);
}

void NoticeLabel::_end() {
  _opacity->setEnabled(false);
  clear();
  setAccessibleName(tr("Notice"));
}

void NoticeLabel::notice(const QString& words) {
  _fade.stop();
  _opacity->setEnabled(false);
  setText(words);
  setToolTip(plainToolTip(words));
  // The name is all that assistive tools read out of a label.
  setAccessibleName(words);
  _stay.start(5000 + static_cast<int>(words.size()) * 30);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace quorvane
