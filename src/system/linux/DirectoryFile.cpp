// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/linux/DirectoryFile.h"

#include <algorithm>
#include <vector>

#include "system/linux/TextLines.h"

namespace quorvane::directoryfile {

namespace {

constexpr std::string_view entryGroup = "[Desktop Entry]";
constexpr std::string_view escapedGroup = "[Desktop\\sEntry]";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

enum class Group { Other, Entry, Escaped };

/// A line together with what it means to us.
struct Line {
  TextLine raw;
  Group group = Group::Other;  ///< that it begins or stands in
  bool isHeader = false;
  std::optional<std::string_view> icon;  ///< the value of an icon key in one of the two groups
};

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

Group groupOf(std::string_view header) {
  // A mark may follow the name: "[$i]" forbids that other files change the group.
  if (header == entryGroup || header.starts_with(std::string(entryGroup) + "[$")) return Group::Entry;
  return header == escapedGroup ? Group::Escaped : Group::Other;
}

std::optional<std::string_view> iconIn(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return std::nullopt;
  const std::string_view key = trimmed(line.substr(0, equals));
  if (key != "Icon" && !key.starts_with("Icon[")) return std::nullopt;
  return trimmed(line.substr(equals + 1));
}

std::vector<Line> linesOf(std::string_view text) {
  std::vector<Line> lines;
  Group group = Group::Other;
  for (const TextLine& raw : textLines(text)) {
    std::string_view content = raw.text;
    if (lines.empty() && content.starts_with(byteOrderMark)) content.remove_prefix(byteOrderMark.size());
    content = trimmed(content);
    Line line{.raw = raw, .icon = {}};
    line.isHeader = content.starts_with('[');
    if (line.isHeader) group = groupOf(content);
    line.group = group;
    if (!line.isHeader && group != Group::Other) line.icon = iconIn(content);
    lines.push_back(line);
  }
  return lines;
}

/// Without the lines that `isIn` does not want, and without headers of ours that begin nothing then.
template <typename IsIn>
std::vector<Line> filtered(const std::vector<Line>& lines, IsIn isIn) {
  std::vector<Line> kept;
  std::ranges::copy_if(lines, std::back_inserter(kept), isIn);
  std::vector<Line> result;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    const bool isEmpty = i + 1 == kept.size() || kept[i + 1].isHeader;
    if (!(kept[i].isHeader && kept[i].group == Group::Escaped && isEmpty)) result.push_back(kept[i]);
  }
  return result;
}

std::string endOfLines(const std::vector<Line>& lines) {
  if (lines.empty()) return "\n";
  const TextLine& first = lines.front().raw;
  // A lone line that is cut within its end is ended as the others will be.
  if (first.end.empty()) return first.text.ends_with('\r') ? "\r\n" : "\n";
  return std::string(first.end);
}

/// The lines, with `added` at the head of the first desktop entry group, which is made when it is missing.
std::string withLines(const std::vector<Line>& lines, const std::string& added, const std::string& end) {
  std::string out;
  bool isAdded = false;
  const auto endLine = [&] {
    if (!out.empty() && !out.ends_with('\n')) out += end;
  };
  for (const Line& line : lines) {
    out.append(line.raw.text).append(line.raw.end);
    if (isAdded || !line.isHeader || line.group != Group::Entry) continue;
    endLine();
    out += added;
    isAdded = true;
  }
  if (isAdded) return out;
  endLine();
  return out.append(entryGroup).append(end).append(added);
}

/// A value as the format wants it.
std::string escaped(std::string_view value) {
  std::string out;
  for (const char letter : value) {
    switch (letter) {
      case '\\':
        out += "\\\\";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\t':
        out += "\\t";
        break;
      default:
        out += letter;
    }
  }
  return out;
}

std::string withIconLines(std::string_view text, const std::optional<std::string>& entryValue,
                          const std::optional<std::string>& escapedValue) {
  const auto lines = filtered(linesOf(text), [](const Line& line) { return !line.icon; });
  const std::string end = endOfLines(lines);
  std::string out = withLines(lines, entryValue ? "Icon=" + *entryValue + end : "", end);
  if (!escapedValue) return out;
  if (!out.empty() && !out.ends_with('\n')) out += end;
  return out.append(escapedGroup).append(end).append("Icon=").append(*escapedValue).append(end);
}

}  // namespace

std::string withIcon(std::string_view text, const IconPaths& icon) {
  std::optional<std::string> absolute;
  if (icon.absolute) absolute = escaped(*icon.absolute);
  return withIconLines(text, absolute, icon.relative);
}

std::optional<std::string> restored(std::string_view text, const std::optional<std::string>& original,
                                    bool (*isOurs)(std::string_view value)) {
  const auto all = linesOf(text);
  std::optional<std::string> entryValue;
  std::optional<std::string> escapedValue;
  bool hasOthers = false;
  for (const Line& line : all) {
    if (!line.icon) continue;
    if (!isOurs(*line.icon)) {
      hasOthers = true;
    } else {
      (line.group == Group::Entry ? entryValue : escapedValue) = *line.icon;
    }
  }
  if (!entryValue && !escapedValue) return std::string(text);
  if (withIconLines(original.value_or(std::string()), entryValue, escapedValue) == text) return original;

  // Somebody has written into it since; what was not ours stays, and a former icon comes back.
  std::string former;
  if (original && !hasOthers)
    for (const Line& line : linesOf(*original))
      if (line.icon && line.group == Group::Entry) former.append(line.raw.text).append(endOfLines(all));
  const auto lines = filtered(all, [&](const Line& line) { return !line.icon || !isOurs(*line.icon); });
  const bool isEmpty = std::ranges::all_of(lines, [](const Line& line) {
    return trimmed(line.raw.text).empty() || (line.isHeader && line.group == Group::Entry);
  });
  if (isEmpty && !original) return std::nullopt;
  if (!former.empty()) return withLines(lines, former, endOfLines(all));
  std::string rest;
  for (const Line& line : lines) rest.append(line.raw.text).append(line.raw.end);
  return rest;
}

bool namesIcon(std::string_view text, bool (*isOurs)(std::string_view value)) {
  return std::ranges::any_of(linesOf(text), [&](const Line& line) { return line.icon && isOurs(*line.icon); });
}

}  // namespace quorvane::directoryfile
