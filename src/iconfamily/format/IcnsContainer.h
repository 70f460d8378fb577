// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

/// The elements of a family that stands inside an element: a run of elements, with or without an 'icns' header.
Result<std::vector<IcnsElement>> nestedIcnsElements(ByteView data);

/// The first element of that type; nullopt when the family does not hold one or is not a family.
std::optional<ByteView> icnsElement(ByteView family, FourCharCode type);

/// Stores an element: replaces the first of its type in place (and drops later ones of that type), or appends it.
/// An empty `family` becomes a valid one. All other elements stay byte for byte, in order; a 'TOC ' is brought up to
/// date. Fails, changing nothing, on bytes that are no family or when the total would pass 32 bits.
Result<void> setIcnsElement(Bytes& family, FourCharCode type, ByteView data);

/// One line an element, "TYPE LENGTH" (printable), nested families indented: for goldens and `icns list`.
std::string describeIcns(ByteView family);

}  // namespace quorvane
