// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <vector>

class QAction;
class QMainWindow;
class QWidget;

namespace quorvane {

class Sheet;

/// Keeps a window's other parts out of reach while sheets are on it: keys, shortcuts, access keys, the focus, drops,
/// and events sent to a part directly go nowhere. Only the topmost sheet is reached; other windows are left alone. The
/// entries of the menu bar are disabled meanwhile, since some desktops show them outside the window.
class SheetGuard : public QObject {
  Q_OBJECT
 public:
  explicit SheetGuard(QMainWindow& host);
  ~SheetGuard() override;

  void add(Sheet& sheet);
  void remove(Sheet& sheet);
  [[nodiscard]] Sheet* top() const { return _sheets.empty() ? nullptr : _sheets.back(); }
  [[nodiscard]] const std::vector<Sheet*>& sheets() const { return _sheets; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void _setMenuBarEnabled(bool enabled);
  void _focusChanged(QWidget* now);
  bool _guardKey(QWidget& widget, QEvent& event);
  /// The window's part that the object is or belongs to, unless the topmost sheet holds it.
  [[nodiscard]] bool _isBelow(const QObject* object) const;

  QMainWindow& _host;
  std::vector<Sheet*> _sheets;
  std::vector<QPointer<QAction>> _disabledActions;
};

}  // namespace quorvane
