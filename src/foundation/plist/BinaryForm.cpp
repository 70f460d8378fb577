// SPDX-License-Identifier: GPL-3.0-or-later
// The binary form: a header, objects one behind the other, a table of where they begin, a trailer. Objects refer to
// each other by number. Only the array and the strings that it refers to are looked at, so circles lead nowhere.
#include <optional>
#include <string_view>

#include "foundation/plist/Collected.h"
#include "foundation/plist/PropertyList.h"
#include "foundation/plist/Unicode.h"

namespace quorvane::plist {

namespace {

constexpr std::string_view header = "bplist0";
constexpr std::size_t headerLength = 8;
constexpr std::size_t trailerLength = 32;
// In the trailer: the sizes of numbers, and then three of 8 bytes.
constexpr std::size_t trailerSizes = 6;
constexpr std::size_t trailerNumbers = 8;
// In a marker's low half: the count follows as an integer object.
constexpr unsigned countFollows = 0xF;

enum Kind : unsigned { Integer = 0x1, AsciiString = 0x5, Utf16String = 0x6, Utf8String = 0x7, Array = 0xA };

Error broken() {
  return noPropertyList("its binary form is damaged");
}

std::uint64_t numberAt(ByteView bytes, std::size_t at, std::size_t length) {
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < length; ++i) number = number << 8 | bytes[at + i];
  return number;
}

/// What the trailer says, found to lie inside the file.
struct Layout {
  std::size_t offsetSize;
  std::size_t referenceSize;
  std::size_t count;
  std::size_t top;
  std::size_t table;  ///< where the table begins, and the objects end
};

Result<Layout> layoutOf(ByteView bytes) {
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  if (!text.starts_with(header) || bytes.size() < headerLength + 1 + trailerLength) return broken();
  const std::size_t end = bytes.size() - trailerLength;
  const auto number = [&](std::size_t i) { return numberAt(bytes, end + trailerNumbers + 8 * i, 8); };
  const std::size_t offsetSize = bytes[end + trailerSizes];
  const std::size_t referenceSize = bytes[end + trailerSizes + 1];
  const std::uint64_t count = number(0);
  const std::uint64_t top = number(1);
  const std::uint64_t table = number(2);
  if (offsetSize < 1 || offsetSize > 8 || referenceSize < 1 || referenceSize > 8) return broken();
  if (table < headerLength || table > end || count > (end - table) / offsetSize || top >= count) return broken();
  return Layout{offsetSize, referenceSize, static_cast<std::size_t>(count), static_cast<std::size_t>(top),
                static_cast<std::size_t>(table)};
}

/// An object: its kind, how many units it holds, and the bytes from the first of them to the end of all objects.
struct Object {
  unsigned kind;
  std::uint64_t count;
  ByteView rest;
};

Result<Object> objectAt(ByteView bytes, const Layout& layout, std::size_t number) {
  const std::uint64_t offset = numberAt(bytes, layout.table + number * layout.offsetSize, layout.offsetSize);
  if (offset < headerLength || offset >= layout.table) return broken();
  ByteView rest = bytes.first(layout.table).subspan(static_cast<std::size_t>(offset));
  const unsigned marker = rest[0];
  rest = rest.subspan(1);
  Object object{.kind = marker >> 4, .count = marker & 0xF, .rest = rest};
  const bool isCounted =
      object.kind == AsciiString || object.kind == Utf16String || object.kind == Utf8String || object.kind == Array;
  if (!isCounted || object.count != countFollows) return object;
  if (rest.empty() || rest[0] >> 4 != Integer) return broken();
  const unsigned power = rest[0] & 0xF;
  const std::size_t length = std::size_t{1} << power;
  // A count of 16 bytes could not be of anything.
  if (power > 3 || rest.size() < 1 + length) return broken();
  object.count = numberAt(rest, 1, length);
  object.rest = rest.subspan(1 + length);
  return object;
}

/// The units of an object as bytes.
Result<ByteView> contentOf(const Object& object, std::size_t unit) {
  if (object.count > object.rest.size() / unit) return broken();
  return object.rest.first(static_cast<std::size_t>(object.count) * unit);
}

/// nullopt for what is no string.
Result<std::optional<std::string>> stringOf(const Object& object) {
  switch (object.kind) {
    case AsciiString:
    case Utf8String:
      return std::optional(wellFormed(TRY(contentOf(object, 1))));
    case Utf16String:
      return std::optional(fromUtf16(TRY(contentOf(object, 2)), false));
    default:
      return std::optional<std::string>();
  }
}

}  // namespace

Result<std::vector<std::string>> readBinary(ByteView bytes) {
  if (bytes.size() > limits::propertyListBytes) return Error::tooLarge("a property list that is too long");
  const Layout layout = TRY(layoutOf(bytes));
  const Object top = TRY(objectAt(bytes, layout, layout.top));
  if (top.kind != Array) return noArray();
  const ByteView references = TRY(contentOf(top, layout.referenceSize));
  Collected strings;
  for (std::size_t at = 0; at < references.size(); at += layout.referenceSize) {
    const std::uint64_t number = numberAt(references, at, layout.referenceSize);
    if (number >= layout.count) return broken();
    auto text = TRY(stringOf(TRY(objectAt(bytes, layout, static_cast<std::size_t>(number)))));
    if (text) TRY_VOID(strings.add(*std::move(text)));
  }
  return std::move(strings).take();
}

}  // namespace quorvane::plist
