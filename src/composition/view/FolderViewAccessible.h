// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvane {

/// Tells assistive technology what a FolderView is: a graphic with the folder's name, whose value is the label's text
/// and place. Once is enough; more does no harm.
void installFolderViewAccessibility();

}  // namespace quorvane
