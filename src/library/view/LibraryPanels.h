// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileDialog>

#include "library/core/LibraryServices.h"
#include "library/view/IconPreview.h"
#include "library/view/LibraryPrompts.h"

namespace quorvane {

class HVWindow;

/// A panel in which one file or one folder is chosen. A folder is gone into by a double click, and chosen by the button
/// while it is selected.
class OpenPanel : public QFileDialog {
  Q_OBJECT
 public:
  OpenPanel(const QString& title, const QString& prompt, const QStringList& nameFilters);

  /// Shown below the list of files; owned by the panel.
  void setAccessoryView(QWidget* view);
  [[nodiscard]] std::optional<std::filesystem::path> path() const;

 public Q_SLOTS:
  void accept() override;

 private:
  /// The button keeps its words for folders too.
  void _restorePrompt();
  [[nodiscard]] std::optional<QString> _selectedFolder() const;

  QString _prompt;
  QString _chosenFolder;
};

/// The pattern of files that hold pictures.
QString pictureNameFilter();
/// How a file or folder would look as an icon.
IconPreview::Reader iconPreviewReader(const LibraryServices& services);

/// Panels and questions as sheets on the window.
LibraryPrompts sheetLibraryPrompts(HVWindow& window, const LibraryServices& services);

}  // namespace quorvane
