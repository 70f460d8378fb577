// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace quorvane {

/// Sole owner of an open file descriptor; -1 is none.
class FileDescriptor {
 public:
  FileDescriptor() = default;
  explicit FileDescriptor(int handle) : _handle(handle) {}
  FileDescriptor(FileDescriptor&& other) noexcept : _handle(std::exchange(other._handle, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    if (this != &other) {
      close();
      _handle = std::exchange(other._handle, -1);
    }
    return *this;
  }
  ~FileDescriptor() { close(); }

  [[nodiscard]] int get() const { return _handle; }
  [[nodiscard]] bool isOpen() const { return _handle >= 0; }

  /// Hands the descriptor to somebody else who closes it.
  int release() { return std::exchange(_handle, -1); }

  /// 0, or the errno of a close that failed: some file systems report a full disk only here. Linux has closed the
  /// descriptor after an interruption too, so that counts as success.
  int close() {
    if (_handle < 0) return 0;
    const int code = ::close(std::exchange(_handle, -1)) == 0 ? 0 : errno;
    return code == EINTR ? 0 : code;
  }

 private:
  int _handle = -1;
};

}  // namespace quorvane
