// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TransparentTextView.h"

namespace quorvane {

TransparentTextView::TransparentTextView(QWidget* parent) : QTextBrowser(parent) {
  awakeFromNib();
}

void TransparentTextView::awakeFromNib() {
  setReadOnly(true);
  setFrameShape(QFrame::NoFrame);
  viewport()->setAutoFillBackground(false);
  setOpenLinks(false);
  // Without the flags for selecting there is nothing to highlight and nothing to drag.
  setTextInteractionFlags(Qt::LinksAccessibleByMouse);
  if (!acceptsFirstResponder()) setFocusPolicy(Qt::NoFocus);
  if (!shouldDrawInsertionPoint()) setCursorWidth(0);
}

}  // namespace quorvane
