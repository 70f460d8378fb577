// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

#include "foundation/FileDescriptor.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// Bytes that come one after the other from a file that the user named, a pipe, or standard input. Move-only.
class InputStream {
 public:
  /// "-" is standard input. Links are followed; folders and disks are refused, and terminals (ErrorKind::Unsupported):
  /// who is asked for a list there would only seem to hang.
  static Result<InputStream> open(const std::filesystem::path& path);

  /// Up to `to.size()` bytes, at least one; 0 at the end. Waits for a slow writer; fails at an interruption, so that
  /// what was cut off by it is not taken for whole.
  Result<std::size_t> read(std::span<char> to);

  /// How many bytes a plain file has; nullopt for a pipe.
  [[nodiscard]] std::optional<std::uint64_t> size() const { return _size; }

 private:
  InputStream(FileDescriptor own, int handle) : _own(std::move(own)), _handle(handle) {}

  FileDescriptor _own;  ///< none for standard input, which is not ours to close
  int _handle = -1;
  std::optional<std::uint64_t> _size;
};

}  // namespace quorvane
