// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/types.h>

#include <functional>
#include <string>

namespace quorvane::test {

/// Runs `body` in a process of its own; expectations that fail there fail the test here too.
void inChild(const std::function<void()>& body);

/// The same as an ordinary user: as "nobody" (65534) when the tests run as root, else as whoever runs them.
void asOrdinaryUser(const std::function<void()>& body);

/// The same, with an empty file system of that type mounted at `place` for this process alone. False, and nothing run,
/// where mounting is not allowed: skip the test then.
bool withMounted(const std::string& type, const std::string& options, const std::string& place,
                 const std::function<void()>& body);

/// Starts `body` in a process of its own and returns its id; it never returns from `body` into the test.
pid_t startChild(const std::function<void()>& body);
/// Waits for its end; true when it ended by itself without a failed expectation.
bool waitForChild(pid_t child);

/// Names and contents of what is in a folder, sorted, one "NAME=CONTENT" a line; "NAME/" for folders. Shows at a glance
/// what an interrupted writer left.
std::string listing(const std::string& folder);

}  // namespace quorvane::test
