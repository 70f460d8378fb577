// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/LibraryView.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolButton>

#include "library/view/BaseIconController.h"
#include "library/view/EmptyState.h"
#include "library/view/LibraryDelegates.h"
#include "library/view/LibraryPage.h"
#include "library/view/LibrarySearch.h"
#include "library/view/LibraryTableView.h"
#include "library/view/SegmentedControl.h"
#include "library/view/Thumbnails.h"
#include "ui/ActionIcons.h"
#include "ui/ElidedLabel.h"
#include "ui/SliderTrack.h"

namespace quorvane {

namespace {

constexpr int gap = 8;
/// What takes less is not worth a sign.
constexpr int progressDelay = 150;

}  // namespace

LibraryView::LibraryView(BaseIconController& controller, QWidget* parent)
    : QWidget(parent),
      _controller(controller),
      _thumbnails(new Thumbnails(controller.services(), Thumbnails::usualBytes, this)),
      _libraries(new SegmentedControl({tr("&Built-in"), tr("My &Icons")})),
      _searchField(new QLineEdit),
      _sizeSlider(new SliderTrack(this)),
      _pages(new QStackedWidget) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(gap);
  _makeHead();
  _makePages();
  _makeProgress();
  _controller.setOutlets(*builtinTableView(), *customTableView(), *_customPage->setTableView());
  _libraries->setSelected(Builtin);
  setIconSide(64);
  _updateEmptyStates();
  _updateButtons();
}

LibraryView::~LibraryView() = default;

