// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include "ui/AlertPanel.h"
#include "ui/Sheet.h"
#include "ui/SheetGuard.h"
#include "ui/WindowDelegate.h"

class QAbstractButton;

namespace quorvane {

/// A window that can ask: its sheet operations show a message or a question on the window and return with the answer,
/// so that callers talk to the user in straight-line code. While a sheet is up nothing below it can be reached, and a
/// request to close the window is refused.
///
/// Sheet operations may be called from any thread; those of other threads wait until no operation is running, and are
/// carried out on the window's thread. The window must outlive such calls. On the window's own thread an operation that
/// is asked for while another runs returns at once, a question with -1.
///
/// When the window is destroyed or the application quits while a sheet is up, the operation returns -1.
class HVWindow : public QMainWindow {
  Q_OBJECT
 public:
  /// The bit of styleMask() that says "textured background".
  static constexpr unsigned texturedBackgroundWindowMask = 0x100;

  explicit HVWindow(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
  /// A window that replaces the given one, to give it another style: it takes over the content and its size, flags,
  /// title, size limits, delegate and initial first responder, is centred on the screen, and remembers its frame under
  /// "HV" and the other's autosave name. The other window is left empty; its owner deletes it. It need not be an
  /// HVWindow; without autosave name its objectName() counts.
  HVWindow(QMainWindow& window, bool textured);
  ~HVWindow() override;

  /// Titled 1, closable 2, miniaturizable 4, resizable 8, textured background 0x100.
  [[nodiscard]] unsigned styleMask() const;

  /// The visible title is "title suffix", or the title alone without a suffix; a missing title reads "null".
  void setTitle(const std::optional<QString>& title);
  void setTitleSuffix(const std::optional<QString>& suffix);
  [[nodiscard]] const std::optional<QString>& title() const { return _title; }

  /// Between the largest and the former size. The size is computed without a visible toolbar, which is put away for it.
  void zoom(QObject* sender = nullptr);

  /// Shows a message with one button and returns when the user has dismissed it. Details are folded away and can be
  /// copied: the true cause of a failure. Dropped when an alert is up already.
  void runMessageSheetWithTitle(const QString& title, const QString& message, const QString& details = {});
  /// The same without a button, for that many seconds. The window goes on painting meanwhile.
  void runMessageSheetWithTitle(const QString& title, const QString& message, double timeout);
  /// Asks, and returns 1 for the default button, 0 for the alternate, -1 for the other one. nullopt leaves a button
  /// out; without any there is one to go on with. Return presses the default button, Escape the alternate one.
  int runPromptSheetWithTitle(const QString& title, const QString& message, const std::optional<QString>& defaultButton,
                              const std::optional<QString>& alternateButton = {},
                              const std::optional<QString>& otherButton = {}, const QString& details = {});
  /// Shows the caller's own sheet and returns the tag of the button that ended it, or a QDialog's result. Push buttons
  /// without an action end it (see _setButtonActionForView); the sheet is given back hidden.
  int runPromptSheet(QWidget& sheet);
  /// Ends the running sheet with the button's tag. Does nothing when none is running.
  void endPromptSheet(QObject* button);

  /// Shows a sheet without waiting, and hides it. A sheet that was begun before is ended first.
  void beginSheet(QWidget& sheet);
  void endSheet();

  /// Ends all running sheets, so that their callers get -1. For the end of the session, when nobody is asked.
  void cancelSheets();

  [[nodiscard]] bool isSheetUp() const { return _guard.top() != nullptr; }
  [[nodiscard]] QWidget* alertPanel() const { return _alertPanel; }
  /// The sheet that was begun last, whether it is still up or not; null when it is gone.
  [[nodiscard]] QWidget* currentSheet() const { return _currentSheet; }

  /// Not owned; may be null.
  void setDelegate(HVWindowDelegate* delegate) { _delegate = delegate; }
  [[nodiscard]] HVWindowDelegate* delegate() const { return _delegate; }
  /// The control that has the focus when the window is first shown.
  void setInitialFirstResponder(QWidget* control);
  [[nodiscard]] QWidget* initialFirstResponder() const { return _initialFirstResponder; }

  /// Where frames are remembered; not owned, may be null.
  void setFrameStore(FrameStore* store) { _frameStore = store; }
  /// Takes the frame that is remembered under the name, and remembers each later one. False: none was remembered.
  bool setFrameAutosaveName(const QString& name);
  [[nodiscard]] const QString& frameAutosaveName() const { return _frameAutosaveName; }
  /// Places the window in the middle of its screen.
  void center();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

  /// Stops the loop that waits for the sheet with the code.
  void _promptSheetDidEnd(QWidget* sheet, int returnCode, void* contextInfo);
  void _updateTitle();
  /// Every push button without an action that is found in the sheet ends the sheet.
  void _setButtonActionForSheet(QWidget& sheet);
  /// Looks at the view's children: a push button without an action is wired; what is no button has this applied to
  /// each of its own children. So of a box in the sheet the children of its children are looked at, never its children.
  void _setButtonActionForView(QWidget& view);
  /// Escape for tag 0 and Return for tag 1, on the panel's direct buttons.
  static void _setKeyEquivalent(QWidget& panel);

 private:
  struct Run;

  int _runLocked(const std::function<int()>& operation);
  int _runAlert(const QString& title, const QString& message, const AlertPanel::Buttons& buttons,
                const QString& details);
  int _runSheet(QWidget& content, Sheet::Kind kind, std::optional<double> timeout = {});
  void _removeSheet(Sheet& sheet);

  QWidget* _alertPanel = nullptr;
  QPointer<QWidget> _currentSheet;
  std::optional<QString> _title;
  std::optional<QString> _titleSuffix;
  std::shared_ptr<std::mutex> _lock = std::make_shared<std::mutex>();

  bool _operating = false;
  bool _textured = false;
  std::vector<Run*> _runs;
  QPointer<Sheet> _begunSheet;
  std::vector<QMetaObject::Connection> _wiredButtons;
  SheetGuard _guard{*this};
  HVWindowDelegate* _delegate = nullptr;
  QPointer<QWidget> _initialFirstResponder;
  FrameStore* _frameStore = nullptr;
  QString _frameAutosaveName;
};

}  // namespace quorvane
