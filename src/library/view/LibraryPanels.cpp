// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/view/LibraryPanels.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>
#include <QTimer>
#include <QTreeView>
#include <algorithm>
#include <set>

#include "foundation/FileManagerExtras.h"
#include "imaging/Image.h"
#include "library/core/IconSet.h"
#include "ui/ElidedLabel.h"
#include "ui/HVWindow.h"
#include "ui/LocalPath.h"

namespace quorvane {

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("quorvane", text);
}

std::optional<std::filesystem::path> runSheet(HVWindow& window, OpenPanel& panel) {
  const QPointer<OpenPanel> alive(&panel);
  const int result = window.runPromptSheet(panel);
  return alive && result == QDialog::Accepted ? panel.path() : std::nullopt;
}

}  // namespace

OpenPanel::OpenPanel(const QString& title, const QString& prompt, const QStringList& nameFilters)
    : QFileDialog(nullptr, title), _prompt(prompt) {
  // The desktop's own dialogs can neither choose both files and folders nor take a view of ours.
  setOption(QFileDialog::DontUseNativeDialog);
  setOption(QFileDialog::HideNameFilterDetails);
  setFileMode(QFileDialog::ExistingFile);
  setSupportedSchemes({QStringLiteral("file")});
  setNameFilters(nameFilters);
  setLabelText(QFileDialog::Accept, prompt);
  for (auto* files : findChildren<QTreeView*>()) {
    files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    files->setFrameShape(QFrame::NoFrame);
  }
  for (auto* parts : findChildren<QSplitter*>()) parts->setSizes({160, 640});
  connect(this, &QFileDialog::currentChanged, this,
          [this] { QTimer::singleShot(0, this, &OpenPanel::_restorePrompt); });
}

void OpenPanel::setAccessoryView(QWidget* view) {
  auto* grid = qobject_cast<QGridLayout*>(layout());
  if (grid) grid->addWidget(view, grid->rowCount(), 0, 1, grid->columnCount());
}

void OpenPanel::_restorePrompt() {
  setLabelText(QFileDialog::Accept, _prompt);
  const auto* box = findChild<QDialogButtonBox*>();
  QPushButton* button = box ? box->button(QDialogButtonBox::Open) : nullptr;
  if (!button) return;
  button->setText(_prompt);
  if (_selectedFolder()) button->setEnabled(true);
}

std::optional<QString> OpenPanel::_selectedFolder() const {
  const QStringList selected = selectedFiles();
  // Without a selection the folder that is shown is given.
  if (selected.size() != 1 || !QFileInfo(selected.front()).isDir()) return std::nullopt;
  if (QFileInfo(selected.front()) == QFileInfo(directory().absolutePath())) return std::nullopt;
  return selected.front();
}

void OpenPanel::accept() {
  const auto folder = _selectedFolder();
  // Return behind a typed name goes into the folder.
  if (!folder || qobject_cast<QLineEdit*>(focusWidget())) return QFileDialog::accept();
  _chosenFolder = *folder;
  QDialog::done(QDialog::Accepted);
}

std::optional<std::filesystem::path> OpenPanel::path() const {
  if (!_chosenFolder.isEmpty()) return std::filesystem::path(QFile::encodeName(_chosenFolder).toStdString());
  const auto chosen = selectedUrls();
  return chosen.size() == 1 ? localPath(chosen.front()) : std::nullopt;
}

QString pictureNameFilter() {
  QStringList patterns;
  for (const std::string& type : Image::imageFileTypes())
    patterns << QStringLiteral("*.") + QString::fromStdString(type);
  return tr("Pictures (%1)").arg(patterns.join(QLatin1Char(' ')));
}

IconPreview::Reader iconPreviewReader(const LibraryServices& services) {
  return
      [services](const std::filesystem::path& path, const std::vector<int>& sides) -> std::optional<IconPreview::Look> {
        const auto family = IconSet::_iconFamilyForPath(path, services);
        const auto image = family ? family->imageWithAllReps() : std::nullopt;
        if (!image) return std::nullopt;
        IconPreview::Look look;
        for (const int side : sides) look.pictures.push_back(image->rendered(side, side).toImage());
        // Of an icon file the family's own; of a picture those of the file, from which the family is made.
        const bool isFamily = QFile::decodeName(path.extension().c_str()).toLower() == QLatin1String(".icns");
        std::set<int> sizes;
        const auto note = [&sizes](const Image& held) {
          for (const ImageRep& rep : held.representations()) sizes.insert(std::max(rep.pixelsWide(), rep.pixelsHigh()));
        };
        if (isFamily && !isDirectory(path)) {
          note(*image);
        } else if (const auto held = Image::imageWithContentsOfFile(path)) {
          note(*held);
        }
        look.heldSizes.assign(sizes.begin(), sizes.end());
        return look;
      };
}

LibraryPrompts sheetLibraryPrompts(HVWindow& window, const LibraryServices& services) {
  LibraryPrompts prompts;
  prompts.message = [&window](const QString& title, const QString& message) {
    window.runMessageSheetWithTitle(title, message);
  };
  prompts.prompt = [&window](const QString& title, const QString& message, const QString& defaultButton,
                             const QString& alternateButton) {
    return window.runPromptSheetWithTitle(title, message, defaultButton, alternateButton);
  };
  prompts.chooseIcon = [&window, services] {
    OpenPanel panel(tr("Add Icon"), tr("Add Icon"), {pictureNameFilter()});
    auto* preview = new IconPreview(iconPreviewReader(services));
    panel.setAccessoryView(preview);
    QObject::connect(&panel, &QFileDialog::currentChanged, preview,
                     [preview](const QString& path) { preview->setPath(QFile::encodeName(path).toStdString()); });
    return runSheet(window, panel);
  };
  prompts.chooseSetToImport = [&window] {
    OpenPanel panel(tr("Import Set"), tr("Import"), {tr("Exported sets (*.zip)")});
    return runSheet(window, panel);
  };
  prompts.chooseExportPlace = [&window](const QString& name) {
    OpenPanel panel(tr("Export Set"), tr("Export"), {tr("Exported sets (*.zip)")});
    panel.setAcceptMode(QFileDialog::AcceptSave);
    panel.setFileMode(QFileDialog::AnyFile);
    panel.setDefaultSuffix(QStringLiteral("zip"));
    // Asked below: a question of its own could not be reached under the sheet.
    panel.setOption(QFileDialog::DontConfirmOverwrite);
    panel.selectFile(name + QStringLiteral(".zip"));
    const auto chosen = runSheet(window, panel);
    std::error_code ignored;
    if (!chosen || !std::filesystem::exists(*chosen, ignored)) return chosen;
    const QString shown = visibleText(QFile::decodeName(chosen->filename().c_str()));
    const int answer = window.runPromptSheetWithTitle(
        tr("Replace “%1”?").arg(shown), tr("There is a file of that name already."), tr("Replace"), tr("Cancel"));
    return answer == 1 ? chosen : std::nullopt;
  };
  return prompts;
}

}  // namespace quorvane
