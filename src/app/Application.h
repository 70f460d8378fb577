// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvane {

/// The whole window program, from its arguments to its exit code.
int runApplication(int argc, char** argv);

}  // namespace quorvane
