// SPDX-License-Identifier: GPL-3.0-or-later
// A publisher's list of versions as any server may send it, and the texts and versions in it.
#include <cstdint>
#include <cstdlib>

#include "app/core/Appcast.h"
#include "app/core/ReleaseNews.h"
#include "foundation/base/Limits.h"

using namespace quorvane;

namespace {

void expect(bool holds) {
  if (!holds) std::abort();
}

void expectPlain(const QString& text) {
  for (const QChar c : text) expect(c == u'\n' || (c >= u' ' && c != u'\u202E' && c != u'\u2066'));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const QString news = plainNews(QString::fromUtf8(bytes));
  expectPlain(news);
  // Each character takes ten at most when it is written out.
  expect(news.size() <= static_cast<qsizetype>(10 * (limits::newsCharacters + 1)));
  const auto list = appcast::read(bytes);
  if (!list) return 0;
  expect(list->items.size() <= limits::feedItems);
  expect(list->page.isEmpty() || appcast::isPage(list->page));
  for (const auto& item : list->items) {
    expect(item.page.isEmpty() || appcast::isPage(item.page));
    const auto same = ProgramVersion::parse(item.versionText.toStdString());
    expect(same && *same == item.version && !(*same < item.version));
    expectPlain(plainLine(item.shownVersion, 40));
    const auto newer = appcast::newerItems(*list, item.version, item.leastSystem);
    for (std::size_t i = 0; i < newer.size(); ++i) {
      expect(newer[i].version > item.version && item.version < newer[i].version);
      expect(i == 0 || newer[i - 1].version > newer[i].version);
    }
    if (&item - list->items.data() > 20) break;
  }
  return 0;
}
