// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>

namespace quorvane {

/// Lets the caret of text fields stand still once nothing has been typed, clicked or moved to for a while: a program
/// that nobody uses should not wake the processor twice a second. One in an application.
class CaretRest : public QObject {
  Q_OBJECT
 public:
  explicit CaretRest(std::chrono::milliseconds patience = std::chrono::seconds(10), QObject* parent = nullptr);
  ~CaretRest() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void _rest();
  void _wake();

  QTimer _patience;
  int _blinkTime = 0;  ///< in milliseconds, as the desktop wants it; 0 while the caret blinks
};

}  // namespace quorvane
