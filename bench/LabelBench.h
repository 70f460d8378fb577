// SPDX-License-Identifier: GPL-3.0-or-later
// What the programs that measure labels share, their main function included: text needs an application object.
#pragma once

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QString>

namespace quorvane::bench {

inline const QString& threeLines() {
  static const QString text = QStringLiteral("Projects\nArchive 2024\nthird line");
  return text;
}

}  // namespace quorvane::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
