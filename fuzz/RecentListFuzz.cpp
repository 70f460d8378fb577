// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop's shared list of recently used things, as other programs or a fault may have left it.
#include <cstdint>
#include <cstdlib>

#include "system/RecentListReader.h"
#include "system/RecentListText.h"

using namespace quorvane;

namespace {

void expect(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const recentlist::Application ours{.name = "A & \"B\"", .exec = "a 'b' %u"};
  const auto once = recentlist::withFolder(text, "/a b", ours, "2026-01-02T03:04:05Z");
  if (!once) {
    // Nothing but what is no list is refused.
    expect(once.error().kind() != ErrorKind::Broken);
    return 0;
  }
  const auto twice = recentlist::withFolder(*once, "/a b", ours, "2026-01-02T03:04:05Z");
  expect(twice.ok());
  const auto before = recentlist::readList(QString::fromStdString(text));
  const auto after = recentlist::readList(QString::fromStdString(*twice));
  expect(after.ok() && (text.empty() || after->bookmarks.size() <= before->bookmarks.size() + 1));
  const auto without = recentlist::withoutApplication(*twice, ours);
  expect(without.ok());
  const auto left = recentlist::readList(QString::fromStdString(*without));
  for (const auto& bookmark : left->bookmarks)
    for (const auto& entry : bookmark.by) expect(entry.name != QString::fromStdString(ours.name));
  return 0;
}
