// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "app/core/EditedValues.h"

namespace quorvane {

/// Undo and redo over the edited values of one composition, by whatever way they were changed: note() compares them
/// with what they were. What follows upon each other fast is one step (typing, arrow keys), and so is all between
/// beginStep() and endStep() (a slider that is held, a label that is dragged). Belongs to one thread.
class EditHistory {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;
  using Listener = std::function<void()>;

  /// Edits of one kind are one step while the pause between them is no longer than this.
  static constexpr std::chrono::milliseconds burstPause{1000};
  /// The oldest steps go when there are more. A step is a few hundred bytes and its label; pictures are shared.
  static constexpr std::size_t depth = 200;

  /// The composition must outlive it. Tests bring a clock of their own.
  explicit EditHistory(IconComposition& composition, Clock clock = std::chrono::steady_clock::now);

  /// To be called after each change of the composition; when nothing is different, nothing happens.
  void note();

  /// All edits from here to endStep() are one step, of the given kind or of what they turn out to be. Pairs may be
  /// nested; the outermost counts.
  void beginStep(std::optional<EditKind> kind = {});
  void endStep();

  /// Forgets all steps; the values as they are now are the new beginning. For another folder.
  void clear();

  [[nodiscard]] bool canUndo() const { return !_undoable.empty(); }
  [[nodiscard]] bool canRedo() const { return !_redoable.empty(); }
  /// False when there is nothing to take back, and within a step.
  bool undo();
  bool redo();

  /// For the menu: "Undo Move Label"; "Undo" when there is nothing to undo. Translated.
  [[nodiscard]] QString undoText() const;
  [[nodiscard]] QString redoText() const;

  /// Told after whatever may change what can be undone or redone, and the texts.
  void setListener(Listener listener) { _listener = std::move(listener); }

 private:
  struct Step {
    EditedValues before;
    EditedValues after;
    EditKind kind;
    std::chrono::steady_clock::time_point at;
  };

  [[nodiscard]] bool isContinued(EditKind kind, std::chrono::steady_clock::time_point now) const;
  void add(const EditedValues& values, EditKind kind);
  void show(const EditedValues& values);
  void tell() const;

  IconComposition& _composition;
  Clock _clock;
  Listener _listener;
  EditedValues _present;
  std::deque<Step> _undoable;
  std::vector<Step> _redoable;
  bool _isClosed = true;  ///< the next edit begins a step
  bool _isRestoring = false;
  int _openSteps = 0;
  bool _hasOpenStep = false;  ///< an edit was made since beginStep()
  std::optional<EditKind> _openKind;
};

}  // namespace quorvane
