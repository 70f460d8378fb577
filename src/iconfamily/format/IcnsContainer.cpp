// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/IcnsContainer.h"

#include <algorithm>
#include <array>
#include <limits>

#include "foundation/base/ByteReader.h"
#include "foundation/base/ByteWriter.h"
#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

constexpr FourCharCode familyMagic("icns");
constexpr FourCharCode contentsType("TOC ");
constexpr FourCharCode versionType("icnV");
// Type and length, both of the family and of each element.
constexpr std::size_t headerLength = 8;

constexpr std::array<FourCharCode, 8> nestedTypes{FourCharCode("tile"), FourCharCode("over"),    FourCharCode("drop"),
                                                  FourCharCode("open"), FourCharCode("odrp"),    FourCharCode("sbtp"),
                                                  FourCharCode("slct"), FourCharCode(0xFDD92FA8)};

Result<std::vector<IcnsElement>> elementsOfRun(ByteView run) {
  std::vector<IcnsElement> elements;
  ByteReader reader(run);
  while (!reader.atEnd()) {
    const auto type = reader.readCode();
    const auto length = reader.readU32();
    if (!type || !length || *length < headerLength) break;
    const auto data = reader.readBytes(*length - headerLength);
    if (!data) break;
    if (elements.size() == limits::familyElements) return Error::tooLarge("icon family with too many elements");
    elements.push_back({*type, *data});
  }
  return elements;
}

// The rows of the table of contents: what follows it, the version element apart.
Bytes contentsRows(const std::vector<IcnsElement>& elements, std::size_t first) {
  ByteWriter rows;
  for (std::size_t i = first; i < elements.size(); ++i) {
    if (elements[i].type == versionType) continue;
    rows.writeCode(elements[i].type);
    rows.writeU32(static_cast<std::uint32_t>(headerLength + elements[i].data.size()));
  }
  return std::move(rows).take();
}

std::size_t familyLength(const std::vector<IcnsElement>& elements) {
  std::size_t total = headerLength;
  for (const IcnsElement& element : elements) total += headerLength + element.data.size();
  return total;
}

std::vector<IcnsElement>::iterator findType(std::vector<IcnsElement>& elements, FourCharCode type) {
  return std::find_if(elements.begin(), elements.end(), [type](const IcnsElement& each) { return each.type == type; });
}

// Where an element of a new type goes: the table of contents opens a family, the version element closes it.
std::vector<IcnsElement>::iterator placeForNew(std::vector<IcnsElement>& elements, FourCharCode type) {
  if (type == contentsType) return elements.begin();
  return !elements.empty() && elements.back().type == versionType ? elements.end() - 1 : elements.end();
}

void describeRun(const std::vector<IcnsElement>& elements, int depth, std::size_t& budget, std::string& text) {
  for (const IcnsElement& element : elements) {
    if (budget == 0) return;
    --budget;
    text.append(2 * static_cast<std::size_t>(depth), ' ');
    text += element.type.toDisplayText() + " " + std::to_string(element.data.size()) + "\n";
    if (depth >= limits::familyDepth || !holdsNestedFamily(element.type)) continue;
    if (const auto nested = nestedIcnsElements(element.data)) describeRun(*nested, depth + 1, budget, text);
  }
}

}  // namespace

bool holdsNestedFamily(FourCharCode type) {
  return std::find(nestedTypes.begin(), nestedTypes.end(), type) != nestedTypes.end();
}

Result<std::vector<IcnsElement>> icnsElements(ByteView family) {
  ByteReader reader(family);
  const auto magic = reader.readCode();
  const auto total = reader.readU32();
  if (magic != familyMagic || !total) return Error::invalidInput("not an icon family");
  const ByteView rest = reader.readRest();
  const std::size_t claimed = *total < headerLength ? 0 : *total - headerLength;
  return elementsOfRun(rest.first(std::min(claimed, rest.size())));
}

Result<std::vector<FourCharCode>> icnsElementTypes(std::uint64_t fileLength, const IcnsHeaderSource& source) {
  std::array<std::uint8_t, headerLength> header{};
  const auto readHeader = [&](std::uint64_t at) -> Result<std::optional<std::pair<FourCharCode, std::uint32_t>>> {
    if (!TRY(source(at, header.data(), header.size()))) return std::optional<std::pair<FourCharCode, std::uint32_t>>();
    ByteReader reader(header);
    const auto type = reader.readCode();
    const auto length = reader.readU32();
    return std::optional(std::pair(*type, *length));
  };
  const auto family = TRY(readHeader(0));
  if (!family || family->first != familyMagic) return Error::invalidInput("not an icon family");
  const std::uint64_t end = std::min<std::uint64_t>(family->second, fileLength);
  std::vector<FourCharCode> types;
  for (std::uint64_t at = headerLength; at + headerLength <= end;) {
    const auto element = TRY(readHeader(at));
    if (!element || element->second < headerLength || element->second > end - at) break;
    if (types.size() == limits::familyElements) return Error::tooLarge("icon family with too many elements");
    types.push_back(element->first);
    at += element->second;
  }
  return types;
}

Result<std::vector<IcnsElement>> nestedIcnsElements(ByteView data) {
  return ByteReader(data).readCode() == familyMagic ? icnsElements(data) : elementsOfRun(data);
}

std::optional<ByteView> icnsElement(ByteView family, FourCharCode type) {
  auto elements = icnsElements(family);
  if (!elements) return std::nullopt;
  const auto found = findType(*elements, type);
  if (found == elements->end()) return std::nullopt;
  return found->data;
}

Result<void> setIcnsElement(Bytes& family, FourCharCode type, ByteView data) {
  std::vector<IcnsElement> elements;
  if (!family.empty()) elements = TRY(icnsElements(family));

  if (const auto first = findType(elements, type); first != elements.end()) {
    first->data = data;
    elements.erase(
        std::remove_if(first + 1, elements.end(), [type](const IcnsElement& each) { return each.type == type; }),
        elements.end());
  } else {
    elements.insert(placeForNew(elements, type), {type, data});
  }
  if (elements.size() > limits::familyElements) return Error::tooLarge("icon family with too many elements");

  constexpr std::size_t longest = std::numeric_limits<std::uint32_t>::max();
  if (data.size() > longest - headerLength) return Error::tooLarge("icon family element too long");
  Bytes rows;
  if (const auto contents = findType(elements, contentsType); contents != elements.end() && type != contentsType) {
    rows = contentsRows(elements, static_cast<std::size_t>(contents - elements.begin()) + 1);
    contents->data = rows;
  }
  const std::size_t total = familyLength(elements);
  if (total > longest) return Error::tooLarge("icon family too long");

  // Built beside the old bytes: the elements, and perhaps `data`, are views into them. Stray bytes behind the last
  // whole element are left out; nothing could follow them.
  ByteWriter writer;
  writer.reserve(total);
  writer.writeCode(familyMagic);
  writer.writeU32(static_cast<std::uint32_t>(total));
  for (const IcnsElement& element : elements) {
    writer.writeCode(element.type);
    writer.writeU32(static_cast<std::uint32_t>(headerLength + element.data.size()));
    writer.writeBytes(element.data);
  }
  family = std::move(writer).take();
  return {};
}

std::string describeIcns(ByteView family) {
  std::string text;
  std::size_t budget = limits::familyElements;
  if (const auto elements = icnsElements(family)) describeRun(*elements, 0, budget, text);
  return text;
}

}  // namespace quorvane
