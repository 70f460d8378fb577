// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  // Tests never need a display, also when ctest asks the program for its list.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
