// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>

#include "app/Drawer.h"
#include "ui/Sheet.h"
#include "ui/Theme.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  // Closing a test's window is not the end of the test.
  QApplication::setQuitOnLastWindowClosed(false);
  QCoreApplication::setApplicationName(QStringLiteral("Quorvane"));
  quorvane::Sheet::setAnimated(false);
  quorvane::Drawer::setAnimated(false);
  quorvane::Theme theme(nullptr);
  theme.apply();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
