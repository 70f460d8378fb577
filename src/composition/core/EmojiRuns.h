// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

namespace quorvane {

/// A stretch of a string, in UTF-16 units.
struct TextRange {
  int start = 0;
  int length = 0;
  bool operator==(const TextRange&) const = default;
};

/// The stretches that are to be shown as colour pictures: characters that are emoji by default, others that U+FE0F asks
/// to be (keycaps among them), with their joiners, skin tones and tags; not those that U+FE0E asks to be plain text.
/// Needed because a text font that happens to have an outline for such a character would be preferred.
std::vector<TextRange> emojiRuns(const QString& text);

}  // namespace quorvane
