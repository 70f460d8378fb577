// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "app/Drawer.h"
#include "app/LayoutPieces.h"
#include "app/MainWindowLayout.h"
#include "composition/view/FolderView.h"
#include "composition/view/PreviewStrip.h"
#include "iconfamily/IconFamily.h"
#include "ui/LabelTextField.h"

namespace quorvane {

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("quorvane", text);
}

/// What file managers get: the very pictures that an apply would write.
Image writtenForms(const Image& composed) {
  Image image = composed;
  image.setScalesWhenResized(true);
  image.setSize({512, 512});
  const auto family = IconFamily::iconFamilyWithThumbnailsOfImage(image);
  return family ? family->imageWithAllReps().value_or(composed) : composed;
}

QWidget* makeOriginalIcon(Outlets& outlets) {
  auto* panel = new QWidget;
  // A gap that is mirrored with the rest; margins are not.
  auto* sides = new QHBoxLayout(panel);
  sides->setContentsMargins({});
  sides->setSpacing(0);
  sides->addSpacing(layoutGap);
  auto* layout = new QVBoxLayout;
  sides->addLayout(layout);
  layout->setSpacing(layoutGap / 2);
  outlets._origIconView = new ImageView;
  outlets._origIconView->setAccessibleName(tr("Original icon"));
  outlets._origIconView->setFixedSize(outlets._origIconView->minimumSizeHint());
  auto* hint = new QLabel(tr("Revert puts this icon back."));
  hint->setForegroundRole(QPalette::PlaceholderText);
  hint->setWordWrap(true);
  // A long word is wider, in large fonts.
  hint->setMaximumWidth(std::max(outlets._origIconView->width(), hint->minimumSizeHint().width()));
  layout->addWidget(makeCaption(tr("Original Icon")));
  layout->addWidget(outlets._origIconView);
  layout->addWidget(hint);
  layout->addStretch();
  return panel;
}

}  // namespace

QWidget* makeCanvasColumn(Outlets& outlets) {
  auto* column = new QWidget;
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins({});
  layout->setSpacing(layoutGap / 2);

  outlets._folderView = new FolderView;
  outlets._folderView->setMagnification(2);
  // The largest magnification would not fit a small screen: there its margins are cut off.
  outlets._folderView->setMinimumSize(outlets._folderView->minimumSizeHint());
  outlets._origIconDrawer = new Drawer(makeOriginalIcon(outlets));
  auto* canvas = new QHBoxLayout;
  canvas->setSpacing(0);
  canvas->addWidget(outlets._folderView, 1);
  canvas->addWidget(outlets._origIconDrawer);
  layout->addLayout(canvas, 1);

  outlets._labelTF = new LabelTextField;
  outlets._labelTF->setVisibleLines(2);
  outlets._labelTF->setAccessibleName(tr("Label"));
  outlets._labelTF->setPlaceholderText(tr("Type the label here"));
  layout->addSpacing(layoutGap / 2);
  layout->addWidget(makeCaption(tr("&Label"), outlets._labelTF));
  layout->addWidget(outlets._labelTF);

  outlets._previewStrip = new PreviewStrip(writtenForms);
  // The two grounds stand side by side at every width: one above the other they would push the canvas away.
  // Room for that is kept while they are hidden; a minimum of the column itself would hide what the drawer needs.
  layout->addItem(new QSpacerItem(outlets._previewStrip->minimumSizeHint().width(), 0));
  outlets._previewStrip->setFixedHeight(outlets._previewStrip->sizeHint().height());
  // Without a folder there is nothing to preview: then the canvas has its place.
  outlets._previewStrip->hide();
  layout->addSpacing(layoutGap / 2);
  layout->addWidget(outlets._previewStrip);
  return column;
}

}  // namespace quorvane
