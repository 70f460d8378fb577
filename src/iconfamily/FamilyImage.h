// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "foundation/Folder.h"
#include "foundation/base/FourCharCode.h"
#include "foundation/base/Result.h"
#include "imaging/Image.h"

namespace quorvane {

/// Decodes the element of a type; nullopt when it is damaged. Called once for each at most, on any thread.
using ElementDecoder = std::function<std::optional<BitmapImageRep>(FourCharCode type)>;

/// An image of 128 x 128 points with a representation for every pixel size among the elements of a family, largest
/// first, each decoded when it is first needed. nullopt when there is no picture among them.
std::optional<Image> imageOfElements(const std::vector<FourCharCode>& types, const ElementDecoder& decode);

/// The same of an icns file, of which only the headers are read now, and all again for a picture that is needed: an
/// image of a file costs little as long as nothing is drawn. nullopt when there is no file, no family or no picture in
/// it; fails when it cannot be read. Never through a link. The path leads to `name` in `folder`.
Result<std::optional<Image>> imageOfFamilyFile(const Folder& folder, const std::string& name);

}  // namespace quorvane
