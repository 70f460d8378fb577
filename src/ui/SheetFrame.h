// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QFrame>

namespace quorvane {

/// The panel of a sheet: a card with round lower corners that hangs from the edge above it. Assistive tools are told
/// what it is by `role`: an alert or a dialog.
class SheetFrame : public QFrame {
  Q_OBJECT
 public:
  SheetFrame(QAccessible::Role role, QWidget* parent);
  [[nodiscard]] QAccessible::Role role() const { return _role; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QAccessible::Role _role;
};

}  // namespace quorvane
