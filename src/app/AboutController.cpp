// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AboutController.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "app/LayoutPieces.h"
#include "foundation/plist/PropertyList.h"
#include "imaging/ImagingLibraries.h"
#include "library/core/ZipFile.h"
#include "system/SystemLibraries.h"
#include "ui/Tag.h"
#include "ui/WindowResources.h"

namespace quorvane {

namespace {

constexpr int contentWidth = 500;
constexpr int iconSide = 96;
constexpr double listRows = 8.5;  ///< so that it is seen to go on
constexpr QSize licenceRoom(520, 360);

QLabel* makeText(const QString& text) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

QLayout* makeHead() {
  auto* icon = new QLabel;
  // Drawn for the screens of all densities.
  icon->setPixmap(QGuiApplication::windowIcon().pixmap(QSize(iconSide, iconSide), icon->devicePixelRatioF()));
  icon->setFixedSize(iconSide, iconSide);
  icon->setAccessibleName(AboutController::tr("The program's icon"));
  auto* name = new QLabel(QCoreApplication::applicationName());
  QFont large = name->font();
  large.setPointSizeF(large.pointSizeF() * 1.9);
  large.setWeight(QFont::DemiBold);
  name->setFont(large);
  auto* version = makeText(AboutController::tr("Version %1").arg(QCoreApplication::applicationVersion()));
  version->setForegroundRole(QPalette::PlaceholderText);
  auto* words = new QVBoxLayout;
  words->setSpacing(4);
  words->addStretch();
  words->addWidget(name);
  words->addWidget(version);
  words->addWidget(makeText(AboutController::tr("Gives folders icons of their own, with a label.")));
  words->addStretch();
  auto* head = new QHBoxLayout;
  head->setSpacing(18);
  head->addWidget(icon);
  head->addLayout(words, 1);
  return head;
}

/// Names, versions and licences in three columns. They can be reached and scrolled by the keyboard.
QScrollArea* makeLibraryList() {
  auto* list = new QWidget;
  auto* grid = new QGridLayout(list);
  grid->setContentsMargins(4, 2, 8, 2);
  grid->setHorizontalSpacing(24);
  grid->setVerticalSpacing(6);
  grid->setColumnStretch(2, 1);
  for (const LibraryNotice& library : linkedLibraries()) {
    const int row = grid->rowCount();
    auto* name = makeText(QString::fromStdString(library.name));
    auto* version = makeText(QString::fromStdString(library.version));
    auto* licence = makeText(QString::fromStdString(library.licence));
    name->setWordWrap(false);
    for (QLabel* muted : {version, licence}) muted->setForegroundRole(QPalette::PlaceholderText);
    version->setWordWrap(false);
    grid->addWidget(name, row, 0, Qt::AlignTop);
    grid->addWidget(version, row, 1, Qt::AlignTop);
    grid->addWidget(licence, row, 2, Qt::AlignTop);
  }
  auto* scroll = new QScrollArea;
  scroll->setWidget(list);
  scroll->setWidgetResizable(true);
  // Scrolled by keys: the theme shows where they go.
  scroll->setProperty("ringed", true);
  scroll->setFocusPolicy(Qt::StrongFocus);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->viewport()->setAutoFillBackground(false);
  list->setAutoFillBackground(false);
  const int rowHeight = list->fontMetrics().height() + grid->verticalSpacing();
  scroll->setFixedHeight(std::min(list->sizeHint().height(), static_cast<int>(listRows * rowHeight)));
  scroll->setAccessibleName(AboutController::tr("Libraries"));
  return scroll;
}

QVBoxLayout* beginCard(QVBoxLayout& rows, const QString& caption) {
  QFrame* card = makeCard();
  auto* inside = new QVBoxLayout(card);
  inside->setContentsMargins(cardPadding, cardPadding, cardPadding, cardPadding);
  inside->setSpacing(10);
  inside->addWidget(makeCaption(caption));
  rows.addWidget(card);
  return inside;
}

}  // namespace

std::vector<LibraryNotice> linkedLibraries() {
  std::vector<LibraryNotice> all = imagingLibraries();
  for (LibraryNotice& library : systemLibraries()) all.push_back(std::move(library));
  all.push_back(plist::xmlLibrary());
  all.push_back(library::zipLibrary());
  all.push_back({.name = "Qt", .version = qVersion(), .licence = "LGPL-3.0-only"});
  std::ranges::sort(all, [](const LibraryNotice& one, const LibraryNotice& other) {
    return QString::fromStdString(one.name).compare(QString::fromStdString(other.name), Qt::CaseInsensitive) < 0;
  });
  return all;
}

AboutController::AboutController(Actions actions) : _actions(std::move(actions)) {}

SideWindow& AboutController::window() {
  if (_window) return *_window;
  _window = std::make_unique<SideWindow>();
  _window->setTitle(tr("About Quorvane"));
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins({});
  rows->setSpacing(layoutGap);
  rows->addLayout(makeHead());

  const auto addButton = [this](QLayout& layout, const QString& text, void (AboutController::*action)(QObject*)) {
    auto* button = new QPushButton(text);
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, button, action] { (this->*action)(button); });
    layout.addWidget(button);
    return button;
  };
  auto* contacts = new QHBoxLayout;
  contacts->setSpacing(10);
  if (_actions.visitPage) {
    addButton(*contacts, tr("&Home Page"), &AboutController::visitHomePage);
    addButton(*contacts, tr("C&omments"), &AboutController::visitCommentPage);
  }
  if (_actions.writeToMaker) addButton(*contacts, tr("&Write to Us"), &AboutController::sendMail);
  contacts->addStretch();
  rows->addLayout(contacts);

  QVBoxLayout* licence = beginCard(*rows, tr("Licence"));
  licence->addWidget(makeText(
      tr("You may use, study, change and pass on Quorvane under the GNU General Public License, version 3 or any later "
         "version. It comes without any warranty. Its own pictures are in the public domain (CC0 1.0).")));
  auto* below = new QHBoxLayout;
  addButton(*below, tr("&Licence Text…"), &AboutController::showLicence);
  below->addStretch();
  licence->addLayout(below);
  beginCard(*rows, tr("Built on"))->addWidget(makeLibraryList());

  auto* close = new QPushButton(tr("&Close"));
  close->setDefault(true);
  close->setAutoDefault(true);
  connect(close, &QPushButton::clicked, _window.get(), &QWidget::close);
  connect(_window.get(), &SideWindow::returnPressed, close, &QPushButton::click);
  connect(_window.get(), &SideWindow::escapePressed, close, &QPushButton::click);
  auto* end = new QHBoxLayout;
  end->addStretch();
  end->addWidget(close);
  content->setMinimumWidth(contentWidth);
  _window->setContent(content, end);
  _window->setInitialFirstResponder(close);
  return *_window;
}

