// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/core/IconMaker.h"
#include "app/core/LookFile.h"
#include "cli/Arguments.h"

namespace quorvane::cli {

/// What is to be drawn on a folder: the look file's values, those of the options over them, those of a row over these.
struct Wish {
  SavedLook saved;  ///< its own base is not looked at
  std::optional<BaseReference> base;
  std::optional<BaseReference> overlay;  ///< a picture to lay on it that is still to be read

  /// Nothing to draw with: the folder's icon would stay as it is.
  [[nodiscard]] bool isEmpty() const {
    return saved.labelPattern.isNull() && !base && !saved.look.tint && !hasOverlay();
  }
  [[nodiscard]] bool hasOverlay() const { return overlay || saved.look.overlay.hasDrawing(); }
  /// Reads the picture of the overlay, if there is one to be read, into the look.
  Result<void> readOverlay(IconMaker& maker);
  /// The look with the label that a folder (or file) of that name gets.
  [[nodiscard]] Result<Look> lookFor(const std::function<Result<QString>()>& name) const;
};

/// The columns that a table of folders may have, besides `folder`.
std::vector<std::string> rowColumns();

/// Reads the look file, if one is named, and puts the options over it.
Result<Wish> readWish(const Arguments& arguments);

/// Puts a row's values over the wish; the failure names the column.
Result<void> applyRow(Wish& wish, const std::vector<std::pair<std::string, std::string>>& values);

}  // namespace quorvane::cli
