// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/core/Look.h"
#include "composition/core/IconComposition.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// Sets all values of the look, its label too, on the composition; the pictures it is drawn on stay. A size that is not
/// chosen becomes the one that fits. Fails, with nothing set, when the look's font is not installed. Needs a
/// QGuiApplication.
Result<void> showLook(const Look& look, IconComposition& composition);

/// The look that showLook() makes this composition of: all of it save the pictures it is
/// drawn on. Fails on a shadow that is none of
/// the effects. No font is the system font of 50 points, no colour black, as they are drawn.
Result<Look> lookOf(const IconComposition& composition);

}  // namespace quorvane
