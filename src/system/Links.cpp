// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/Links.h"

namespace quorvane {

bool HVWebsite::visitPage(const QString& path) {
  const QUrl address(_baseAddress + path);
  const bool isWeb = address.scheme() == QLatin1String("https") || address.scheme() == QLatin1String("http");
  return address.isValid() && isWeb && !address.host().isEmpty() && _opener.open(address);
}

}  // namespace quorvane
