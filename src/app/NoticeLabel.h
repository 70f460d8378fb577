// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QTimer>
#include <QVariantAnimation>

namespace quorvane {

/// Short words that are shown for some seconds and fade. Assistive tools are told of them.
class NoticeLabel : public QLabel {
  Q_OBJECT
 public:
  explicit NoticeLabel(QWidget* parent = nullptr);
  /// Replaces what is shown. Plain text; longer ones are shown longer.
  void notice(const QString& words);

 private:
  void _end();

  QGraphicsOpacityEffect* _opacity;
  QTimer _stay;
  QVariantAnimation _fade;
};

}  // namespace quorvane
