// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QProgressBar;
class QStackedWidget;
class QToolButton;

namespace quorvane {

class BaseIconController;
class ElidedLabel;
class LibraryPage;
class LibrarySearch;
class LibraryTableView;
class SegmentedControl;
class SliderTrack;
class Thumbnails;

/// What can be done with the user's library.
enum class LibraryCommand { NewSet, RenameSet, RemoveSet, ImportSet, ExportSet, AddIcon, RemoveSelectedIcons, Find };

/// The icon library: a switch between the built-in icons and the user's own, a search over both, the sets and the icons
/// of the one that is shown, and what is under way.
class LibraryView : public QWidget {
  Q_OBJECT
 public:
  enum Library { Builtin, Custom };

  /// The controller gets its tables; it must live as long.
  explicit LibraryView(BaseIconController& controller, QWidget* parent = nullptr);
  ~LibraryView() override;

  [[nodiscard]] LibraryPage* page(Library library) const { return library == Builtin ? _builtinPage : _customPage; }
  [[nodiscard]] LibraryTableView* builtinTableView() const;
  [[nodiscard]] LibraryTableView* customTableView() const;
  [[nodiscard]] SegmentedControl* libraries() const { return _libraries; }
  [[nodiscard]] QLineEdit* searchField() const { return _searchField; }
  [[nodiscard]] LibrarySearch* searchResults() const { return _results; }
  [[nodiscard]] SliderTrack* sizeSlider() const { return _sizeSlider; }
  /// The controls in the order in which one reads.
  [[nodiscard]] QList<QWidget*> tabOrder() const;

  /// Which library is shown.
  [[nodiscard]] Library library() const;
  void setLibrary(Library library);
  /// The side of the icons' pictures, 32 to 128.
  [[nodiscard]] int iconSide() const;
  void setIconSide(int side);
  void setSetsWidth(int width);

  [[nodiscard]] bool isAvailable(LibraryCommand command) const;
  void perform(LibraryCommand command);
  /// Whether it is one of the lists: what is pasted there is meant for the library.
  [[nodiscard]] bool isList(const QWidget* widget) const;

 Q_SIGNALS:
  void libraryChanged(int library);
  void iconSideChanged(int side);
  void setsWidthChanged(int width);
  /// What isAvailable() says may have changed.
  void availabilityChanged();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void _makeHead();
  void _makePages();
  void _makeProgress();
  QToolButton* _makeButton(const char* icon, const QString& name, LibraryCommand command);
  QAction* _addAction(QMenu& menu, LibraryCommand command);
  void _showContextMenu(LibraryTableView& table, const QPoint& place);
  void _search(const QString& words);
  void _updateEmptyStates();
  void _updateButtons();

  BaseIconController& _controller;
  Thumbnails* _thumbnails;
  SegmentedControl* _libraries;
  QLineEdit* _searchField;
  SliderTrack* _sizeSlider;
  QStackedWidget* _pages;
  LibraryPage* _builtinPage = nullptr;
  LibraryPage* _customPage = nullptr;
  LibrarySearch* _results = nullptr;
  QWidget* _progress = nullptr;
  ElidedLabel* _progressWords = nullptr;
  QProgressBar* _progressBar = nullptr;
  QTimer _progressDelay;
  QList<std::pair<QToolButton*, LibraryCommand>> _buttons;
};

}  // namespace quorvane
