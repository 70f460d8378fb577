// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/base/Error.h"

#include <cerrno>
#include <system_error>

namespace quorvane {

Error Error::system(int code, std::string what) {
  const std::string words = std::generic_category().message(code);
  const ErrorKind kind = code == ENOENT    ? ErrorKind::NotFound
                         : code == ENOTSUP ? ErrorKind::Unsupported
                                           : ErrorKind::System;
  Error error(kind, what.empty() ? words : what + ": " + words);
  error._systemCode = code;
  return error;
}

Error Error::at(const std::filesystem::path& where) const& {
  Error copy = *this;
  if (copy._where.empty()) copy._where = where;
  return copy;
}

Error Error::at(const std::filesystem::path& where) && {
  if (_where.empty()) _where = where;
  return std::move(*this);
}

std::string Error::message() const {
  return _where.empty() ? _why : _where.string() + ": " + _why;
}

}  // namespace quorvane
