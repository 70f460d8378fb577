// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <filesystem>
#include <optional>

#include "imaging/Image.h"

class QLabel;
class QPushButton;
class QToolButton;

namespace quorvane {

class BaseIconController;
class ElidedLabel;
class LibraryView;

/// The column for what a label is drawn on: the picture that is chosen, and the icon library to choose one from. Any
/// picture may be dropped on the chosen one.
class BaseColumn : public QWidget {
  Q_OBJECT
 public:
  explicit BaseColumn(BaseIconController& library, QWidget* parent = nullptr);

  [[nodiscard]] LibraryView* library() const { return _library; }
  /// Where pictures can be dropped.
  [[nodiscard]] QWidget* pictureCard() const;
  /// A row over the library for what is done to the picture; empty.
  [[nodiscard]] QWidget* tintSlot() const { return _tintSlot; }
  /// The controls in the order in which one reads.
  [[nodiscard]] QList<QWidget*> tabOrder() const;

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
  void changeEvent(QEvent* event) override;

 private:
  class PictureCard;

  QWidget* _makeCard();
  void _drawPicture();

  PictureCard* _card;
  QLabel* _thumbnail;
  ElidedLabel* _heading;
  QPushButton* _chooseButton;
  QToolButton* _clearButton;
  QWidget* _tintSlot;
  LibraryView* _library;
  std::optional<Image> _picture;
};

}  // namespace quorvane
