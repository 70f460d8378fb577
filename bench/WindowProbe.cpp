// SPDX-License-Identifier: GPL-3.0-or-later
// The window program with a stop-watch. Without QUORVANE_ROUNDS: as EmptyWindow. With it: that many times, the icon of
// the folder it was started with is applied by a click and, in turn, composed and written straight away as the command
// line does it; prints wall and processor seconds of both, from the click until the window says that it is written.
// With QUORVANE_APPLIES instead: that many icons are applied, and after each tenth of them it prints how many kilobytes
// the process holds.
#include <QApplication>
#include <QPushButton>
#include <cstdio>

#include "FirstPaint.h"
#include "app/AppController.h"
#include "app/Application.h"
#include "app/core/FolderBranding.h"
#include "app/core/SettingsTable.h"
#include "composition/view/FolderView.h"
#include "foundation/SettingsFile.h"
#include "iconfamily/AppleDoubleForkStore.h"
#include "system/FileManagerNotices.h"
#include "system/FolderMarks.h"
#include "system/HVUtility.h"
#include "system/KindIcons.h"
#include "ui/LabelTextField.h"

namespace quorvane::bench {

namespace {

struct Watch {
  double wall = seconds(CLOCK_MONOTONIC);
  double processor = seconds(CLOCK_PROCESS_CPUTIME_ID);

  void print(const char* what) const {
    std::printf("%s %.6f %.6f\n", what, seconds(CLOCK_MONOTONIC) - wall, seconds(CLOCK_PROCESS_CPUTIME_ID) - processor);
  }
};

void waitUntil(const std::function<bool()>& done) {
  while (!done()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Long enough for what follows an apply, animations and previews, to be over.
void settle() {
  bool isOver = false;
  QTimer::singleShot(700, [&] { isOver = true; });
  waitUntil([&] { return isOver; });
}

/// Begins once the folder is open. The first frame may be painted while the controller waits for the folder: what
/// begins there would keep it waiting.
void whenOpen(std::function<void()> begin) {
  auto* watch = new QTimer(qApp);
  QObject::connect(watch, &QTimer::timeout, watch, [watch, begin = std::move(begin), seen = 0]() mutable {
    const auto controller = AppController::sharedController();
    seen = controller->path() && !controller->isBusy() ? seen + 1 : 0;
    if (seen < 2) return;
    watch->stop();
    begin();
  });
  watch->start(200);
}

void compareApplies(int rounds) {
  const auto controller = AppController::sharedController();
  const Outlets& outlets = controller->outlets();
  const auto folder = *controller->path();

  AppleDoubleForkStore forks;
  const auto kinds = makeDesktopKindIcons();
  StampingNotices notices;
  const auto metadata = makeDesktopMetadata();
  const auto marks = makeDesktopMarks(*metadata);
  FamilyCache families;
  const IconServices services{
      .forks = forks, .kinds = *kinds, .notices = notices, .families = &families, .marks = marks.get()};
  const FolderBranding branding(services);
  // A label of its own each time: what was written once may be remembered.
  const auto restart = [&](int round) {
    settle();
    if (!branding.reset(folder)) std::exit(1);
    controller->setPath(folder);
    controller->setLabel(QStringLiteral("Invoices\n%1").arg(2000 + round));
    settle();
  };
  for (int round = 0; round < rounds; ++round) {
    restart(round);
    const Watch clicked;
    bool isWritten = false;
    const auto heard = QObject::connect(controller.get(), &AppController::stateChanged, [&] {
      if (!isWritten && outlets._labelTF->stringValue().isEmpty()) {
        clicked.print("window");
        isWritten = true;
      }
    });
    outlets._applyBtn->click();
    waitUntil([&] { return isWritten; });
    QObject::disconnect(heard);
    restart(round);
    const IconComposition composition = outlets._folderView->composition();
    const Watch direct;
    const auto icon = composition.iconImage();
    if (!icon || !branding.writeIconWithImage(*icon, folder)) std::exit(1);
    direct.print("direct");
  }
  QCoreApplication::quit();
}

void applyManyTimes(int count) {
  const auto controller = AppController::sharedController();
  const Outlets& outlets = controller->outlets();
  const auto isReady = [&] {
    return controller->path() && !controller->isBusy() && outlets._labelTF->stringValue().isEmpty();
  };
  for (int done = 1; done <= count; ++done) {
    controller->setLabel(QStringLiteral("Invoices\n%1").arg(done));
    outlets._applyBtn->click();
    waitUntil(isReady);
    if (done % std::max(1, count / 10) != 0) continue;
    settle();
    std::printf("%d %llu\n", done, static_cast<unsigned long long>(HVUtility::residentSetSize()));
    std::fflush(stdout);
  }
  QCoreApplication::quit();
}

/// Nobody is there to answer.
void askNothing() {
  const auto path = SettingsFile::usualPath();
  if (!path) std::exit(1);
  SettingsFile file(*path);
  UserDefaults defaults(file);
  for (const auto& key : {settings::showDockTip, settings::askToShareOnFacebook}) setValue(defaults, key, false);
}

void watch() {
  const int rounds = qEnvironmentVariableIntValue("QUORVANE_ROUNDS");
  const int applies = qEnvironmentVariableIntValue("QUORVANE_APPLIES");
  if (rounds > 0 || applies > 0) askNothing();
  new FirstPaint([rounds, applies] {
    if (rounds > 0) return whenOpen([rounds] { compareApplies(rounds); });
    if (applies > 0) return whenOpen([applies] { applyManyTimes(applies); });
    std::printf("%.6f %.6f\n", seconds(CLOCK_MONOTONIC), seconds(CLOCK_PROCESS_CPUTIME_ID));
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
