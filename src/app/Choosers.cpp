// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Choosers.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QImageReader>

#include "ui/LocalPath.h"

namespace quorvane {

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("quorvane", text);
}

void run(QFileDialog* dialog, std::function<void(const std::filesystem::path&)> chosen) {
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setSupportedSchemes({QStringLiteral("file")});
  QObject::connect(dialog, &QFileDialog::urlSelected, dialog, [chosen = std::move(chosen)](const QUrl& address) {
    if (const auto path = localPath(address)) chosen(*path);
  });
  // Modal to the window, as a sheet would be.
  dialog->open();
}

QString pictureFilter() {
  QStringList patterns{QStringLiteral("*.icns")};
  for (const QByteArray& format : QImageReader::supportedImageFormats())
    patterns.push_back(QStringLiteral("*.") + QString::fromLatin1(format));
  return tr("Pictures (%1)").arg(patterns.join(QLatin1Char(' ')));
}

}  // namespace

void chooseFolder(QWidget& window, std::function<void(const std::filesystem::path&)> chosen) {
  auto* dialog = new QFileDialog(&window, tr("Open Folder"));
  dialog->setFileMode(QFileDialog::Directory);
  dialog->setOption(QFileDialog::ShowDirsOnly);
  run(dialog, std::move(chosen));
}

void choosePicture(QWidget& window, std::function<void(const std::filesystem::path&)> chosen) {
  auto* dialog = new QFileDialog(&window, tr("Choose Picture"));
  dialog->setFileMode(QFileDialog::ExistingFile);
  dialog->setNameFilters({pictureFilter(), tr("All files (*)")});
  run(dialog, std::move(chosen));
}

}  // namespace quorvane
