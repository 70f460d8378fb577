// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quorvane {

/// Owned bytes.
using Bytes = std::vector<std::uint8_t>;
/// Bytes that are only looked at; the owner must outlive it.
using ByteView = std::span<const std::uint8_t>;

}  // namespace quorvane
