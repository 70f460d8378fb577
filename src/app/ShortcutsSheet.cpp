// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ShortcutsSheet.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "app/LayoutPieces.h"
#include "app/MainMenu.h"
#include "ui/Tag.h"

namespace quorvane {

namespace {

/// Wants to show all of it, with a bar beside it when it is long; takes less where fonts are large.
class ShortcutList : public QScrollArea {
 public:
  [[nodiscard]] QSize sizeHint() const override {
    const QSize wanted = widget() ? widget()->sizeHint() : QSize();
    return {wanted.width() + 12 + 2 * frameWidth(), std::min(wanted.height() + 2 * frameWidth(), 480)};
  }
};

}  // namespace

ShortcutsSheet::ShortcutsSheet(const MainMenu& menu) {
  setWindowTitle(tr("Keyboard Shortcuts"));
  std::vector<MainMenu::ShortcutGroup> groups = menu.shortcuts();
  groups.push_back(
      {tr("Canvas"),
       {{tr("Move the label by 1"), tr("Arrow keys")},
        {tr("Move the label by 10"), tr("Shift+Arrow keys")},
        {tr("Centre the label"), QKeySequence(Qt::Key_Home).toString(QKeySequence::NativeText)},
        {tr("Put the label back while it is dragged"), QKeySequence(Qt::Key_Escape).toString(QKeySequence::NativeText)},
        {tr("Move the overlay instead, or the label again"),
         QKeySequence(Qt::Key_Space).toString(QKeySequence::NativeText)}}});

  groups.push_back(
      {tr("Window"), {{tr("Open the menus"), QKeySequence(Qt::Key_F10).toString(QKeySequence::NativeText)}}});

  // Two columns of groups, each a name and its keys.
  auto* list = new QWidget;
  auto* columns = new QHBoxLayout(list);
  columns->setContentsMargins(4, 2, 4, 2);
  columns->setSpacing(40);
  std::size_t rowCount = 0;
  for (const auto& group : groups) rowCount += group.shortcuts.size() + 2;
  QGridLayout* grid = nullptr;
  int row = 0;
  std::size_t done = 0;
  for (const auto& group : groups) {
    // The second column begins where most of the group would lie below the middle.
    if (!grid || (columns->count() == 1 && 2 * done + group.shortcuts.size() + 2 > rowCount)) {
      if (grid) grid->setRowStretch(row, 1);
      grid = new QGridLayout;
      grid->setHorizontalSpacing(24);
      grid->setVerticalSpacing(5);
      columns->addLayout(grid);
      row = 0;
    }
    if (row > 0) grid->setRowMinimumHeight(row++, 8);
    grid->addWidget(makeCaption(group.menu), row++, 0, 1, 2);
    for (const MainMenu::Shortcut& shortcut : group.shortcuts) {
      auto* name = new QLabel(shortcut.name);
      auto* keys = new QLabel(shortcut.keys);
      for (QLabel* label : {name, keys}) label->setTextFormat(Qt::PlainText);
      keys->setForegroundRole(QPalette::PlaceholderText);
      grid->addWidget(name, row, 0);
      grid->addWidget(keys, row++, 1, Qt::AlignTrailing);
    }
    done += group.shortcuts.size() + 2;
  }
  if (grid) grid->setRowStretch(row, 1);

  auto* scroll = new ShortcutList;
  scroll->setWidget(list);
  scroll->setWidgetResizable(true);
  // Scrolled by keys: the theme shows where they go.
  scroll->setProperty("ringed", true);
  scroll->viewport()->setAutoFillBackground(false);
  list->setAutoFillBackground(false);
  scroll->setAccessibleName(windowTitle());

  auto* close = new QPushButton(tr("Close"));
  close->setDefault(true);
  // Escape presses it as well.
  setTag(*close, 0);
  // A sheet ends by the buttons among its own children.
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 20, 24, 20);
  layout->setSpacing(layoutGap);
  layout->addWidget(makeTitle(windowTitle()));
  layout->addWidget(scroll, 1);
  layout->addLayout(buttons);
}

}  // namespace quorvane
