// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SheetPrompts.h"

#include "ui/HVWindow.h"

namespace quorvane {

bool SheetPrompts::hasSheet() const {
  return _window.isSheetUp();
}

int SheetPrompts::run(const Prompt& prompt) {
  if (prompt.kind == Prompt::Kind::Message) {
    _window.runMessageSheetWithTitle(prompt.title, prompt.message, prompt.details);
    return defaultReturn;
  }
  const auto button = [](const QString& title) { return title.isEmpty() ? std::nullopt : std::optional(title); };
  return _window.runPromptSheetWithTitle(prompt.title, prompt.message, button(prompt.defaultButton),
                                         button(prompt.alternateButton), button(prompt.otherButton), prompt.details);
}

}  // namespace quorvane
