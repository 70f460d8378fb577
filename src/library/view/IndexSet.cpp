// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/IndexSet.h"

#include <algorithm>
#include <numeric>

namespace quorvane {

void IndexSet::initWithArray(const QList<int>& array) {
  _indexes.assign(array.begin(), array.end());
  std::erase_if(_indexes, [](int index) { return index < 0; });
  std::ranges::sort(_indexes);
  _indexes.erase(std::unique(_indexes.begin(), _indexes.end()), _indexes.end());
}

IndexSet IndexSet::indexSetWithRange(int first, int count) {
  IndexSet made;
  made._indexes.resize(static_cast<std::size_t>(std::max(0, count)));
  std::iota(made._indexes.begin(), made._indexes.end(), first);
  return made;
}

QList<int> IndexSet::array() const {
  return {_indexes.begin(), _indexes.end()};
}

bool IndexSet::contains(int index) const {
  return std::ranges::binary_search(_indexes, index);
}

void IndexSet::add(int index) {
  const auto place = std::ranges::lower_bound(_indexes, index);
  if (index >= 0 && (place == _indexes.end() || *place != index)) _indexes.insert(place, index);
}

IndexSet IndexSet::below(int end) const {
  IndexSet made;
  made._indexes.assign(_indexes.begin(), std::ranges::lower_bound(_indexes, end));
  return made;
}

}  // namespace quorvane
