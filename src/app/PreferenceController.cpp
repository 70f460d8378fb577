// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/PreferenceController.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QEventLoop>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <utility>

#include "app/AppController.h"
#include "app/Texts.h"
#include "ui/ElidedLabel.h"
#include "ui/HVColorWell.h"
#include "ui/SharedPanels.h"

namespace quorvane {

namespace {

/// Selects none when there is none of that tag.
void selectCellWithTag(QButtonGroup& radio, int tag) {
  if (QAbstractButton* cell = radio.button(tag)) cell->setChecked(true);
}

}  // namespace

PreferenceController::PreferenceController(AppController& appController, UserDefaults& defaults, SharedPanels& panels,
                                           bool hasUpdater)
    : _appController(appController),
      _defaults(defaults),
      _panels(panels),
      _hasUpdater(hasUpdater),
      _defaultsController(defaults) {}

PreferenceController::~PreferenceController() {
  if (_window) _window->setDelegate(nullptr);
}

SideWindow& PreferenceController::window() {
  if (_window) return *_window;
  _window = std::make_unique<SideWindow>();
  _window->setDelegate(this);
  static_cast<PreferenceOutlets&>(*this) = layOutPreferenceWindow(*_window, _hasUpdater);
  _ownedColorSheet.reset(_colorSheet);
  _ownedFontSheet.reset(_fontSheet);
  _colorWell->setTarget(this, [this](HVColorWell& well) { showColorPanel(&well); });
  connect(_fontBtn, &QPushButton::clicked, this, [this] { showFontPanel(_fontBtn); });
  connect(_colorDoneBtn, &QPushButton::clicked, this, [this] { closeColorPanel(_colorDoneBtn); });
  connect(_fontDoneBtn, &QPushButton::clicked, this, [this] { closeFontPanel(_fontDoneBtn); });
  connect(_okBtn, &QPushButton::clicked, this, [this] { accept(_okBtn); });
  connect(_cancelBtn, &QPushButton::clicked, this, [this] { cancel(_cancelBtn); });
  connect(_window.get(), &SideWindow::returnPressed, _okBtn, &QPushButton::click);
  connect(_window.get(), &SideWindow::escapePressed, _cancelBtn, &QPushButton::click);
  _defaultsController.bind(*_askToShare, settings::askToShareOnFacebook);
  if (_hasUpdater) {
    _defaultsController.bind(*_checkAtStartup, settings::checkAtStartup);
    connect(_checkBtn, &QPushButton::clicked, this, [this] { checkForUpdates(_checkBtn); });
  }
  windowDidLoad();
  return *_window;
}

void PreferenceController::windowDidLoad() {
  _readDefaults();
}

void PreferenceController::showWindow(QWidget* sender) {
  if (_modalSession) return _window->activateWindow();
  window();
  _readDefaults();
  _appController.setIgnoreChangeColor(true);
  _runModalForWindow(sender);
}

void PreferenceController::_runModalForWindow(QWidget* sender) {
  const QPointer<PreferenceController> self(this);
  QEventLoop session;
  _modalSession = &session;
  _window->setWindowModality(Qt::ApplicationModal);
  _window->showOver(sender);
  session.exec();
  if (!self || _modalSession != &session) return;
  // Neither OK nor Cancel: the window was closed, or the application ends.
  _modalSession = nullptr;
  _appController.setIgnoreChangeColor(false);
  _defaultsController.revert(nullptr);
  _orderOut();
}

void PreferenceController::_stopModal() {
  if (QEventLoop* session = std::exchange(_modalSession, nullptr)) session->quit();
}

void PreferenceController::windowWillClose(HVWindow& window) {
  if (&window == _window.get() && _modalSession) _modalSession->quit();
}

void PreferenceController::_orderOut() {
  if (!_window) return;
  _endSheets();
  _window->hide();
}

void PreferenceController::_readDefaults() {
  selectCellWithTag(*_defaultColorRadio, _stateForKey(settings::useDefaultColor));
  _colorWell->setColor(settings::value(_defaults, settings::defaultColor));
  selectCellWithTag(*_defaultFontRadio, _stateForKey(settings::useDefaultFont));
  _setFont(settings::value(_defaults, settings::defaultFont));
}

void PreferenceController::_writeDefaults() {
  settings::setValue(_defaults, settings::useDefaultColor, _defaultColorRadio->checkedId() == 1);
  settings::setValue(_defaults, settings::defaultColor, _colorWell->color());
  settings::setValue(_defaults, settings::useDefaultFont, _defaultFontRadio->checkedId() == 1);
  settings::setValue(_defaults, settings::defaultFont, _font);
}

int PreferenceController::_stateForKey(const settings::Key<bool>& key) const {
  return settings::value(_defaults, key) ? 1 : 0;
}

void PreferenceController::_setFont(const LabelFont& font) {
  _font = font;
  _fontDescriptionTF->setText(filled(tr("%@ %.0f"), {font.displayName(), QString::number(font.size, 'f', 0)}));
}

bool PreferenceController::isFontSheetUp() const {
  return _window && _fontSheet->isVisibleTo(_window.get());
}

void PreferenceController::myChangeFont(const FontPanel& sender) {
  _setFont({sender.family(), sender.style(), sender.size()});
}

void PreferenceController::showColorPanel(QObject* /*sender*/) {
  ColorPanel& panel = _panels.colorPanel();
  panel.setMode(ColorPanel::Mode::Wheel);
  // Closing takes the panel's colour, so it begins with the one that is there.
  panel.setColor(_colorWell->color());
  panel.moveContentInto(*_colorBox);
  _window->makeRoomFor(*_colorSheet);
  _window->beginSheet(*_colorSheet);
}

void PreferenceController::closeColorPanel(QObject* /*sender*/) {
  _window->endSheet();
  _window->giveBackRoom();
  _colorWell->setColor(_panels.colorPanel().color());
  _panels.colorPanel().moveContentBack();
}

void PreferenceController::showFontPanel(QObject* /*sender*/) {
  FontPanel& panel = _panels.fontPanel();
  panel.setPanelFont(_font.family, _font.style, _font.size);
  _resizeFontPanelTo(_fontBox ? _fontBox->rect().size() : QSizeF(0, 0));
  panel.moveContentInto(*_fontBox);
  _window->makeRoomFor(*_fontSheet);
  _window->beginSheet(*_fontSheet);
}

void PreferenceController::_resizeFontPanelTo(const QSizeF& size) {
  FontPanel& panel = _panels.fontPanel();
  panel.resize(size.toSize());
  const QByteArray frame = panel.saveGeometry();
  // There and back, so that the content is laid out for the new size.
  panel.resize((size - QSizeF(1, 0)).toSize());
  panel.restoreGeometry(frame);
}

void PreferenceController::closeFontPanel(QObject* /*sender*/) {
  _window->endSheet();
  _window->giveBackRoom();
  _panels.fontPanel().moveContentBack();
}

void PreferenceController::_endSheets() {
  _window->cancelSheets();
  _window->giveBackRoom();
  _panels.colorPanel().moveContentBack();
  _panels.fontPanel().moveContentBack();
}

void PreferenceController::accept(QObject* /*sender*/) {
  _appController.setIgnoreChangeColor(false);
  _stopModal();
  _orderOut();
  _writeDefaults();
  _defaultsController.save(this);
  _appController.preferenceDidChange();
}

void PreferenceController::cancel(QObject* /*sender*/) {
  _appController.setIgnoreChangeColor(false);
  _stopModal();
  _defaultsController.revert(this);
  _orderOut();
}

void PreferenceController::cancelForTermination() {
  if (_modalSession) cancel(nullptr);
}

void PreferenceController::checkForUpdates(QObject* /*sender*/) {
  accept(nullptr);
  QTimer::singleShot(0, &_appController, [this] { _appController.checkForUpdates(this); });
}

}  // namespace quorvane
