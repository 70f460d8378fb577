// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

#include "composition/core/IconOverlay.h"

class QLineEdit;
class QListWidget;

namespace quorvane {

/// Chooses what is laid on the icon: an emblem of a grid that can be searched, a character that is typed, or a picture
/// file. Closes by itself then.
class OverlayPopup : public QFrame {
  Q_OBJECT
 public:
  explicit OverlayPopup(QWidget* parent);

  [[nodiscard]] QListWidget* grid() const { return _grid; }
  [[nodiscard]] QLineEdit* searchField() const { return _search; }
  [[nodiscard]] QLineEdit* emojiField() const { return _emoji; }

 Q_SIGNALS:
  void chosen(const quorvane::OverlayDrawing& drawing);
  void pictureWanted();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void _fill();
  void _choose(const OverlayDrawing& drawing);

  QLineEdit* _search;
  QListWidget* _grid;
  QLineEdit* _emoji;
};

}  // namespace quorvane
