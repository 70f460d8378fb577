// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "foundation/Folder.h"
#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

/// The list files of the library and what they may name.
namespace quorvane::library {

/// What a list file says: the names in it that can be names of items, each once. No names when it cannot be understood;
/// no bytes when it is missing or is no plain file.
struct ListFile {
  std::optional<Bytes> bytes;
  std::vector<std::string> names;
};

/// Fails when the disk does not give it out.
Result<ListFile> readList(const Folder& folder, const char* file);
/// Writes the names that a list can hold. The folder is open for writing.
Result<void> writeList(Folder& folder, const char* file, const std::vector<std::string>& names);
/// Whether the file says exactly this, to the letter.
bool says(const ListFile& list, const std::vector<std::string>& names);

/// The set's folder, which must be a folder itself, no link to one.
Result<Folder> openSetFolder(const std::filesystem::path& path, Folder::Access access);
/// A set's folder for writing, made with those above it when it is missing.
Result<Folder> makeSetFolder(const std::filesystem::path& path);

/// What a folder holds for reasons of our own, which is no icon and no set: unfinished things, lists, and what a
/// branded folder has in it.
bool isOurOwn(const std::string& name);
/// Refuses what cannot be the name of a set.
Result<void> checkSetName(const std::string& name);
/// Whether two names differ at most in the case of their letters A to Z.
bool isSameInAnyCase(const std::string& a, const std::string& b);
/// Puts each name that is not there yet behind the others.
void addMissing(std::vector<std::string>& names, const std::vector<std::string>& more);

/// A name for a new item that begins with `base` and ends with `ending`: BASE + ENDING, for a `number` above 0 with the
/// separator and the number between. Cut between characters where it would be too long; what a name or a list cannot
/// hold becomes "_".
std::string newName(const std::string& base, const std::string& separator, int number, const std::string& ending);

}  // namespace quorvane::library
