// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/Reveal.h"

#include "system/FileAddress.h"

namespace quorvane {

void Reveal::show(const std::filesystem::path& path, const std::string& startupId, RevealWays::Answer answer) {
  const auto openParent = [&opener = _opener, path, answer] {
    const auto parent = path.has_relative_path() ? path.parent_path() : path;
    const QUrl address = QUrl::fromEncoded(QByteArray::fromStdString(fileAddress(parent)), QUrl::StrictMode);
    const bool isOpen = opener.open(address);
    if (answer) answer(isOpen);
  };
  const auto askPortal = [&ways = _ways, path, answer, openParent] {
    ways.askPortal(path, [answer, openParent](bool isShown) {
      if (!isShown) return openParent();
      if (answer) answer(true);
    });
  };
  _ways.showItem(path, startupId, [answer, askPortal](bool isShown) {
    if (!isShown) return askPortal();
    if (answer) answer(true);
  });
}

}  // namespace quorvane
