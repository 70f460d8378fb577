// SPDX-License-Identifier: GPL-3.0-or-later
// The window program with a stop-watch on the user's icons. Prints "usable WALL PROCESSOR RESIDENT": seconds of the
// clocks and KiB when the first frame is shown and the lists are filled; then for each of QUORVANE_ROWS rows "row
// SECONDS PROCESSOR", what scrolling on by one costs, and ends.
#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <cstdio>
#include <fstream>
#include <string>

#include "FirstPaint.h"
#include "app/AppController.h"
#include "app/Application.h"
#include "app/BaseColumn.h"
#include "library/view/LibraryTableView.h"
#include "library/view/LibraryView.h"

namespace quorvane::bench {

namespace {

long residentKibibytes() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("VmRSS:")) return std::stol(line.substr(6));
  return 0;
}

void scroll(int rows) {
  LibraryView& view = *AppController::sharedController()->outlets()._baseColumn->library();
  view.setLibrary(LibraryView::Custom);
  QApplication::processEvents();
  LibraryTableView& table = *view.customTableView();
  const int height = table.verticalHeader()->defaultSectionSize();
  for (int row = 0; row < rows; ++row) {
    const double begun = seconds(CLOCK_MONOTONIC);
    const double worked = seconds(CLOCK_THREAD_CPUTIME_ID);
    table.verticalScrollBar()->setValue(table.verticalScrollBar()->value() + height);
    table.viewport()->repaint();
    std::printf("row %.6f %.6f\n", seconds(CLOCK_MONOTONIC) - begun, seconds(CLOCK_THREAD_CPUTIME_ID) - worked);
    QApplication::processEvents();
  }
}

void watch() {
  new FirstPaint([] {
    while (!AppController::sharedController()->isInitialized()) QApplication::processEvents();
    std::printf("usable %.6f %.6f %ld\n", seconds(CLOCK_MONOTONIC), seconds(CLOCK_PROCESS_CPUTIME_ID),
                residentKibibytes());
    scroll(qEnvironmentVariableIntValue("QUORVANE_ROWS"));
    std::printf("end %ld\n", residentKibibytes());
    std::fflush(stdout);
    QCoreApplication::quit();
  });
}

Q_COREAPP_STARTUP_FUNCTION(watch)

}  // namespace

}  // namespace quorvane::bench

int main(int argc, char** argv) {
  return quorvane::runApplication(argc, argv);
}
