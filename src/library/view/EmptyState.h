// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace quorvane {

/// Says, in the place of a list without rows, what this is, and offers the next step.
class EmptyState : public QWidget {
  Q_OBJECT
 public:
  explicit EmptyState(QWidget* parent = nullptr);

  /// Without a button there is no step to take here.
  void setTexts(const QString& heading, const QString& explanation, const QString& button = {});
  [[nodiscard]] QString heading() const;
  [[nodiscard]] QPushButton* button() const { return _button; }

 Q_SIGNALS:
  void stepTaken();

 private:
  QLabel* _heading;
  QLabel* _explanation;
  QPushButton* _button;
};

}  // namespace quorvane
