// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <utility>

namespace quorvane {

/// What kind of failure it is: callers branch on this, never on the words.
enum class ErrorKind {
  InvalidInput,  ///< foreign bytes or a picture that we cannot or will not read
  TooLarge,      ///< over one of the limits in Limits.h
  NotFound,      ///< nothing is there
  Refused,       ///< something is there that we will not touch (a link, a directory in place of a file, a fifo)
  Unsupported,   ///< the file system or platform cannot do it
  System,        ///< a system call failed; systemCode() is its errno
  Broken,        ///< a promise of our own did not hold
};

/// A failure as a value: what was attempted, where, and why it failed. It becomes words in message() only.
class Error {
 public:
  Error(ErrorKind kind, std::string why) : _kind(kind), _why(std::move(why)) {}

  static Error invalidInput(std::string why) { return {ErrorKind::InvalidInput, std::move(why)}; }
  static Error tooLarge(std::string why) { return {ErrorKind::TooLarge, std::move(why)}; }
  static Error refused(std::string why) { return {ErrorKind::Refused, std::move(why)}; }
  static Error broken(std::string why) { return {ErrorKind::Broken, std::move(why)}; }

  /// The failure of a system call, with the system's own words for `code` (an errno value). ENOENT is NotFound, ENOTSUP
  /// is Unsupported, the rest is System.
  static Error system(int code, std::string what);

  /// The same failure with the path it concerns. The first path named is the nearest to the cause and stays.
  [[nodiscard]] Error at(const std::filesystem::path& where) const&;
  [[nodiscard]] Error at(const std::filesystem::path& where) &&;

  [[nodiscard]] ErrorKind kind() const { return _kind; }
  [[nodiscard]] int systemCode() const { return _systemCode; }
  [[nodiscard]] const std::filesystem::path& where() const { return _where; }
  [[nodiscard]] const std::string& why() const { return _why; }

  /// One line: "PATH: reason", or the reason alone. Bytes of the path are as they are; whoever prints escapes them.
  [[nodiscard]] std::string message() const;

 private:
  ErrorKind _kind;
  int _systemCode = 0;
  std::filesystem::path _where;
  std::string _why;
};

}  // namespace quorvane
