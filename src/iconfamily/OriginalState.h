// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <string>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// The small text beside the files that are kept for the way back: one "KEY VALUE" a line, under a line that tells the
/// form. Values are words, or bytes in hexadecimal behind "hex:"; what is absent says "absent".
class OriginalState {
 public:
  static constexpr const char* fileName = "state";

  /// Fails on another form, a cut text (the last line must be "end") and broken values.
  static Result<OriginalState> parse(ByteView text);
  [[nodiscard]] Bytes serialize() const;

  void setKept(const std::string& key, bool isKept);
  void setBytes(const std::string& key, const std::optional<Bytes>& bytes);

  [[nodiscard]] bool tellsOf(const std::string& key) const { return _values.contains(key); }
  /// Whether a file was there and is kept. Fails without such a line.
  [[nodiscard]] Result<bool> isKept(const std::string& key) const;
  /// nullopt: it was absent. Fails without such a line.
  [[nodiscard]] Result<std::optional<Bytes>> bytes(const std::string& key) const;

 private:
  std::map<std::string, std::string> _values;
};

}  // namespace quorvane
