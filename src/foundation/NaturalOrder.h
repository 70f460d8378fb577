// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quorvane {

/// Whether a name comes before another one in a list for people: numbers by their value ("2" before "10"), letters by
/// the rules of the user's language, whatever their case. No two different names are equal.
[[nodiscard]] bool comesBefore(const QString& a, const QString& b);

}  // namespace quorvane
