// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace quorvane {

/// Turns the signals by which a terminal ends a program, and the word by which a desktop's session does, into a Qt
/// signal. One in a process, behind the application object. The application does not end by itself then.
class TerminationSignals : public QObject {
  Q_OBJECT
 public:
  TerminationSignals();
  ~TerminationSignals() override;

 Q_SIGNALS:
  void received();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace quorvane
