// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>

#include "system/Pasteboard.h"

namespace quorvane {

std::vector<std::string> ClipboardPasteboard::types() const {
  std::vector<std::string> names;
  for (const QString& format : QGuiApplication::clipboard()->mimeData()->formats()) names.push_back(format.toStdString());
  return names;
}

std::optional<Bytes> ClipboardPasteboard::dataForType(const std::string& type) const {
  const QMimeData* content = QGuiApplication::clipboard()->mimeData();
  const QString format = QString::fromStdString(type);
  if (!content->hasFormat(format)) return std::nullopt;
  const QByteArray data = content->data(format);
  return Bytes(data.begin(), data.end());
}

void ClipboardPasteboard::setContent(const std::map<std::string, Bytes>& dataByType) {
  auto content = std::make_unique<QMimeData>();
  for (const auto& [type, data] : dataByType)
    content->setData(QString::fromStdString(type),
                     QByteArray(reinterpret_cast<const char*>(data.data()), static_cast<qsizetype>(data.size())));
  // The clipboard takes ownership.
  QGuiApplication::clipboard()->setMimeData(content.release());
}

}  // namespace quorvane
