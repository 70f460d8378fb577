// SPDX-License-Identifier: GPL-3.0-or-later
// What any window of this toolkit costs: prints the moment of the first frame and the processor time by then. With an
// argument there is a word in it, for which the toolkit reads all the fonts of the system.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <cstdio>

#include "FirstPaint.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  using namespace quorvane::bench;
  new FirstPaint([] {
    std::printf("%.6f %.6f\n", seconds(CLOCK_MONOTONIC), seconds(CLOCK_PROCESS_CPUTIME_ID));
    QCoreApplication::quit();
  });
  QMainWindow window;
  window.resize(1180, 680);
  if (argc > 1) window.setCentralWidget(new QLabel(QStringLiteral("Word")));
  window.show();
  return QApplication::exec();
}