void LibraryView::_makeHead() {
  _libraries->segment(Builtin)->setToolTip(tr("The icons that come with the program"));
  _libraries->segment(Custom)->setToolTip(tr("Sets of your own"));
  connect(_libraries, &SegmentedControl::selectionChanged, this, [this](int library) {
    // Choosing a library is leaving the search.
    _searchField->clear();
    _pages->setCurrentWidget(page(static_cast<Library>(library)));
    Q_EMIT libraryChanged(library);
    Q_EMIT availabilityChanged();
  });
  _searchField->setPlaceholderText(tr("Search Icons"));
  _searchField->setAccessibleName(tr("Search icons"));
  _searchField->setToolTip(tr("Finds icons of both libraries by their name or their set’s"));
  _searchField->setClearButtonEnabled(true);
  _searchField->addAction(actionIcon(QStringLiteral("search"), QPalette::PlaceholderText), QLineEdit::LeadingPosition);
  // The field's own buttons have no words that assistive tools could read.
  for (QToolButton* button : _searchField->findChildren<QToolButton*>())
    button->setAccessibleName(_searchField->accessibleName());
  connect(_searchField, &QLineEdit::textChanged, this, &LibraryView::_search);
  auto* leave = new QShortcut(QKeySequence(Qt::Key_Escape), _searchField, nullptr, nullptr, Qt::WidgetShortcut);
  connect(leave, &QShortcut::activated, _searchField, &QLineEdit::clear);
  _sizeSlider->setRange(IconDelegate::smallestSide, IconDelegate::largestSide);
  _sizeSlider->setSingleStep(8);
  _sizeSlider->setPageStep(32);
  _sizeSlider->setNeutral(IconDelegate::smallestSide);
  _sizeSlider->setAccessibleName(tr("Size of the icons"));
  _sizeSlider->setToolTip(tr("Size of the icons"));
  _sizeSlider->setFixedWidth(84);
  connect(_sizeSlider, &QAbstractSlider::valueChanged, this, &LibraryView::setIconSide);
  connect(_sizeSlider, &SliderTrack::doubleClicked, this, [this] { setIconSide(64); });
  auto* row = new QHBoxLayout;
  row->setSpacing(gap);
  row->addWidget(_searchField, 1);
  row->addWidget(_sizeSlider);
  layout()->addWidget(_libraries);
  static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void LibraryView::_makePages() {
  _builtinPage = new LibraryPage({.sets = _controller.builtinIconSetArrayController(),
                                  .icons = _controller.builtinIconArrayController(),
                                  .thumbnails = *_thumbnails});
  _customPage = new LibraryPage(
      {.sets = _controller.customIconSetArrayController(),
       .icons = _controller.customIconArrayController(),
       .thumbnails = *_thumbnails,
       .isEditable = true,
       .writeRows = [this](const LibraryTableView& table, const QList<int>& rows, QMimeData& pasteboard) {
         return _controller.tableViewWriteRows(table, rows, pasteboard);
       }});
  _results = new LibrarySearch(_controller, *_thumbnails);
  _builtinPage->setTableView()->setAccessibleName(tr("Built-in sets"));
  _builtinPage->iconTableView()->setAccessibleName(tr("Built-in Icons"));
  _customPage->setTableView()->setAccessibleName(tr("My sets"));
  _customPage->iconTableView()->setAccessibleName(tr("My Icons"));

  _customPage->setFooter()->addWidget(_makeButton("add", tr("New Set"), LibraryCommand::NewSet));
  _customPage->setFooter()->addWidget(_makeButton("remove", tr("Remove Set"), LibraryCommand::RemoveSet));
  _customPage->setFooter()->addStretch();
  _customPage->iconFooter()->addWidget(_makeButton("add", tr("Add Icon…"), LibraryCommand::AddIcon));
  _customPage->iconFooter()->addWidget(
      _makeButton("remove", tr("Remove Selected Icons"), LibraryCommand::RemoveSelectedIcons));
  _customPage->iconFooter()->addStretch();

  auto* card = new QFrame;
  card->setProperty("card", true);
  auto* inside = new QVBoxLayout(card);
  inside->setContentsMargins(5, 6, 5, 6);
  inside->addWidget(_pages);
  for (QWidget* each :
       {static_cast<QWidget*>(_builtinPage), static_cast<QWidget*>(_customPage), static_cast<QWidget*>(_results)})
    _pages->addWidget(each);
  layout()->addWidget(card);
  static_cast<QVBoxLayout*>(layout())->setStretchFactor(card, 1);

  for (LibraryPage* each : {_builtinPage, _customPage}) {
    LibraryPage* other = each == _builtinPage ? _customPage : _builtinPage;
    connect(each, &LibraryPage::setsWidthChanged, this, [this, other](int width) {
      other->setSetsWidth(width);
      Q_EMIT setsWidthChanged(width);
    });
  }
  for (LibraryTableView* table : {_customPage->setTableView(), _customPage->iconTableView()}) {
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table, &QWidget::customContextMenuRequested, this,
            [this, table](const QPoint& place) { _showContextMenu(*table, place); });
    connect(table, &LibraryTableView::tableViewSelectionDidChange, this, [this] {
      _updateEmptyStates();
      _updateButtons();
    });
  }
  connect(_customPage->setTableView(), &LibraryTableView::deletePressed, this,
          [this] { perform(LibraryCommand::RemoveSet); });
  connect(_customPage->iconTableView(), &LibraryTableView::deletePressed, this,
          [this] { perform(LibraryCommand::RemoveSelectedIcons); });
  for (ArrayControllerBase* each : {static_cast<ArrayControllerBase*>(&_controller.builtinIconSetArrayController()),
                                    static_cast<ArrayControllerBase*>(&_controller.builtinIconArrayController()),
                                    static_cast<ArrayControllerBase*>(&_controller.customIconSetArrayController()),
                                    static_cast<ArrayControllerBase*>(&_controller.customIconArrayController())}) {
    connect(each, &ArrayControllerBase::contentChanged, this, [this] {
      _updateEmptyStates();
      _updateButtons();
      // How many icons a set has stands beside its name.
      _customPage->setTableView()->viewport()->update();
      if (_pages->currentWidget() == _results) _results->search(_searchField->text());
    });
  }
  connect(_customPage->emptyState(), &EmptyState::stepTaken, this, [this] { perform(LibraryCommand::AddIcon); });
  connect(_builtinPage->emptyState(), &EmptyState::stepTaken, this, [this] { setLibrary(Custom); });
  connect(_results->emptyState(), &EmptyState::stepTaken, _searchField, &QLineEdit::clear);
  connect(_results, &LibrarySearch::shown, this, [this](const LibraryFinds::Find& find) {
    _searchField->clear();
    setLibrary(find.isBuiltin ? Builtin : Custom);
    _controller.select(find.set, find.icon.name);
    page(library())->iconTableView()->setFocus();
  });
}

