// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "foundation/base/Result.h"
#include "library/core/IconLibrary.h"
#include "library/core/IconSet.h"

namespace quorvane {

/// What a step of the history did, for its words in a menu.
enum class LibraryAction { RemoveIcons, AddIcons, MoveIcons, ReorderIcons, RenameSet, RemoveSet, AddSet };

/// Changes of the user's library that can be taken back while the program runs. The operations carry the change out and
/// remember it; the note...() ones remember what was done already. Main thread; steps keep their sets alive.
///
/// A step that moves icons between sets consists of several operations between begin() and end().
class LibraryUndo {
 public:
  explicit LibraryUndo(const IconLibrary& library) : _library(library) {}

  /// Collects what follows into one step, until end(). They do not nest.
  void begin(LibraryAction action);
  void end();

  /// Removes the files of icons of a set; with `alsoFromList` they leave icons() as well. Fails with the first reason;
  /// the other files are removed all the same.
  Result<void> removeIcons(const std::shared_ptr<IconSet>& set, const std::vector<std::string>& names,
                           bool alsoFromList = true);
  /// Renames a set, IconSet::setName().
  Result<void> renameSet(const std::shared_ptr<IconSet>& set, const std::string& name);
  /// Removes an empty set, IconLibrary::removeSet().
  Result<void> removeSet(const std::shared_ptr<IconSet>& set);
  /// Puts icons of a set into another order.
  Result<void> setOrder(const std::shared_ptr<IconSet>& set, IconSet::Icons icons);
  /// Icons were added to a set under these names; taking it back removes them.
  void noteAdded(const std::shared_ptr<IconSet>& set, const std::vector<std::string>& names);
  /// The icons of a set are about to stand in another order than `before`.
  void noteOrder(const std::shared_ptr<IconSet>& set, const IconSet::Icons& before);
  /// A set was made.
  void noteAddedSet(const std::shared_ptr<IconSet>& set);

  [[nodiscard]] bool canUndo() const { return !_steps.empty(); }
  /// Only when canUndo().
  [[nodiscard]] LibraryAction nextAction() const { return _steps.back().action; }
  /// Takes the last step back. What of it cannot be taken back is told; the step is gone either way. The lists of sets
  /// must be read again after RemoveSet and AddSet.
  Result<void> undo();
  void clear() { _steps.clear(); }

  /// Called whenever canUndo() or nextAction() may have changed.
  std::function<void()> changed;

 private:
  using Reversal = std::function<Result<void>()>;
  struct Step {
    LibraryAction action;
    std::vector<Reversal> reversals;
  };
  void _remember(LibraryAction action, Reversal reversal);

  const IconLibrary& _library;
  std::vector<Step> _steps;
  bool _isOpen = false;
};

}  // namespace quorvane