void AboutController::showWindow(QWidget* sender) {
  if (window().isVisible()) return _window->activateWindow();
  _window->showOver(sender);
}

void AboutController::sendMail(QObject* /*sender*/) {
  _actions.writeToMaker();
}

void AboutController::visitHomePage(QObject* /*sender*/) {
  _actions.visitPage(QString());
}

void AboutController::visitCommentPage(QObject* /*sender*/) {
  _actions.visitPage(QStringLiteral(QUORVANE_COMMENTS_PAGE));
}

void AboutController::showLicence(QObject* /*sender*/) {
  QWidget sheet;
  sheet.setWindowTitle(tr("Licence"));
  auto* text = new QPlainTextEdit(QString::fromUtf8(windowResource(QStringLiteral("licence.txt"))));
  text->setReadOnly(true);
  text->setTabChangesFocus(true);
  text->setAccessibleName(tr("Text of the licence"));
  text->setMinimumSize(licenceRoom);
  auto* close = new QPushButton(tr("&Close"));
  close->setDefault(true);
  // Escape presses it as well.
  setTag(*close, 0);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(close);
  auto* rows = new QVBoxLayout(&sheet);
  rows->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
  rows->setSpacing(layoutGap);
  rows->addWidget(makeTitle(sheet.windowTitle()));
  rows->addWidget(text, 1);
  rows->addLayout(buttons);
  const QPointer<SideWindow> window = _window.get();
  window->makeRoomFor(sheet);
  window->runPromptSheet(sheet);
  if (window) window->giveBackRoom();
}

}  // namespace quorvane
