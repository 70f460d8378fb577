// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/DroppedIcons.h"

#include <QFile>
#include <QImage>
#include <QMimeData>
#include <QRegularExpression>
#include <QUrl>

#include "imaging/Image.h"
#include "ui/LocalPath.h"

namespace quorvane {

namespace {

/// A file name of at most 64 characters from the last part of an address; empty when there is none.
QString plainName(const QUrl& address) {
  QString name = address.fileName();
  const auto ending = name.lastIndexOf(QLatin1Char('.'));
  if (ending > 0) name.truncate(ending);
  static const QRegularExpression unusable(QStringLiteral("[\\x00-\\x1f\\x7f/\\\\]"));
  return name.remove(unusable).trimmed().left(64);
}

}  // namespace

DroppedIcons DroppedIcons::of(const QMimeData& data) {
  DroppedIcons dropped;
  const QList<QUrl> addresses = data.hasUrls() ? data.urls() : QList<QUrl>();
  for (const QUrl& address : addresses) {
    if (const auto path = localPath(address)) dropped.files.push_back(*path);
  }
  if (!dropped.files.empty()) return dropped;
  dropped.hasPicture = data.hasImage();
  if (dropped.hasPicture) return dropped;
  dropped.refusal = addresses.isEmpty() ? tr("Only files, folders and pictures can be added.")
                                        : tr("Only files on this computer can be added. Save it first.");
  return dropped;
}

std::filesystem::path DroppedIcons::writePicture(const QMimeData& data, const std::filesystem::path& folder,
                                                 const QString& otherwise) {
  const auto image = Image::initWithCGImageRef(data.imageData().value<QImage>());
  if (!image) return {};
  QString name;
  for (const QUrl& address : data.urls()) {
    if (name.isEmpty()) name = plainName(address);
  }
  if (name.isEmpty() || name.startsWith(QLatin1Char('.'))) name = otherwise;
  std::filesystem::path path = folder / (QFile::encodeName(name) + ".png").toStdString();
  return image->writeToPNGFile(path) ? path : std::filesystem::path();
}

}  // namespace quorvane
