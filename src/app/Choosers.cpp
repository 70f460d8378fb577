// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Choosers.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QImageReader>
#include <QTimer>

#include "composition/view/DroppedFolder.h"

namespace quorvane {

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Choosers", text);
}

void run(QFileDialog* dialog, std::function<void(const std::filesystem::path&)> chosen) {
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setSupportedSchemes({QStringLiteral("file")});
  // Of addresses only the desktops' own dialogs tell by a signal, not the toolkit's.
  QObject::connect(dialog, &QDialog::accepted, dialog, [dialog, chosen = std::move(chosen)] {
    const auto path = localPath(dialog->selectedUrls().value(0));
    // What is done with it may wait for a disk, and the dialog is at its end.
    if (path) QTimer::singleShot(0, dialog->parent(), [chosen, path] { chosen(*path); });
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
