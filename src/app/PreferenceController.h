// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSizeF>
#include <memory>

#include "app/PreferenceWindow.h"
#include "app/UserDefaultsController.h"
#include "composition/core/LabelValues.h"
#include "ui/WindowDelegate.h"

class QEventLoop;

namespace quorvane {

class AppController;
class FontPanel;
class SharedPanels;

/// The preferences window and what it edits: with which colour and font the label starts, and some switches. Nothing of
/// it is written before OK. What OK writes takes effect at the next start.
class PreferenceController : public QObject, public HVWindowDelegate, private PreferenceOutlets {
  Q_OBJECT
 public:
  /// Remembers the controller, which owns it. The window is made when it is first shown; settings and panels must
  /// outlive it.
  PreferenceController(AppController& appController, UserDefaults& defaults, SharedPanels& panels, bool hasUpdater);
  ~PreferenceController() override;

  /// The ten keys that are registered, with their values.
  [[nodiscard]] static DefaultsDictionary factoryDefaults() { return settings::factoryDefaults(); }

  /// Made on first use.
  SideWindow& window();
  void windowDidLoad();
  [[nodiscard]] const PreferenceOutlets& outlets() const { return *this; }
  [[nodiscard]] UserDefaultsController& defaultsController() { return _defaultsController; }
  [[nodiscard]] const LabelFont& font() const { return _font; }

  /// Shows the stored values, in front of the sender's window and modal to the application. Returns when the window has
  /// been left; leaving it by its close button is a cancel().
  void showWindow(QWidget* sender);
  [[nodiscard]] bool isModal() const { return _modalSession != nullptr; }
  void windowWillClose(HVWindow& window) override;

  void _readDefaults();
  void _writeDefaults();
  /// 1 when the boolean under the key is true, else 0.
  [[nodiscard]] int _stateForKey(const settings::Key<bool>& key) const;
  void _setFont(const LabelFont& font);

  /// While the font sheet is up, the font panel speaks to this and not to the label.
  [[nodiscard]] bool isFontSheetUp() const;
  void myChangeFont(const FontPanel& sender);
  void showColorPanel(QObject* sender);
  /// Takes the panel's colour; there is no other way out.
  void closeColorPanel(QObject* sender);
  void showFontPanel(QObject* sender);
  void closeFontPanel(QObject* sender);
  /// In units of the screen.
  void _resizeFontPanelTo(const QSizeF& size);

  void accept(QObject* sender);
  void cancel(QObject* sender);
  /// Accepts, and looks for a new version once the window has been left.
  void checkForUpdates(QObject* sender);
  /// The end of the session: as cancel(), whatever sheet is up.
  void cancelForTermination();
  [[nodiscard]] static bool appStoreVersion() { return false; }

 private:
  void _runModalForWindow(QWidget* sender);
  void _stopModal();
  void _orderOut();
  /// Takes the panels' contents back, with the sheet that carries them.
  void _endSheets();

  AppController& _appController;
  UserDefaults& _defaults;
  SharedPanels& _panels;
  const bool _hasUpdater;
  UserDefaultsController _defaultsController;
  LabelFont _font;
  std::unique_ptr<SideWindow> _window;
  std::unique_ptr<QWidget> _ownedColorSheet;
  std::unique_ptr<QWidget> _ownedFontSheet;
  QEventLoop* _modalSession = nullptr;
};

}  // namespace quorvane
