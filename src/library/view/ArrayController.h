// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "library/view/ArrayControllerBase.h"

namespace quorvane {

/// The objects of a list and which of them are selected. They are read from a content elsewhere, and every change made
/// here is written back there. Objects are compared by sameObject(a, b), found by their type.
template <typename Object>
class ArrayController : public ArrayControllerBase {
 public:
  using ArrayControllerBase::ArrayControllerBase;
  using Objects = std::vector<Object>;

  /// Where the objects are from.
  struct Content {
    std::function<std::optional<Objects>()> read;  ///< nullopt: there is none now, and nothing can be added
    std::function<void(const Objects&)> write;     ///< may be null
  };

  /// Takes the content's objects, now and with each readContent().
  void bindContent(Content content) {
    _content = std::move(content);
    readContent();
  }
  /// To be called when the content has changed by itself. What was selected and is there still stays selected.
  void readContent() {
    std::optional<Objects> read = _content.read ? _content.read() : std::nullopt;
    const Objects former = selectedObjects();
    change(&ArrayControllerBase::willReset, &ArrayControllerBase::didReset, [&] {
      _hasContent = read.has_value();
      _objects = read ? std::move(*read) : Objects();
    });
    const IndexSet kept = indexesOf(former);
    const IndexSet before = _selection;
    if (kept.isEmpty()) _selection = {};
    _settleSelection(kept, before != kept || former.size() != static_cast<std::size_t>(kept.count()));
    Q_EMIT contentChanged();
  }

  [[nodiscard]] int count() const override { return static_cast<int>(_objects.size()); }
  [[nodiscard]] const Objects& arrangedObjects() const { return _objects; }
  [[nodiscard]] const Object& objectAt(int row) const { return _objects[static_cast<std::size_t>(row)]; }
  [[nodiscard]] Objects selectedObjects() const { return objectsAtIndexes(_selection); }
  /// Those of the rows that are there, in the rows' order.
  [[nodiscard]] Objects objectsAtIndexes(const IndexSet& indexes) const {
    Objects found;
    for (const int row : indexes.below(count())) found.push_back(objectAt(row));
    return found;
  }
  /// Where the objects are now.
  [[nodiscard]] IndexSet indexesOf(const Objects& wanted) const {
    IndexSet found;
    for (int row = 0; row < count(); ++row) {
      if (std::ranges::any_of(wanted, [&](const Object& each) { return sameObject(each, objectAt(row)); }))
        found.add(row);
    }
    return found;
  }

  void addObject(Object object) { insertObjectAtArrangedObjectIndex(std::move(object), count()); }
  /// The row is brought to between 0 and the end.
  void insertObjectAtArrangedObjectIndex(Object object, int row) {
    insertObjectsAtArrangedObjectIndex({std::move(object)}, row);
  }
  /// In their order from that row on. The first of them counts as inserted last: it is the one that is selected.
  void insertObjectsAtArrangedObjectIndex(const Objects& objects, int row) {
    if (objects.empty()) return;
    row = std::clamp(row, 0, count());
    const int added = static_cast<int>(objects.size());
    change(
        &ArrayControllerBase::rowsWillBeInserted, &ArrayControllerBase::rowsInserted,
        [&] { _objects.insert(_objects.begin() + row, objects.begin(), objects.end()); }, row, row + added - 1);
    IndexSet shifted;
    for (const int selected : _selection) shifted.add(selected < row ? selected : selected + added);
    const bool isOther = shifted != _selection;
    _selection = shifted;
    _settleSelection(_selectsInsertedObjects ? IndexSet::indexSetWithIndex(row) : shifted, isOther);
    writeBack();
  }
  virtual void removeObjectAtArrangedObjectIndex(int row) {
    if (row < 0 || row >= count()) return;
    removeRows(IndexSet::indexSetWithIndex(row));
    writeBack();
  }
  virtual void removeObjectsAtArrangedObjectIndexes(const IndexSet& indexes) {
    if (indexes.below(count()).isEmpty()) return;
    removeRows(indexes.below(count()));
    writeBack();
  }
  /// Moves the rows together before the row that is at `toIndex`, in the order that they have. They stay selected, or
  /// not, as they were.
  void moveObjectsInArrangedObjectsFromIndexes(const IndexSet& indexes, int toIndex) {
    const IndexSet rows = indexes.below(count());
    if (rows.isEmpty()) return;
    int insert = std::clamp(toIndex, 0, count());
    int shift = 0;
    const QList<int> ascending = rows.array();
    for (auto row = ascending.crbegin(); row != ascending.crend(); ++row) {
      int from = *row;
      if (from >= insert) {
        from += shift;
        ++shift;
      } else {
        --insert;
      }
      moveRow(from, insert);
    }
    writeBack();
  }

  /// Shows an object's row anew.
  void objectChanged(const Object& object) {
    for (const int row : indexesOf({object})) Q_EMIT rowChanged(row);
  }

 private:
  template <typename Announcement, typename End, typename What, typename... Rows>
  void change(Announcement announcement, End end, const What& what, Rows... rows) {
    ++_changing;
    Q_EMIT(this->*announcement)(rows...);
    what();
    Q_EMIT(this->*end)();
    --_changing;
  }

  void removeRows(const IndexSet& rows) {
    const QList<int> ascending = rows.array();
    for (auto row = ascending.crbegin(); row != ascending.crend(); ++row) {
      change(
          &ArrayControllerBase::rowsWillBeRemoved, &ArrayControllerBase::rowsRemoved,
          [&] { _objects.erase(_objects.begin() + *row); }, *row, *row);
    }
    IndexSet left;
    int removed = 0;
    bool isOther = false;
    for (const int selected : _selection) {
      while (removed < ascending.size() && ascending[removed] < selected) ++removed;
      if (removed < ascending.size() && ascending[removed] == selected)
        isOther = true;
      else
        left.add(selected - removed);
    }
    // Where nothing is to be selected no row may stay so by its number alone.
    if (!_avoidsEmptySelection) _selection = left;
    _settleSelection(left, isOther || left != _selection);
  }

  void moveRow(int from, int to) {
    if (from == to) return;
    const auto place = [&](int row) {
      if (row == from) return to;
      if (from < row && row <= to) return row - 1;
      return to <= row && row < from ? row + 1 : row;
    };
    change(
        &ArrayControllerBase::rowWillMove, &ArrayControllerBase::rowMoved,
        [&] {
          const auto begin = _objects.begin();
          if (from < to)
            std::rotate(begin + from, begin + from + 1, begin + to + 1);
          else
            std::rotate(begin + to, begin + from, begin + from + 1);
        },
        from, from < to ? to + 1 : to);
    IndexSet moved;
    for (const int row : _selection) moved.add(place(row));
    _settleSelection(moved);
  }

  void writeBack() {
    if (_content.write) _content.write(_objects);
    Q_EMIT contentChanged();
  }

  Content _content;
  Objects _objects;
};

}  // namespace quorvane
