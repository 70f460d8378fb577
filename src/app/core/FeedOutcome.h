// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvane {

/// What came of fetching a feed: the exit code of the program that does so.
enum class FeedOutcome : int {
  Fetched = 0,
  Failed = 1,           ///< anything else: the program is missing, was called in a wrong way, or broke down
  AddressRefused = 10,  ///< not https, or no address at all
  Unreachable = 11,     ///< no such host, no answer, or it broke off
  NotSecure = 12,       ///< whoever answered cannot prove to be the one that was asked
  NotThere = 13,        ///< the server has no such page
  ServerFailed = 14,    ///< it answered with another status
  TooSlow = 15,
  TooLarge = 16,
  RedirectRefused = 17,  ///< too many, to another scheme, or without encryption
};

/// The longest that a feed is waited for, redirects and all.
inline constexpr int feedSeconds = 15;

}  // namespace quorvane
