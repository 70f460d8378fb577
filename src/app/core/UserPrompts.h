// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quorvane {

/// What the user is told, and what they may answer.
struct Prompt {
  enum class Kind {
    Message,   ///< to be read and put away; its one button is the window's own
    Question,  ///< to be answered by one of its buttons
  };
  Kind kind = Kind::Message;
  QString title;
  QString message;
  QString defaultButton;  ///< of the buttons those with an empty title are left out
  QString alternateButton;
  QString otherButton;
  QString details;  ///< for those who want to know more: shown on demand, to be selected and copied; empty: none
  bool operator==(const Prompt&) const = default;
};

/// How the program talks to the user in straight-line code: a call returns when it is answered. The window shows
/// sheets; tests answer from a script (ScriptedPrompts.h). To be used on the main thread.
class UserPrompts {
 public:
  /// What a prompt returns.
  static constexpr int defaultReturn = 1;
  static constexpr int alternateReturn = 0;
  static constexpr int otherReturn = -1;

  virtual ~UserPrompts() = default;

  /// Dropped when something is being shown already.
  void runMessageSheetWithTitle(const QString& title, const QString& message, const QString& details = {});
  /// The code of the button that was pressed; otherReturn at once when something is being shown already.
  int runPromptSheetWithTitle(const QString& title, const QString& message, const QString& defaultButton,
                              const QString& alternateButton = {}, const QString& otherButton = {},
                              const QString& details = {});

  /// Whether a sheet is up, of whatever kind: nothing that can wait should be shown then.
  [[nodiscard]] virtual bool hasSheet() const = 0;

 private:
  /// Shows it and waits for the answer; of a message the answer does not matter.
  virtual int run(const Prompt& prompt) = 0;
};

}  // namespace quorvane
