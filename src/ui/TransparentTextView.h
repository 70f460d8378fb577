// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>

namespace quorvane {

/// Static rich text on a window's own background: no box, no caret, no selection, no focus. Links are told by
/// anchorClicked and followed by nobody here.
class TransparentTextView : public QTextBrowser {
  Q_OBJECT
 public:
  explicit TransparentTextView(QWidget* parent = nullptr);

  /// Takes the backgrounds away and makes the text static; done once by the constructor.
  void awakeFromNib();
  [[nodiscard]] bool shouldDrawInsertionPoint() const { return false; }
  [[nodiscard]] bool acceptsFirstResponder() const { return false; }
};

}  // namespace quorvane
