// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/linux/Thumbnails.h"

#include <QCryptographicHash>
#include <QStandardPaths>
#include <string>

namespace quorvane {

namespace {

/// The address as the desktop's own library spells it, which is what its cache is filed under: bytes outside
/// letters, digits and these signs are escaped with capital digits.
std::string addressOf(const std::filesystem::path& path) {
  constexpr std::string_view plain = "-._~!$&'()*+,;=:@/";
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string address = "file://";
  for (const char letter : path.native()) {
    const auto byte = static_cast<unsigned char>(letter);
    const bool isPlain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
                         plain.find(letter) != std::string_view::npos;
    if (isPlain) {
      address += letter;
    } else {
      address += {'%', digits[byte >> 4], digits[byte & 15]};
    }
  }
  return address;
}

}  // namespace

void removeThumbnails(const std::filesystem::path& path) {
  const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
  if (cache.isEmpty()) return;
  const QByteArray address = QByteArray::fromStdString(addressOf(path));
  const std::string name = QCryptographicHash::hash(address, QCryptographicHash::Md5).toHex().toStdString() + ".png";
  const std::filesystem::path all = std::filesystem::path(cache.toStdString()) / "thumbnails";
  std::error_code ignored;
  for (const char* size : {"normal", "large", "x-large", "xx-large"})
    std::filesystem::remove(all / size / name, ignored);
}

}  // namespace quorvane
