// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/plist/PropertyList.h"

#include <algorithm>

#include "foundation/base/Limits.h"
#include "foundation/base/Text.h"

namespace quorvane::plist {

namespace {

constexpr std::string_view binaryBeginning = "bplist";
constexpr std::string_view header =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n<array>\n";
constexpr std::string_view footer = "</array>\n</plist>\n";

void appendEscaped(std::string& to, std::string_view text) {
  for (const char each : text) {
    if (each == '&') {
      to += "&amp;";
    } else if (each == '<') {
      to += "&lt;";
    } else if (each == '>') {
      to += "&gt;";
    } else {
      to += each;
    }
  }
}

}  // namespace

Form formOf(ByteView bytes) {
  const std::string_view begin(reinterpret_cast<const char*>(bytes.data()), std::min<std::size_t>(bytes.size(), 4096));
  if (begin.starts_with(binaryBeginning)) return Form::Binary;
  // Byte-order marks, blanks, and the zero bytes of UTF-16 may stand in front.
  const std::size_t first = begin.find_first_not_of(std::string_view("\xEF\xBB\xBF\xFE\xFF \t\r\n\0", 10));
  return first != std::string_view::npos && begin[first] == '<' ? Form::Xml : Form::Text;
}

Result<std::vector<std::string>> readStringArray(ByteView bytes) {
  if (bytes.size() > limits::propertyListBytes) return Error::tooLarge("a property list that is too long");
  switch (formOf(bytes)) {
    case Form::Xml:
      return readXml(bytes);
    case Form::Binary:
      return readBinary(bytes);
    case Form::Text:
      break;
  }
  return readText(bytes);
}

bool isWritable(std::string_view text) {
  const auto isControl = [](char each) {
    const auto byte = static_cast<unsigned char>(each);
    return byte < 0x20 ? each != '\t' && each != '\n' : byte == 0x7F;
  };
  return isUtf8(text) && std::ranges::none_of(text, isControl) && text.find("\xEF\xBF\xBE") == std::string_view::npos &&
         text.find("\xEF\xBF\xBF") == std::string_view::npos;
}

Bytes writeStringArray(const std::vector<std::string>& strings) {
  std::string text(header);
  for (const std::string& each : strings) {
    if (!isWritable(each)) continue;
    text += "\t<string>";
    appendEscaped(text, each);
    text += "</string>\n";
  }
  text += footer;
  return {text.begin(), text.end()};
}

}  // namespace quorvane::plist
