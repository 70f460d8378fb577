// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainWindowLayout.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/BaseColumn.h"
#include "app/BusyIndicator.h"
#include "app/LayoutPieces.h"
#include "app/MainMenu.h"
#include "app/NoticeLabel.h"
#include "app/OverlayGroup.h"
#include "app/QVWindow.h"
#include "app/TintBar.h"
#include "composition/view/FolderView.h"
#include "library/view/LibraryTableView.h"
#include "library/view/LibraryView.h"
#include "ui/ActionIcons.h"
#include "ui/ElidedLabel.h"
#include "ui/HVColorWell.h"
#include "ui/LabelTextField.h"
#include "ui/PopUpButton.h"
#include "ui/SharedPanels.h"
#include "ui/Slider.h"

namespace quorvane {

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("quorvane", text);
}

/// Tab goes as one reads: the canvas before what changes it, the buttons that end the work last.
void setTabOrder(const Outlets& outlets) {
  QList<QWidget*> order{outlets._openBtn};
  order += outlets._baseColumn->tabOrder();
  order += QList<QWidget*>{outlets._folderView,     outlets._labelTF,           outlets._fontBtn,
                           outlets._fontSizeSlider, outlets._lineSpacingSlider, outlets._colorWell,
                           outlets._effectPopUp,    outlets._shearSlider,       outlets._rotationSlider,
                           outlets._opacitySlider,  outlets._resetBtn,          outlets._overlayGroup->chooseButton(),
                           outlets._revertBtn,      outlets._applyBtn};
  for (qsizetype i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace

QWidget* makeHeader(Outlets& outlets) {
  auto* header = new QWidget;
  const auto makeRow = [](QWidget* row) {
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    layout->setSpacing(10);
    return layout;
  };
  QHBoxLayout* layout = makeRow(header);
  auto* folder = new QWidget;
  auto* buttons = new QWidget;
  outlets._pathTF = new ElidedLabel;
  outlets._pathTF->setAccessibleName(tr("Path of the folder"));
  outlets._noticeLabel = new NoticeLabel;
  outlets._noticeLabel->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
  outlets._busyIndicator = new BusyIndicator;
  outlets._revertBtn = new QPushButton(tr("Re&vert"));
  outlets._revertBtn->setToolTip(tr("Put the icon from before the first Apply back"));
  outlets._applyBtn = new QPushButton(tr("&Apply"));
  outlets._applyBtn->setToolTip(tr("Give the folder this icon"));
  outlets._applyBtn->setDefault(true);
  outlets._openBtn = new QPushButton(actionIcon(QStringLiteral("open")), tr("Ope&n…"));
  outlets._openBtn->setToolTip(tr("Choose the folder to give an icon to"));
  QHBoxLayout* left = makeRow(folder);
  left->addWidget(outlets._openBtn);
  left->addWidget(outlets._pathTF, 3);
  left->addWidget(outlets._noticeLabel, 2);
  QHBoxLayout* right = makeRow(buttons);
  right->addWidget(outlets._revertBtn);
  right->addWidget(outlets._applyBtn);
  layout->addWidget(folder, 1);
  layout->addWidget(outlets._busyIndicator);
  layout->addSpacing(6);
  layout->addWidget(buttons);
  outlets._content = {folder, buttons};
  return header;
}

Outlets layOutMainWindow(QVWindow& window, SharedPanels& panels, BaseIconController& library) {
  Outlets outlets;
  outlets._baseIconController = &library;
  outlets._mainWindow = &window;
  window.setTitle(QCoreApplication::applicationName());
  outlets._mainMenu = new MainMenu(window);

  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(windowMargin, 4, windowMargin, windowMargin);
  rows->setSpacing(layoutGap);
  rows->addWidget(makeHeader(outlets));
  auto* columns = new QHBoxLayout;
  columns->setSpacing(windowMargin);
  outlets._baseColumn = new BaseColumn(library);
  // As wide as large fonts need it.
  outlets._baseColumn->setFixedWidth(std::max({baseColumnWidth, outlets._baseColumn->minimumSizeHint().width(),
                                               window.fontMetrics().averageCharWidth() * baseColumnCharacters}));
  outlets._baseTableView = outlets._baseColumn->library()->builtinTableView();
  outlets._customTableView = outlets._baseColumn->library()->customTableView();
  outlets._tintBar = new TintBar(&panels.colorPanel());
  outlets._baseColumn->tintSlot()->layout()->addWidget(outlets._tintBar);
  QWidget* canvasColumn = makeCanvasColumn(outlets);
  QWidget* inspector = makeInspector(outlets, panels);
  columns->addWidget(outlets._baseColumn);
  columns->addWidget(canvasColumn, 1);
  columns->addWidget(inspector);
  outlets._content += QList<QWidget*>{outlets._baseColumn, canvasColumn, inspector};
  rows->addLayout(columns, 1);
  window.setCentralWidget(content);
  setTabOrder(outlets);
  window.setInitialFirstResponder(outlets._folderView);
  window.resize(1180, 720);
  return outlets;
}

}  // namespace quorvane
