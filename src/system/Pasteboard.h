// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "foundation/base/Bytes.h"

namespace quorvane {

/// The general pasteboard: bytes under type names.
class Pasteboard {
 public:
  virtual ~Pasteboard() = default;
  [[nodiscard]] virtual std::vector<std::string> types() const = 0;
  /// nullopt when the type is not there.
  [[nodiscard]] virtual std::optional<Bytes> dataForType(const std::string& type) const = 0;
  /// Replaces the whole content.
  virtual void setContent(const std::map<std::string, Bytes>& dataByType) = 0;
};

/// The desktop's clipboard. Needs a QGuiApplication.
class ClipboardPasteboard : public Pasteboard {
 public:
  [[nodiscard]] std::vector<std::string> types() const override;
  [[nodiscard]] std::optional<Bytes> dataForType(const std::string& type) const override;
  void setContent(const std::map<std::string, Bytes>& dataByType) override;
};

}  // namespace quorvane
