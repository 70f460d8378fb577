// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/EmojiText.h"

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

struct CodeRange {
  char32_t first;
  char32_t last;
};

// Unicode 15, emoji-data.txt, property Emoji_Presentation, neighbouring ranges joined. The block from 1FA70 is taken
// whole: what is still unassigned there is reserved for more of the kind.
constexpr std::array emojiByDefault = std::to_array<CodeRange>(
    {{0x231A, 0x231B},   {0x23E9, 0x23EC},   {0x23F0, 0x23F0},   {0x23F3, 0x23F3},   {0x25FD, 0x25FE},
     {0x2614, 0x2615},   {0x2648, 0x2653},   {0x267F, 0x267F},   {0x2693, 0x2693},   {0x26A1, 0x26A1},
     {0x26AA, 0x26AB},   {0x26BD, 0x26BE},   {0x26C4, 0x26C5},   {0x26CE, 0x26CE},   {0x26D4, 0x26D4},
     {0x26EA, 0x26EA},   {0x26F2, 0x26F3},   {0x26F5, 0x26F5},   {0x26FA, 0x26FA},   {0x26FD, 0x26FD},
     {0x2705, 0x2705},   {0x270A, 0x270B},   {0x2728, 0x2728},   {0x274C, 0x274C},   {0x274E, 0x274E},
     {0x2753, 0x2755},   {0x2757, 0x2757},   {0x2795, 0x2797},   {0x27B0, 0x27B0},   {0x27BF, 0x27BF},
     {0x2B1B, 0x2B1C},   {0x2B50, 0x2B50},   {0x2B55, 0x2B55},   {0x1F004, 0x1F004}, {0x1F0CF, 0x1F0CF},
     {0x1F18E, 0x1F18E}, {0x1F191, 0x1F19A}, {0x1F1E6, 0x1F1FF}, {0x1F201, 0x1F201}, {0x1F21A, 0x1F21A},
     {0x1F22F, 0x1F22F}, {0x1F232, 0x1F236}, {0x1F238, 0x1F23A}, {0x1F250, 0x1F251}, {0x1F300, 0x1F320},
     {0x1F32D, 0x1F335}, {0x1F337, 0x1F37C}, {0x1F37E, 0x1F393}, {0x1F3A0, 0x1F3CA}, {0x1F3CF, 0x1F3D3},
     {0x1F3E0, 0x1F3F0}, {0x1F3F4, 0x1F3F4}, {0x1F3F8, 0x1F43E}, {0x1F440, 0x1F440}, {0x1F442, 0x1F4FC},
     {0x1F4FF, 0x1F53D}, {0x1F54B, 0x1F54E}, {0x1F550, 0x1F567}, {0x1F57A, 0x1F57A}, {0x1F595, 0x1F596},
     {0x1F5A4, 0x1F5A4}, {0x1F5FB, 0x1F64F}, {0x1F680, 0x1F6C5}, {0x1F6CC, 0x1F6CC}, {0x1F6D0, 0x1F6D2},
     {0x1F6D5, 0x1F6D7}, {0x1F6DC, 0x1F6DF}, {0x1F6EB, 0x1F6EC}, {0x1F6F4, 0x1F6FC}, {0x1F7E0, 0x1F7EB},
     {0x1F7F0, 0x1F7F0}, {0x1F90C, 0x1F93A}, {0x1F93C, 0x1F945}, {0x1F947, 0x1F9FF}, {0x1FA70, 0x1FAFF}});

constexpr char32_t zeroWidthJoiner = 0x200D;
constexpr char32_t enclosingKeycap = 0x20E3;
constexpr char32_t textSelector = 0xFE0E;
constexpr char32_t emojiSelector = 0xFE0F;

bool isEmojiByDefault(char32_t code) {
  const auto* range = std::lower_bound(emojiByDefault.begin(), emojiByDefault.end(), code,
                                       [](const CodeRange& candidate, char32_t c) { return candidate.last < c; });
  return range != emojiByDefault.end() && range->first <= code;
}

/// Skin tones and the tag letters of flags: never a picture of their own behind another one.
bool isModifier(char32_t code) {
  return (code >= 0x1F3FB && code <= 0x1F3FF) || (code >= 0xE0020 && code <= 0xE007F) || code == emojiSelector ||
         code == enclosingKeycap;
}

struct Scanner {
  const QString& text;

  /// The character at `position`, with its length in UTF-16 units; 0 past the end.
  char32_t at(int position, int& length) const {
    length = 1;
    if (position >= text.size()) return 0;
    const QChar unit = text.at(position);
    if (unit.isHighSurrogate() && position + 1 < text.size() && text.at(position + 1).isLowSurrogate()) {
      length = 2;
      return QChar::surrogateToUcs4(unit, text.at(position + 1));
    }
    return unit.unicode();
  }

  /// Where the picture that begins at `start` ends; `start` when none does.
  int endOfPicture(int start) const {
    int length = 0;
    const char32_t code = at(start, length);
    int position = start + length;
    const char32_t next = at(position, length);
    if (next == textSelector || !(isEmojiByDefault(code) || next == emojiSelector)) return start;
    for (char32_t follower = next; follower != 0; follower = at(position, length)) {
      if (follower == zeroWidthJoiner) {
        position += length;
        if (at(position, length) == 0) break;
      } else if (!isModifier(follower)) {
        break;
      }
      position += length;
    }
    return position;
  }
};

}  // namespace

EmojiText separateEmoji(const QString& text) {
  EmojiText result;
  result.text.reserve(text.size());
  const Scanner scanner{text};
  for (int position = 0; position < text.size();) {
    const int end = scanner.endOfPicture(position);
    const bool isEmoji = end > position;
    int length = 0;
    scanner.at(position, length);
    const int start = static_cast<int>(result.text.size());
    for (const QChar unit : QStringView(text).mid(position, isEmoji ? end - position : length)) {
      if (unit.unicode() != textSelector && unit.unicode() != emojiSelector) result.text.append(unit);
    }
    position = isEmoji ? end : position + length;
    if (!isEmoji) continue;
    const int added = static_cast<int>(result.text.size()) - start;
    if (!result.emoji.empty() && result.emoji.back().start + result.emoji.back().length == start) {
      result.emoji.back().length += added;
    } else {
      result.emoji.push_back({start, added});
    }
  }
  return result;
}

}  // namespace quorvane
