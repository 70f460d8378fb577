// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/LocalPath.h"

#include <QMimeData>
#include <QSysInfo>
#include <QUrl>

namespace quorvane {

std::filesystem::path resolved(const std::filesystem::path& path) {
  std::error_code failed;
  std::filesystem::path real = std::filesystem::canonical(path, failed);
  return failed ? path : real;
}

std::optional<std::filesystem::path> localPath(const QUrl& address) {
  if (address.scheme() != QLatin1String("file")) return std::nullopt;
  const QString host = address.host();
  if (!host.isEmpty() && host != QLatin1String("localhost") &&
      host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) != 0)
    return std::nullopt;
  // Names are bytes; the address's own text forms would replace what is no UTF-8.
  const QByteArray bytes = QByteArray::fromPercentEncoding(address.path(QUrl::FullyEncoded).toLatin1());
  if (!bytes.startsWith('/') || bytes.contains('\0')) return std::nullopt;
  return std::filesystem::path(bytes.toStdString());
}

std::optional<std::filesystem::path> firstLocalPath(const QMimeData& data) {
  const QList<QUrl> addresses = data.urls();
  if (addresses.isEmpty()) return std::nullopt;
  const auto path = localPath(addresses.first());
  if (!path) return std::nullopt;
  return resolved(*path);
}

}  // namespace quorvane
