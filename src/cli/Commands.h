// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonObject>

#include "app/core/FolderBranding.h"
#include "cli/Arguments.h"
#include "iconfamily/IconServices.h"

namespace quorvane::cli {

/// Carries out what was asked for and returns the exit code.
int run(const Arguments& arguments, const IconServices& services);

/// The same by kind of command. `reporter` says what came of each item; the exit code is made from its counts. Those
/// for many folders return false, with the reason said, when what was asked for makes no sense.
bool runApply(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter);
bool runWaysBack(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter);
bool runRepair(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter);
/// A folder that is not sound counts as failed.
bool runVerify(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter);
/// `hasAny` becomes true when at least one folder has a brand.
bool runStatus(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter, bool& hasAny);
/// Returns true when a branded folder was found.
bool runList(const Arguments& arguments, const FolderBranding& branding, Reporter& reporter);
void runRender(const Arguments& arguments, const IconServices& services, Reporter& reporter);
void runSets(const Arguments& arguments, const IconServices& services, Reporter& reporter);
void runIcns(const Arguments& arguments, Reporter& reporter);

/// The notes of a result, for the reporter's details and for people (over many folders most are the same).
QJsonObject notesOf(const BrandingResult& result);
void sayNotes(const BrandingResult& result, Reporter& reporter);
/// Sentences as a JSON array, harmless to a terminal.
QJsonArray arrayOf(const std::vector<std::string>& words);

/// Writes a file the user named, creating or replacing it; never through a link at its last step.
Result<void> writeOutputFile(const std::filesystem::path& path, ByteView bytes);

/// The signal that asked the program to end, or 0. Looked at between two items. Any thread.
int pendingSignal();
void watchSignals();

}  // namespace quorvane::cli
