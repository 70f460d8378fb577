// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Motion.h"

#include <QStyle>
#include <QWidget>

namespace quorvane {

namespace {

bool isReduced = false;

}  // namespace

bool wantsMotion(const QWidget& widget) {
  return !isReduced && widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0;
}

void setMotionReduced(bool reduced) {
  isReduced = reduced;
}

}  // namespace quorvane
