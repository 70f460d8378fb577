// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/ArrayControllerBase.h"

#include <algorithm>

namespace quorvane {

void ArrayControllerBase::_settleSelection(IndexSet indexes, bool isOther) {
  indexes = indexes.below(count());
  if (indexes.isEmpty() && _avoidsEmptySelection && count() > 0) {
    indexes = _selection.below(count());
    if (indexes.isEmpty()) indexes = IndexSet::indexSetWithIndex(std::clamp(_selection.firstIndex(), 0, count() - 1));
  }
  if (indexes == _selection && !isOther) return;
  _selection = std::move(indexes);
  Q_EMIT selectionChanged();
}

void ArrayControllerBase::setSelectionIndexes(const IndexSet& indexes) {
  _settleSelection(indexes);
}

void ArrayControllerBase::setAvoidsEmptySelection(bool avoids) {
  _avoidsEmptySelection = avoids;
  _settleSelection(_selection);
}

}  // namespace quorvane
