// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QWidget>
#include <functional>

class QHBoxLayout;
class QMimeData;
class QSplitter;

namespace quorvane {

class EmptyState;
class IconArrayController;
class IconDelegate;
class IconSetArrayController;
class LibraryTableView;
class Thumbnails;

/// One library: its sets beside the icons of the selected one.
class LibraryPage : public QWidget {
  Q_OBJECT
 public:
  /// The controllers and the thumbnails must live as long. Only of an editable library can sets be renamed and icons be
  /// dragged.
  struct Parts {
    IconSetArrayController& sets;
    IconArrayController& icons;
    Thumbnails& thumbnails;
    bool isEditable = false;
    /// Puts dragged rows of icons on the pasteboard.
    std::function<bool(const LibraryTableView&, const QList<int>& rows, QMimeData& pasteboard)> writeRows = {};
  };
  explicit LibraryPage(Parts parts, QWidget* parent = nullptr);

  [[nodiscard]] LibraryTableView* setTableView() const { return _sets; }
  [[nodiscard]] LibraryTableView* iconTableView() const { return _icons; }
  [[nodiscard]] EmptyState* emptyState() const { return _emptyState; }
  /// Rows under the two lists, for buttons.
  [[nodiscard]] QHBoxLayout* setFooter() const { return _setFooter; }
  [[nodiscard]] QHBoxLayout* iconFooter() const { return _iconFooter; }

  void setIconSide(int side);
  [[nodiscard]] int setsWidth() const;
  void setSetsWidth(int width);

 Q_SIGNALS:
  void setsWidthChanged(int width);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void _updateRowHeights();

  LibraryTableView* _sets;
  LibraryTableView* _icons;
  IconDelegate* _iconDelegate;
  EmptyState* _emptyState;
  QSplitter* _splitter;
  int _setsWidth = 0;  ///< wanted, also while there are no sets to show
  QHBoxLayout* _setFooter;
  QHBoxLayout* _iconFooter;
};

}  // namespace quorvane
