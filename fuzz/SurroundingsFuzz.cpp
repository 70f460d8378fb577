// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>

#include "system/GitFiles.h"
#include "system/Mounts.h"

using namespace quorvane;

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

/// A pattern is one line of its own, and one that git does not take for a remark or a negation.
void checkPattern(const std::optional<std::string>& pattern, std::string_view text) {
  require(pattern.has_value() == (!text.empty() && text.find('\n') == text.npos && text.find('\0') == text.npos));
  if (!pattern) return;
  require(!pattern->starts_with('#') && !pattern->starts_with('!') && !pattern->ends_with('\r'));
  const std::string list = gitfiles::withPatterns("", {*pattern});
  require(list == *pattern + '\n' && gitfiles::missingPatterns(list, {*pattern}).empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(input), size);
  if (const auto path = gitfiles::repositoryPath(text)) require(!path->empty() && path->find('\0') == path->npos);
  if (const auto path = gitfiles::commonPath(text)) require(!path->empty() && text.starts_with(*path));
  checkPattern(gitfiles::patternForPath(text), text);
  checkPattern(gitfiles::patternForName(text), text);
  const std::vector<std::string> patterns{"Icon[\r]", ".quorvane/"};
  const std::string list = gitfiles::withPatterns(text, patterns);
  require(list.starts_with(text) && gitfiles::missingPatterns(list, patterns).empty());
  require(gitfiles::withPatterns(list, patterns) == list);
  for (const std::uint64_t number : {1, 25})
    if (const auto mount = mountInTable(text, number)) require(mount->point.native().size() <= size);
  return 0;
}
