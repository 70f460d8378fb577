// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStackedWidget>
#include <QWidget>
#include <filesystem>
#include <optional>

#include "imaging/Image.h"

class QLabel;
class QMimeData;
class QPushButton;

namespace quorvane {

class HVTableView;

/// The column for what a label is drawn on: the lists of built-in icons and of the user's own. While neither has any,
/// it says so and offers to take any picture; one may be dropped on it at any time.
class BaseColumn : public QWidget {
  Q_OBJECT
 public:
  explicit BaseColumn(QWidget* parent = nullptr);

  [[nodiscard]] HVTableView* baseTableView() const { return _baseTableView; }
  [[nodiscard]] HVTableView* customTableView() const { return _customTableView; }

  /// Shows the lists when there is something in them.
  void updateLists();

  /// The picture that the label is drawn on; nullopt: the folder's own icon.
  void showPicture(const std::optional<Image>& picture);
  /// What the picture is called; until it is replaced.
  void setPictureName(const QString& name);

 Q_SIGNALS:
  void choosePicture();
  void clearPicture();
  void pictureDropped(const std::filesystem::path& path);
  void dropRefused(const QString& reason);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QWidget* _makeLists();
  QWidget* _makeEmptyState();
  void _drawPicture();
  void _setHovered(bool hovered);

  QStackedWidget* _pages;
  HVTableView* _baseTableView;
  HVTableView* _customTableView;
  QLabel* _thumbnail;
  QLabel* _heading;
  QLabel* _explanation;
  QPushButton* _chooseButton;
  QPushButton* _clearButton;
  std::optional<Image> _picture;
  bool _hovered = false;
};

}  // namespace quorvane
