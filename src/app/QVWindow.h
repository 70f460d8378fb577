// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <filesystem>

#include "ui/HVWindow.h"
#include "ui/RefusedDropWatch.h"

namespace quorvane {

class AppController;
class ColorPanel;
class FolderView;
class FontPanel;
class UserDefaults;

/// The main window: receives the shared panels' changes, and takes a folder that is dropped anywhere on it.
class QVWindow : public HVWindow {
  Q_OBJECT
 public:
  /// The settings must outlive it.
  explicit QVWindow(UserDefaults& defaults);

  /// Not owned.
  void setOutlets(FolderView* folderView, AppController* appController);

  /// The canvas and the settings take over what the panel shows.
  void myChangeFont(const FontPanel& sender);
  /// Kept in the settings even while the controller ignores it.
  void myChangeColor(const ColorPanel& sender);

  /// Larger by what is positive of it, as far as the screen has room.
  void growBy(QSize missing);

  /// Shown, not minimised, in front, with the keyboard.
  void bringToFront();

 Q_SIGNALS:
  void folderDropped(const std::filesystem::path& path);
  /// The reason is a sentence.
  void dropRefused(const QString& reason);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  class DropFrame;

  /// Back to where it can be reached when its screen is gone.
  void _mendFrame();
  void _showDropFrame(bool shown);
  /// For a moment from now on: the next change comes right behind.
  void _holdSettings();

  UserDefaults& _defaults;
  FolderView* _folderView = nullptr;
  AppController* _appController = nullptr;
  DropFrame* _dropFrame;
  QWidget* _inside;  ///< all but a rim: what is let go on the rim may as well be leaving
  RefusedDropWatch _refused;
  QTimer _release;
};

}  // namespace quorvane
