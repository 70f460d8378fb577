// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvane::plist {

/// The character of a byte in the 8-bit encoding that octal escapes of the text form are in. The unused ones are
/// U+FFFD.
char16_t fromNextStep(unsigned char byte);

}  // namespace quorvane::plist
