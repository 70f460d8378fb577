// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace quorvane {

/// Turns the signals by which a session or a terminal ends a program into a Qt signal. One in a process.
class TerminationSignals : public QObject {
  Q_OBJECT
 public:
  TerminationSignals();
  ~TerminationSignals() override;

 Q_SIGNALS:
  void received();
};

}  // namespace quorvane
