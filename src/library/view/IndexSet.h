// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <vector>

namespace quorvane {

/// Rows of a list: each once, in ascending order, none below 0.
class IndexSet {
 public:
  using const_iterator = std::vector<int>::const_iterator;

  IndexSet() = default;
  /// A set holding each element; an empty array gives an empty set. What is no row is left out.
  static IndexSet indexSetWithArray(const QList<int>& array) { return IndexSet(array); }
  static IndexSet indexSetWithIndex(int index) { return IndexSet(QList<int>{index}); }
  /// `count` rows from `first`.
  static IndexSet indexSetWithRange(int first, int count);

  /// The indexes, ascending.
  [[nodiscard]] QList<int> array() const;

  [[nodiscard]] bool isEmpty() const { return _indexes.empty(); }
  [[nodiscard]] int count() const { return static_cast<int>(_indexes.size()); }
  [[nodiscard]] bool contains(int index) const;
  /// -1 when the set is empty.
  [[nodiscard]] int firstIndex() const { return isEmpty() ? -1 : _indexes.front(); }
  [[nodiscard]] int lastIndex() const { return isEmpty() ? -1 : _indexes.back(); }
  void add(int index);
  /// Those below `end`.
  [[nodiscard]] IndexSet below(int end) const;

  [[nodiscard]] const_iterator begin() const { return _indexes.begin(); }
  [[nodiscard]] const_iterator end() const { return _indexes.end(); }
  bool operator==(const IndexSet&) const = default;

 private:
  explicit IndexSet(const QList<int>& array) { initWithArray(array); }
  void initWithArray(const QList<int>& array);

  std::vector<int> _indexes;
};

}  // namespace quorvane
