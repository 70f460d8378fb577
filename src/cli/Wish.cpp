// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Wish.h"

#include "app/core/LabelPattern.h"
#include "app/core/LookValues.h"
#include "library/core/IconLibrary.h"

namespace quorvane::cli {

namespace {

constexpr const char* baseName = "base";
constexpr const char* labelName = "label";
constexpr const char* overlayName = "overlay";

/// A picture file, or an icon of the library where there is no such file.
Result<std::filesystem::path> basePicture(const std::string& text) {
  std::error_code error;
  if (std::filesystem::exists(std::filesystem::symlink_status(text, error))) return std::filesystem::path(text);
  return TRY(findLibraryIcon(text)).value_or(std::filesystem::path(text));
}

Result<void> setValue(Wish& wish, const std::string& name, const std::string& text, std::string_view prefix) {
  if (name == baseName) {
    if (!text.empty()) wish.base = BaseReference{.path = TRY(basePicture(text)), .within = {}};
    return {};
  }
  if (name == overlayName && isOverlayFile(text)) {
    wish.overlay = BaseReference{.path = text, .within = {}};
    return {};
  }
  if (name == overlayName && !text.empty()) wish.overlay.reset();
  TRY_VOID(setLookValue(wish.saved.look, name, text, prefix));
  if (name == labelName) wish.saved.labelPattern = text.empty() ? QString() : patternOf(wish.saved.look.label);
  return {};
}

}  // namespace

Result<Look> Wish::lookFor(const std::function<Result<QString>()>& name) const {
  Look look = saved.look;
  look.label = TRY(labelOf(saved.labelPattern, name));
  return look;
}

Result<void> Wish::readOverlay(IconMaker& maker) {
  if (!overlay) return {};
  saved.look.overlay.drawing = TRY(maker.overlay(*overlay));
  overlay.reset();
  return {};
}

std::vector<std::string> rowColumns() {
  std::vector<std::string> columns{baseName};
  for (const std::string_view name : lookValueNames()) columns.emplace_back(name);
  return columns;
}

Result<Wish> readWish(const Arguments& arguments) {
  Wish wish;
  if (arguments.lookFile) {
    ReadLook read = TRY(readLookFile(*arguments.lookFile));
    wish.saved = std::move(read.saved);
    wish.base = std::move(read.base);
  }
  for (const auto& [name, text] : arguments.lookOptions) TRY_VOID(setValue(wish, name, text, "--"));
  // Rows may bring an overlay of their own.
  for (const auto& [name, text] : arguments.lookOptions)
    if (name.starts_with("overlay-") && !wish.hasOverlay() && !arguments.rowsFrom)
      return Error::invalidInput("--" + name + " is for an overlay; choose one with --overlay");
  if (arguments.labelFromName) wish.saved.labelPattern = QStringLiteral("{name}");
  return wish;
}

Result<void> applyRow(Wish& wish, const std::vector<std::pair<std::string, std::string>>& values) {
  for (const auto& [name, text] : values) TRY_VOID(setValue(wish, name, text, ""));
  return {};
}

}  // namespace quorvane::cli