void LibraryView::_makeProgress() {
  _progress = new QWidget;
  auto* row = new QHBoxLayout(_progress);
  row->setContentsMargins({});
  row->setSpacing(gap);
  auto* texts = new QVBoxLayout;
  texts->setSpacing(3);
  _progressWords = new ElidedLabel;
  _progressBar = new QProgressBar;
  _progressBar->setTextVisible(false);
  _progressBar->setProperty("thin", true);
  _progressBar->setFixedHeight(6);
  _progressBar->setAccessibleName(tr("Progress"));
  texts->addWidget(_progressWords);
  texts->addWidget(_progressBar);
  auto* cancel = new QToolButton;
  cancel->setIcon(actionIcon(QStringLiteral("close")));
  cancel->setAccessibleName(tr("Cancel"));
  cancel->setToolTip(tr("Stop; what is done stays"));
  row->addLayout(texts, 1);
  row->addWidget(cancel);
  _progress->hide();
  layout()->addWidget(_progress);
  _progressDelay.setSingleShot(true);
  _progressDelay.setInterval(progressDelay);
  connect(&_progressDelay, &QTimer::timeout, _progress, &QWidget::show);
  connect(cancel, &QToolButton::clicked, this, [this] { _controller.adder().cancel(); });
  connect(&_controller.adder(), &IconAdder::progressed, this, [this](const QString& words, int done, int total) {
    if (_progress->isHidden() && !_progressDelay.isActive()) _progressDelay.start();
    _progressWords->setText(words);
    _progressBar->setMaximum(total);
    _progressBar->setValue(done);
  });
  connect(&_controller.adder(), &IconAdder::finished, this, [this] {
    _progressDelay.stop();
    _progress->hide();
  });
}

QToolButton* LibraryView::_makeButton(const char* icon, const QString& name, LibraryCommand command) {
  auto* button = new QToolButton;
  button->setIcon(actionIcon(QLatin1String(icon)));
  button->setAccessibleName(QString(name).remove(QChar(0x2026)));
  button->setToolTip(name);
  connect(button, &QToolButton::clicked, this, [this, command] { perform(command); });
  _buttons.push_back({button, command});
  return button;
}

LibraryTableView* LibraryView::builtinTableView() const {
  return _builtinPage->iconTableView();
}

LibraryTableView* LibraryView::customTableView() const {
  return _customPage->iconTableView();
}

QList<QWidget*> LibraryView::tabOrder() const {
  QList<QWidget*> order{_libraries->segment(Builtin),
                        _libraries->segment(Custom),
                        _searchField,
                        _sizeSlider,
                        _results,
                        _builtinPage->setTableView(),
                        _builtinPage->iconTableView(),
                        _customPage->setTableView()};
  for (const auto& [button, command] : _buttons) {
    if (command == LibraryCommand::AddIcon) order.push_back(_customPage->iconTableView());
    order.push_back(button);
  }
  return order;
}

LibraryView::Library LibraryView::library() const {
  return _libraries->selected() == Custom ? Custom : Builtin;
}

void LibraryView::setLibrary(Library library) {
  _searchField->clear();
  _libraries->setSelected(library);
}

int LibraryView::iconSide() const {
  return _sizeSlider->value();
}

void LibraryView::setIconSide(int side) {
  _sizeSlider->setValue(side);
  for (LibraryPage* each : {_builtinPage, _customPage}) each->setIconSide(iconSide());
  _results->setIconSide(iconSide());
  Q_EMIT iconSideChanged(iconSide());
}

void LibraryView::setSetsWidth(int width) {
  for (LibraryPage* each : {_builtinPage, _customPage}) each->setSetsWidth(width);
}

bool LibraryView::isList(const QWidget* widget) const {
  return qobject_cast<const QAbstractItemView*>(widget) && isAncestorOf(widget);
}

void LibraryView::_search(const QString& words) {
  const bool isSearching = !words.trimmed().isEmpty();
  if (isSearching) _results->search(words.trimmed());
  _pages->setCurrentWidget(isSearching ? static_cast<QWidget*>(_results) : page(library()));
}

void LibraryView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::EnabledChange) _updateButtons();
}

}  // namespace quorvane
