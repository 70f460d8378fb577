// SPDX-License-Identifier: GPL-3.0-or-later
// The user's own ".directory" and ".hidden" under our editing. The input's first line that is "---" parts the text as
// it was from the lines that somebody added while the folder was branded.
#include <cstdlib>
#include <string>

#include "system/FolderMarks.h"
#include "system/linux/DirectoryFile.h"
#include "system/linux/HiddenFile.h"

using namespace quorvane;

namespace {

void expect(bool holds) {
  if (!holds) std::abort();
}

void checkDirectoryFile(const std::string& original, const std::string& added) {
  const directoryfile::IconPaths first{.absolute = "/a\\\n/.quorvane/icon-1.png", .relative = "./.quorvane/icon-1.png"};
  const directoryfile::IconPaths second{.absolute = {}, .relative = "./.quorvane/icon-2.png"};
  const auto restored = [](const std::string& text, const std::optional<std::string>& before) {
    return directoryfile::restored(text, before, isMarkPicture);
  };
  const std::string once = directoryfile::withIcon(original, first);
  expect(directoryfile::withIcon(once, first) == once);
  expect(directoryfile::withIcon(directoryfile::withIcon(original, second), first) == once);
  expect(directoryfile::namesIcon(once, isMarkPicture));
  if (directoryfile::namesIcon(original, isMarkPicture)) {
    // Never kept as an original: it is cleaned first.
    (void)restored(once + added, {});
    return;
  }
  expect(restored(once, original) == original);
  expect(restored(directoryfile::withIcon(once, second), original) == original);
  expect(restored(original, original) == original);
  // Whatever was written meanwhile, nothing of ours is left.
  for (const auto& text : {once + added, added + once, added}) {
    const auto without = restored(text, original);
    expect(!without || !directoryfile::namesIcon(*without, isMarkPicture));
    (void)restored(text, {});
  }
}

void checkHiddenFile(const std::string& original, const std::string& added) {
  const std::string name = "Icon\r";
  const std::string once = hiddenfile::withName(original, name);
  expect(hiddenfile::hides(once, name) && hiddenfile::withName(once, name) == once);
  expect(hiddenfile::restored(once, original, name) == original);
  const auto without = hiddenfile::restored(once + added, original, name);
  expect(without && (hiddenfile::hides(original, name) || *without == original || !hiddenfile::hides(*without, name)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  constexpr std::string_view mark = "\n---\n";
  const std::size_t at = input.find(mark);
  const std::string original = input.substr(0, at);
  const std::string added = at == std::string::npos ? "" : input.substr(at + mark.size());
  checkDirectoryFile(original, added);
  checkHiddenFile(original, added);
  return 0;
}
