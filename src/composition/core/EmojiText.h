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

/// A string ready to be laid out: which stretches of it are to be shown as colour pictures.
struct EmojiText {
  QString text;
  std::vector<TextRange> emoji;
};

/// Emoji are characters that are so by default, others that U+FE0F asks to be (keycaps among them), with their joiners,
/// skin tones and tags; not those that U+FE0E asks to be plain text. Whoever lays them out must ask for an emoji font
/// first: a text font that happens to have an outline for such a character would be preferred.
/// The two selectors have then said what they had to say and are left out: few fonts have them, and the change to one
/// that does would tear a sequence apart.
EmojiText separateEmoji(const QString& text);

}  // namespace quorvane
