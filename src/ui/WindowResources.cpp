// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/WindowResources.h"

#include <QFile>
#include <QtGlobal>

// Must stand outside any namespace. A static library's resources are not there by themselves.
static void initialiseWindowResources() {
  Q_INIT_RESOURCE(window);
}

namespace quorvane {

QByteArray windowResource(const QString& name) {
  [[maybe_unused]] static const bool once = [] {
    initialiseWindowResources();
    return true;
  }();
  QFile file(QStringLiteral(":/%1").arg(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace quorvane
