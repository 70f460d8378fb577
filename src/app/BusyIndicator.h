// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

namespace quorvane {

/// Says that something is being done, and what. Takes its place also while it shows nothing.
class BusyIndicator : public QWidget {
  Q_OBJECT
 public:
  explicit BusyIndicator(QWidget* parent = nullptr);
  void begin(const QString& words);
  void end();
  [[nodiscard]] bool isShown() const;

 private:
  QLabel* _words;
  QWidget* _bar;
};

}  // namespace quorvane
