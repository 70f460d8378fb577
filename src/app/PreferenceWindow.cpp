// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/PreferenceWindow.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/LayoutPieces.h"
#include "ui/ElidedLabel.h"
#include "ui/HVColorWell.h"
#include "ui/Tag.h"

namespace quorvane {

namespace {

constexpr int contentWidth = 460;

QString tr(const char* text) {
  return QCoreApplication::translate("quorvane", text);
}

/// A card with its caption; what is put into the layout comes below.
QFrame* makeGroup(QVBoxLayout*& rows, const QString& caption) {
  QFrame* card = makeCard();
  rows = new QVBoxLayout(card);
  rows->setContentsMargins(cardPadding, cardPadding, cardPadding, cardPadding);
  rows->setSpacing(layoutGap);
  rows->addWidget(makeCaption(caption));
  return card;
}

/// Small words below what they are about.
QLabel* makeRemark(const QString& text) {
  auto* remark = new QLabel(text);
  remark->setTextFormat(Qt::PlainText);
  remark->setWordWrap(true);
  remark->setForegroundRole(QPalette::PlaceholderText);
  return remark;
}

/// Two choices: the default, with what shows and changes it beside, or what was used last.
QButtonGroup* addChoice(QGridLayout& grid, const QString& title, const QString& always, const QString& last,
                        QWidget* beside) {
  const int row = grid.rowCount();
  auto* group = new QButtonGroup(grid.parentWidget());
  auto* alwaysBtn = new QRadioButton(always);
  auto* lastBtn = new QRadioButton(last);
  // By themselves, the two would say of what only to those who see where they are.
  alwaysBtn->setAccessibleDescription(title);
  lastBtn->setAccessibleDescription(title);
  group->addButton(alwaysBtn, 1);
  group->addButton(lastBtn, 0);
  grid.addWidget(alwaysBtn, row, 0, Qt::AlignVCenter);
  grid.addWidget(beside, row, 1);
  grid.addWidget(lastBtn, row + 1, 0, 1, 2);
  return group;
}

QWidget* makeLabelGroup(PreferenceOutlets& outlets) {
  QVBoxLayout* rows = nullptr;
  QFrame* card = makeGroup(rows, tr("Label"));
  rows->addWidget(makeRemark(tr("What the label looks like when Quorvane starts.")));
  auto* choices = new QWidget;
  auto* grid = new QGridLayout(choices);
  grid->setContentsMargins({});
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(8);
  grid->setColumnStretch(1, 1);

  outlets._colorWell = new HVColorWell(nullptr);
  outlets._colorWell->setAccessibleName(tr("Default colour"));
  outlets._colorWell->setFixedWidth(76);
  auto* color = new QWidget;
  auto* colorRow = new QHBoxLayout(color);
  colorRow->setContentsMargins({});
  colorRow->addWidget(outlets._colorWell);
  colorRow->addStretch();
  outlets._defaultColorRadio =
      addChoice(*grid, tr("Colour"), tr("Always this &colour"), tr("The colour used &last"), color);
  grid->setRowMinimumHeight(grid->rowCount(), 10);

  outlets._fontDescriptionTF = new ElidedLabel;
  outlets._fontDescriptionTF->setElideMode(Qt::ElideRight);
  outlets._fontBtn = new QPushButton(tr("C&hange…"));
  outlets._fontBtn->setAccessibleName(tr("Change the default font"));
  auto* font = new QWidget;
  auto* fontRow = new QHBoxLayout(font);
  fontRow->setContentsMargins({});
  fontRow->setSpacing(10);
  fontRow->addWidget(outlets._fontDescriptionTF, 1);
  fontRow->addWidget(outlets._fontBtn);
  outlets._defaultFontRadio = addChoice(*grid, tr("Font"), tr("Always this &font"), tr("The font used la&st"), font);
  rows->addWidget(choices);
  return card;
}

QWidget* makeUpdateGroup(PreferenceOutlets& outlets) {
  QVBoxLayout* rows = nullptr;
  QFrame* card = makeGroup(rows, tr("New Versions"));
  outlets._checkAtStartup = new QCheckBox(tr("Look for one when Quorvane s&tarts"));
  outlets._checkBtn = new QPushButton(tr("Look &Now"));
  outlets._checkBtn->setToolTip(tr("Keep these preferences and look for a new version"));
  auto* row = new QHBoxLayout;
  row->addWidget(outlets._checkAtStartup, 1);
  row->addWidget(outlets._checkBtn);
  rows->addLayout(row);
  rows->addWidget(makeRemark(tr("Quorvane uses the network for this only, and installs nothing by itself.")));
  return card;
}

QWidget* makePromptGroup(PreferenceOutlets& outlets) {
  QVBoxLayout* rows = nullptr;
  QFrame* card = makeGroup(rows, tr("Questions"));
  outlets._askToShare = new QCheckBox(tr("Ask me now and then to tell &others about Quorvane"));
  rows->addWidget(outlets._askToShare);
  return card;
}

/// A sheet round a box, with the one button that ends it.
QWidget* makePanelSheet(const QString& title, QWidget*& box, QPushButton*& done) {
  auto* sheet = new QWidget;
  sheet->setWindowTitle(title);
  box = new QWidget;
  auto* inside = new QVBoxLayout(box);
  inside->setContentsMargins({});
  done = new QPushButton(tr("&Done"));
  done->setDefault(true);
  // Escape presses it as well.
  setTag(*done, 0);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(done);
  auto* rows = new QVBoxLayout(sheet);
  rows->setContentsMargins(16, 16, 16, 16);
  rows->setSpacing(layoutGap);
  rows->addWidget(makeTitle(title));
  rows->addWidget(box, 1);
  rows->addLayout(buttons);
  return sheet;
}

}  // namespace

PreferenceOutlets layOutPreferenceWindow(SideWindow& window, bool hasUpdater) {
  PreferenceOutlets outlets;
  window.setTitle(tr("Preferences"));
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins({});
  rows->setSpacing(layoutGap);
  rows->addWidget(makeLabelGroup(outlets));
  if (hasUpdater) rows->addWidget(makeUpdateGroup(outlets));
  rows->addWidget(makePromptGroup(outlets));
  rows->addStretch();

  outlets._cancelBtn = new QPushButton(tr("Cancel"));
  outlets._okBtn = new QPushButton(tr("OK"));
  outlets._okBtn->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(10);
  buttons->addStretch();
  for (QPushButton* button : {outlets._cancelBtn, outlets._okBtn}) {
    button->setMinimumWidth(92);
    buttons->addWidget(button);
  }
  // The Return key presses the button that has the focus, as in a dialog.
  content->setMinimumWidth(contentWidth);
  window.setContent(content, buttons);
  for (QPushButton* button : window.findChildren<QPushButton*>()) button->setAutoDefault(true);
  window.setInitialFirstResponder(outlets._defaultColorRadio->button(1));
  outlets._colorSheet = makePanelSheet(tr("Default Colour"), outlets._colorBox, outlets._colorDoneBtn);
  outlets._fontSheet = makePanelSheet(tr("Default Font"), outlets._fontBox, outlets._fontDoneBtn);
  return outlets;
}

}  // namespace quorvane
