// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/core/FolderBranding.h"
#include "cli/Arguments.h"
#include "iconfamily/IconServices.h"

namespace quorvane::cli {

/// Carries out what was asked for and returns the exit code.
int run(const Arguments& arguments, const IconServices& services);

/// The same by kind of command. `reporter` says what came of each item; the exit code is made from its counts.
void runApply(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter);
void runWaysBack(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter);
void runRepair(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter);
/// A folder that is not sound counts as failed.
void runVerify(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter);
/// Returns true when a branded folder was found.
bool runList(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter);
/// Returns true when at least one folder has a brand.
bool runStatus(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter);
void runRender(const Arguments& arguments, const IconServices& services, Reporter& reporter);
void runIcns(const Arguments& arguments, Reporter& reporter);

/// What is wrong with a folder's brand, in words; empty when nothing is.
std::vector<std::string> faultWords(const FolderStatus& status);

/// A picture to draw on: an icns file, or any picture file fitted into a square of 128 x 128 points.
Result<Image> readBasePicture(const std::filesystem::path& path);

/// Writes a file the user named, creating or replacing it; never through a link at its last step.
Result<void> writeOutputFile(const std::filesystem::path& path, ByteView bytes);

/// The signal that asked the program to end, or 0. Looked at between two items.
int pendingSignal();
void watchSignals();

}  // namespace quorvane::cli
