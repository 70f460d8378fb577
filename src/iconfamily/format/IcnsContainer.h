// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/FourCharCode.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// One element of an icon family: a type and a view of its data (the 8-byte header left out).
struct IcnsElement {
  FourCharCode type;
  ByteView data;
};

/// The elements in file order, as views into `family`. Refuses bytes that do not begin with 'icns' and a length, and
/// more elements than the limit. Reading stops at min(total, bytes given); an element whose length is below 8 or runs
/// past the end ends the reading, what came before is kept.
Result<std::vector<IcnsElement>> icnsElements(ByteView family);

/// Reads `length` bytes (8) at a place of a file into `to`; false when there are not so many.
using IcnsHeaderSource = std::function<Result<bool>(std::uint64_t at, std::uint8_t* to, std::size_t length)>;
/// The types of the elements that icnsElements() would give of a file of that length, by reading no more than headers.
Result<std::vector<FourCharCode>> icnsElementTypes(std::uint64_t fileLength, const IcnsHeaderSource& source);

/// The elements of a family that stands inside an element: a run of elements, with or without an 'icns' header.
Result<std::vector<IcnsElement>> nestedIcnsElements(ByteView data);

/// The first element of that type; nullopt when the family does not hold one or is not a family.
std::optional<ByteView> icnsElement(ByteView family, FourCharCode type);

/// True for the types whose data is a family of its own: the icon in another state or appearance.
bool holdsNestedFamily(FourCharCode type);

/// Stores an element: replaces the first of its type in place (and drops later ones of that type), or appends it.
/// An empty `family` becomes a valid one. All other elements stay byte for byte, in order; a 'TOC ' is brought up to
/// date, and an 'icnV' that was last stays last. Stray bytes behind the last whole element go. `data` may lie inside
/// `family`. Fails, changing nothing, on bytes that are no family, with too many elements, or when the total would pass
/// 32 bits.
Result<void> setIcnsElement(Bytes& family, FourCharCode type, ByteView data);

/// One line an element, "TYPE LENGTH" (printable; bytes of data), nested families indented: for goldens and `icns
/// list`. Nothing for bytes that icnsElements() refuses; no more lines than a family may have elements.
std::string describeIcns(ByteView family);

}  // namespace quorvane
