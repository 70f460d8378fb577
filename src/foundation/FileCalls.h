// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

/// System calls on open files, made whole: interruptions and short transfers are taken care of. Errors say what was
/// attempted (`what`, such as "cannot write") and why it failed; the caller adds the path.
namespace quorvane::calls {

/// Everything from the start of the file; more than `limit` bytes is ErrorKind::TooLarge.
Result<Bytes> readAll(int handle, std::size_t limit, const std::string& what);
/// Whether the file holds exactly these bytes.
Result<bool> holds(int handle, ByteView bytes, const std::string& what);
Result<void> writeAll(int handle, ByteView bytes, const std::string& what);
/// Flushes to disk. Folders of file systems that cannot flush folders count as flushed.
Result<void> flush(int handle, const std::string& what);
Result<struct stat> status(int handle, const std::string& what);

/// An extended attribute; nullopt when there is none or the file system knows none.
Result<std::optional<Bytes>> attribute(int handle, const std::string& name);
/// Sets it, flushes it and reads it back.
Result<void> setAttribute(int handle, const std::string& name, ByteView value);
Result<void> removeAttribute(int handle, const std::string& name);

/// Whether both tell of one file or folder, by whatever names.
bool isSameItem(const struct stat& a, const struct stat& b);
/// "a link", "a folder", "a fifo" ...
std::string kindWords(mode_t mode);

}  // namespace quorvane::calls
