// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "library/core/IconRecord.h"
#include "library/core/IconSet.h"
#include "library/view/ArrayController.h"

namespace quorvane {

class IconAdder;
class IconSetArrayController;
class LibraryUndo;
struct LibraryPrompts;

inline bool sameObject(const IconRecord& a, const IconRecord& b) {
  return a.path == b.path;
}

/// The icons of the set that is selected alone; of several, or of none, there are none. What is changed here is the
/// set's.
class IconArrayController : public ArrayController<IconRecord> {
  Q_OBJECT
 public:
  /// For the built-in sets, which are only looked at: the rest is null.
  explicit IconArrayController(IconSetArrayController& iconSetArrayController, LibraryUndo* undo = nullptr,
                               const LibraryPrompts* prompts = nullptr, IconAdder* adder = nullptr);
  ~IconArrayController() override;

  /// The set whose icons these are; null when there is none.
  [[nodiscard]] std::shared_ptr<IconSet> iconSet() const;

  /// What the list calls an icon: shownIconName(), a built-in one in the user's language.
  [[nodiscard]] QString shownName(const IconRecord& icon) const;

  /// Asks for a file or folder and adds its icon to the first selected set.
  void add();
  /// Asks, then removes the selected icons and their files.
  void remove();
  /// Removes the rows and their files.
  void removeObjectsAtArrangedObjectIndexes(const IndexSet& indexes) override;
  void _removeFilesAtPaths(const std::vector<std::filesystem::path>& paths);

  /// Makes icons of the files and puts them into the set: each before the row, so that the last one comes first; with
  /// a row below 0 at the end, in their order. `temporary` is removed when they have been read.
  void addFiles(const std::vector<std::filesystem::path>& files, const std::shared_ptr<IconSet>& set, int row,
                const std::filesystem::path& temporary = {});
  /// Moves rows, to be taken back.
  void reorder(const IndexSet& indexes, int toIndex);

 Q_SIGNALS:
  /// Something went wrong; a sentence.
  void failed(const QString& reason);

 private:
  void _bind();
  void _insert(std::vector<IconRecord> records, const std::shared_ptr<IconSet>& set, int row);
  void _watch();

  IconSetArrayController& _iconSetArrayController;
  LibraryUndo* _undo;
  const LibraryPrompts* _prompts;
  IconAdder* _adder;
  std::shared_ptr<IconSet> _watched;
  int _listener = 0;
  bool _isWriting = false;
};

}  // namespace quorvane
