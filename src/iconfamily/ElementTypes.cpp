// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/ElementTypes.h"

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

using enum ElementForm;

constexpr std::optional<FourCharCode> none;

constexpr auto allTypes = std::to_array<ElementType>({
    {"ic10", 1024, 1024, 2, Picture, none},
    {"ic09", 512, 512, 1, Picture, none},
    {"ic14", 512, 512, 2, Picture, none},
    {"ic08", 256, 256, 1, Picture, none},
    {"ic13", 256, 256, 2, Picture, none},
    {"ic07", 128, 128, 1, Picture, none},
    {"it32", 128, 128, 1, Packed24Wide, FourCharCode("t8mk")},
    {"t8mk", 128, 128, 1, Mask8, none},
    {"icp6", 64, 64, 1, Picture, none},
    {"ic12", 64, 64, 2, Picture, none},
    {"ih32", 48, 48, 1, Packed24, FourCharCode("h8mk")},
    {"SB24", 48, 48, 2, Picture, none},
    {"h8mk", 48, 48, 1, Mask8, none},
    {"ich8", 48, 48, 1, Indexed8, FourCharCode("ich#")},
    {"ich4", 48, 48, 1, Indexed4, FourCharCode("ich#")},
    {"ich#", 48, 48, 1, Bit1AndMask, none},
    {"icsB", 36, 36, 2, Picture, none},
    {"icp5", 32, 32, 1, PackedOrPicture, FourCharCode("l8mk")},
    {"ic05", 32, 32, 1, ArgbOrPicture, none},
    {"il32", 32, 32, 1, Packed24, FourCharCode("l8mk")},
    {"ic11", 32, 32, 2, Picture, none},
    {"l8mk", 32, 32, 1, Mask8, none},
    {"icl8", 32, 32, 1, Indexed8, FourCharCode("ICN#")},
    {"icl4", 32, 32, 1, Indexed4, FourCharCode("ICN#")},
    {"ICN#", 32, 32, 1, Bit1AndMask, none},
    {"ICON", 32, 32, 1, Bit1, none},
    {"sb24", 24, 24, 1, Picture, none},
    {"icsb", 18, 18, 1, ArgbOrPicture, none},
    {"icp4", 16, 16, 1, PackedOrPicture, FourCharCode("s8mk")},
    {"ic04", 16, 16, 1, ArgbOrPicture, none},
    {"is32", 16, 16, 1, Packed24, FourCharCode("s8mk")},
    {"s8mk", 16, 16, 1, Mask8, none},
    {"ics8", 16, 16, 1, Indexed8, FourCharCode("ics#")},
    {"ics4", 16, 16, 1, Indexed4, FourCharCode("ics#")},
    {"ics#", 16, 16, 1, Bit1AndMask, none},
    {"icm8", 16, 12, 1, Indexed8, FourCharCode("icm#")},
    {"icm4", 16, 12, 1, Indexed4, FourCharCode("icm#")},
    {"icm#", 16, 12, 1, Bit1AndMask, none},
});

constexpr auto written = std::to_array<WrittenElement>({
    {"ic09", 512, ElementData::Argb32},
    {"ic08", 256, ElementData::Argb32},
    {"it32", 128, ElementData::Argb32},
    {"t8mk", 128, ElementData::Mask8},
    {"il32", 32, ElementData::Argb32},
    {"l8mk", 32, ElementData::Mask8},
    {"icl8", 32, ElementData::Indexed8},
    {"ICN#", 32, ElementData::Bit1AndMask},
    {"is32", 16, ElementData::Argb32},
    {"s8mk", 16, ElementData::Mask8},
    {"ics8", 16, ElementData::Indexed8},
    {"ics#", 16, ElementData::Bit1AndMask},
});

}  // namespace

std::span<const ElementType> elementTypes() { return allTypes; }

const ElementType* elementType(FourCharCode type) {
  const auto* found = std::ranges::find(allTypes, type, &ElementType::type);
  return found == allTypes.end() ? nullptr : found;
}

std::span<const WrittenElement> writtenElements() { return written; }

const WrittenElement* writtenElement(FourCharCode type) {
  const auto* found = std::ranges::find(written, type, &WrittenElement::type);
  return found == written.end() ? nullptr : found;
}

}  // namespace quorvane
