// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/UserPrompts.h"

namespace quorvane {

void UserPrompts::runMessageSheetWithTitle(const QString& title, const QString& message, const QString& details) {
  Prompt prompt;
  prompt.title = title;
  prompt.message = message;
  prompt.details = details;
  run(prompt);
}

int UserPrompts::runPromptSheetWithTitle(const QString& title, const QString& message, const QString& defaultButton,
                                         const QString& alternateButton, const QString& otherButton,
                                         const QString& details) {
  return run({.kind = Prompt::Kind::Question,
              .title = title,
              .message = message,
              .defaultButton = defaultButton,
              .alternateButton = alternateButton,
              .otherButton = otherButton,
              .details = details});
}

}  // namespace quorvane
