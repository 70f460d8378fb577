// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/ArrayController.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

#include "library/view/ArrayModel.h"
#include "library/view/LibraryTableView.h"

namespace quorvane::test {
namespace {

struct Letter {
  char letter;
};

bool sameObject(Letter a, Letter b) {
  return a.letter == b.letter;
}

std::vector<Letter> lettersOf(const std::string& text) {
  std::vector<Letter> letters;
  for (const char letter : text) letters.push_back({letter});
  return letters;
}

std::string textOf(const std::vector<Letter>& letters) {
  std::string text;
  for (const Letter each : letters) text += each.letter;
  return text;
}

/// Letters in a list that is shown by a table.
struct Letters {
  explicit Letters(const std::string& letters) : content(lettersOf(letters)) {
    controller.bindContent({.read = [this] { return std::optional(content); },
                            .write = [this](const std::vector<Letter>& changed) { content = changed; }});
    table.bindController(controller, model);
  }
  std::string arranged() { return textOf(controller.arrangedObjects()); }
  std::string selected() {
    QList<int> rows;
    for (const QModelIndex& index : table.selectionModel()->selectedRows()) rows << index.row();
    EXPECT_EQ(IndexSet::indexSetWithArray(rows), controller.selectionIndexes()) << "table and controller differ";
    return textOf(controller.selectedObjects());
  }

  std::vector<Letter> content;
  ArrayController<Letter> controller;
  ArrayModel model{controller, {.value = [this](int row, int role) {
                     return role == Qt::DisplayRole ? QVariant(QChar::fromLatin1(controller.objectAt(row).letter))
                                                    : QVariant();
                   }}};
  QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
  LibraryTableView table;
};

TEST(IndexSetTest, HoldsEachRowOnceInOrder) {
  EXPECT_TRUE(IndexSet::indexSetWithArray({}).isEmpty());
  const IndexSet set = IndexSet::indexSetWithArray({5, 1, -3, 5, 0});
  EXPECT_EQ(set.array(), (QList<int>{0, 1, 5}));
  EXPECT_TRUE(set.contains(5) && !set.contains(4));
  EXPECT_EQ(set.below(5).array(), (QList<int>{0, 1}));
}

TEST(ArrayControllerTest, MovesRowsTogetherAndTheSelectionWithThem) {
  const struct {
    QList<int> rows;
    int to;
    const char* arranged;
  } moves[] = {{{0, 2}, 4, "BDACE"}, {{3, 4}, 1, "ADEBC"}, {{}, 2, "ABCDE"},      {{1}, 1, "ABCDE"},
               {{1}, 2, "ABCDE"},    {{0, 4}, 2, "BAECD"}, {{0, 1}, 99, "CDEAB"}, {{2, 9}, 0, "CABDE"}};
  for (const auto& move : moves) {
    Letters letters("ABCDE");
    letters.controller.setSelectionIndexes(IndexSet::indexSetWithArray({0, 3}));
    letters.controller.moveObjectsInArrangedObjectsFromIndexes(IndexSet::indexSetWithArray(move.rows), move.to);
    EXPECT_EQ(letters.arranged(), move.arranged);
    EXPECT_EQ(textOf(letters.content), move.arranged) << "written back";
    const std::string selected = letters.selected();
    EXPECT_TRUE(selected == "AD" || selected == "DA") << selected;
  }
}

TEST(ArrayControllerTest, KeepsTheSelectionInStepBothWays) {
  Letters letters("ABC");
  EXPECT_EQ(letters.selected(), "");
  letters.table.selectRow(1);
  EXPECT_EQ(letters.selected(), "B");
  letters.controller.insertObjectAtArrangedObjectIndex({'X'}, 0);
  EXPECT_EQ(letters.arranged() + letters.selected(), "XABCX") << "a new one is selected";
  letters.controller.setSelectionIndexes(IndexSet::indexSetWithArray({1, 2, 7}));
  EXPECT_EQ(letters.selected(), "AB");
  letters.controller.removeObjectAtArrangedObjectIndex(0);
  EXPECT_EQ(letters.arranged() + letters.selected(), "ABCAB");
  letters.controller.removeObjectsAtArrangedObjectIndexes(IndexSet::indexSetWithArray({0, 2}));
  EXPECT_EQ(letters.arranged() + letters.selected(), "BB");
  letters.content = lettersOf("QBR");
  letters.controller.readContent();
  EXPECT_EQ(letters.arranged() + letters.selected(), "QBRB") << "found again";
  letters.controller.setAvoidsEmptySelection(true);
  letters.table.clearSelection();
  EXPECT_EQ(letters.selected(), "B") << "one stays selected";
  letters.controller.removeObjectAtArrangedObjectIndex(1);
  EXPECT_EQ(letters.selected().size(), 1U);
}

}  // namespace
}  // namespace quorvane::test
