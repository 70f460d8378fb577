// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

class QPushButton;
class QWidget;

namespace quorvane {

class BaseColumn;
class BaseIconController;
class BusyIndicator;
class Drawer;
class ElidedLabel;
class FolderView;
class HVColorWell;
class HVTableView;
class ImageView;
class LabelTextField;
class MainMenu;
class NoticeLabel;
class OverlayGroup;
class PopUpButton;
class PreviewStrip;
class QVWindow;
class Slider;
class TintBar;

/// The parts of the main window that its controller works with. They belong to the window.
struct Outlets {
  QVWindow* _mainWindow = nullptr;
  MainMenu* _mainMenu = nullptr;

  ElidedLabel* _pathTF = nullptr;  ///< the current folder's path, the home folder shortened to "~"
  QPushButton* _openBtn = nullptr;
  QPushButton* _applyBtn = nullptr;
  QPushButton* _revertBtn = nullptr;
  LabelTextField* _labelTF = nullptr;
  FolderView* _folderView = nullptr;
  PreviewStrip* _previewStrip = nullptr;

  HVTableView* _baseTableView = nullptr;    ///< built-in icons
  HVTableView* _customTableView = nullptr;  ///< the user's own
  BaseColumn* _baseColumn = nullptr;        ///< holds the two
  BaseIconController* _baseIconController = nullptr;

  Drawer* _origIconDrawer = nullptr;
  ImageView* _origIconView = nullptr;

  TintBar* _tintBar = nullptr;
  OverlayGroup* _overlayGroup = nullptr;

  HVColorWell* _colorWell = nullptr;
  QPushButton* _fontBtn = nullptr;  ///< on while the font panel is shown
  Slider* _fontSizeSlider = nullptr;
  Slider* _lineSpacingSlider = nullptr;
  Slider* _shearSlider = nullptr;
  Slider* _rotationSlider = nullptr;
  Slider* _opacitySlider = nullptr;
  PopUpButton* _effectPopUp = nullptr;
  QPushButton* _resetBtn = nullptr;

  NoticeLabel* _noticeLabel = nullptr;  ///< short words that fade
  BusyIndicator* _busyIndicator = nullptr;
  QList<QWidget*> _content;  ///< all but the busy sign: disabled together while a folder is worked on
};

}  // namespace quorvane
