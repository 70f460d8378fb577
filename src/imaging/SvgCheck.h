// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// Looks through a vector picture before the renderer sees it. Fails when it refers to anything outside itself (the
/// renderer would open the file), defines entities or names style sheets, or holds more than limits::svgElements and
/// limits::svgDepth allow, counting what is drawn again by reference each time.
Result<void> checkSvg(ByteView bytes);

}  // namespace quorvane
