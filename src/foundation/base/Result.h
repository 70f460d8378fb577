// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <utility>
#include <variant>

#include "foundation/base/Error.h"

namespace quorvane {

/// A value, or the failure that kept it from being made. The compiler complains when one is dropped.
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : _state(std::in_place_index<0>, std::move(value)) {}      // NOLINT(google-explicit-constructor)
  Result(Error error) : _state(std::in_place_index<1>, std::move(error)) {}  // NOLINT(google-explicit-constructor)

  /// True when there is a value.
  [[nodiscard]] bool ok() const { return _state.index() == 0; }
  explicit operator bool() const { return ok(); }

  /// Only when ok().
  [[nodiscard]] T& value() & { return std::get<0>(_state); }
  [[nodiscard]] const T& value() const& { return std::get<0>(_state); }
  [[nodiscard]] T&& value() && { return std::get<0>(std::move(_state)); }
  T& operator*() & { return value(); }
  const T& operator*() const& { return value(); }
  T* operator->() { return &value(); }
  const T* operator->() const { return &value(); }

  /// Only when not ok().
  [[nodiscard]] const Error& error() const& { return std::get<1>(_state); }
  [[nodiscard]] Error&& error() && { return std::get<1>(std::move(_state)); }

  /// The value, or nothing: for callers to whom absence and failure are the same.
  [[nodiscard]] std::optional<T> toOptional() && {
    if (!ok()) return std::nullopt;
    return std::get<0>(std::move(_state));
  }

 private:
  std::variant<T, Error> _state;
};

/// Success, or a failure.
template <>
class [[nodiscard]] Result<void> {
 public:
  Result() = default;
  Result(Error error) : _error(std::move(error)) {}  // NOLINT(google-explicit-constructor)

  [[nodiscard]] bool ok() const { return !_error.has_value(); }
  explicit operator bool() const { return ok(); }
  [[nodiscard]] const Error& error() const { return *_error; }

 private:
  std::optional<Error> _error;
};

}  // namespace quorvane

// One in another must not hide the outer one's name.
#define QUORVANE_TRY_VALUE(name, expression)          \
  __extension__({                                     \
    auto&& name = (expression);                       \
    if (!name.ok()) return std::move(name).error();   \
    std::move(name).value();                          \
  })
#define QUORVANE_TRY_NAME(count) tryResult##count##_
#define QUORVANE_TRY_COUNTED(count, expression) QUORVANE_TRY_VALUE(QUORVANE_TRY_NAME(count), expression)

/// Passes a failure up, or is the value: `auto bytes = TRY(readFile(path));`
#define TRY(expression) QUORVANE_TRY_COUNTED(__COUNTER__, expression)

/// The same for a Result<void>.
#define TRY_VOID(expression)                                                \
  do {                                                                      \
    if (auto tryDone_ = (expression); !tryDone_.ok()) return tryDone_.error(); \
  } while (false)
