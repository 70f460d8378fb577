// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QFile>
#include <QHeaderView>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <filesystem>
#include <optional>

#include "iconfamily/IconFamily.h"
#include "library/view/BaseIconController.h"
#include "library/view/LibraryPage.h"
#include "library/view/LibraryTableView.h"
#include "library/view/LibraryView.h"
#include "support/BrandingFixture.h"

namespace quorvane::test {

/// An icns file of one colour.
inline void writeIcon(const std::filesystem::path& path, QColor color = Qt::blue) {
  std::filesystem::create_directories(path.parent_path());
  static const IconFamily blue = *IconFamily::iconFamilyWithThumbnailsOfImage(plainImage(Qt::blue));
  const IconFamily family = color == Qt::blue ? blue : *IconFamily::iconFamilyWithThumbnailsOfImage(plainImage(color));
  ASSERT_TRUE(family.writeToFile(path).ok());
}

/// What came of dragging something over a table and letting it go there.
struct Dropped {
  bool isEntered = false;
  Qt::DropAction action = Qt::IgnoreAction;
};

/// The lists as the window shows them, on libraries of their own. Questions are answered from members.
class LibraryFixture : public ::testing::Test {
 protected:
  using Path = std::filesystem::path;

  void open(WorkQueue::Mode mode = WorkQueue::Mode::AtOnce) {
    const auto choose = [this] { return choice; };
    controller = std::make_unique<BaseIconController>(
        LibraryPlaces{.builtin = tree / "BaseIcons", .custom = tree / "Icons", .former = {}}, libraryServices,
        LibraryPrompts{.message = [this](const QString& title, const QString& text) { said << title << text; },
                       .prompt =
                           [this](const QString& title, const QString& text, const QString& yes, const QString& no) {
                             said << title << text << yes << no;
                             if (meanwhile) meanwhile();
                             return answer;
                           },
                       .chooseIcon = choose,
                       .chooseSetToImport = choose,
                       .chooseExportPlace = [choose](const QString&) { return choose(); }},
        BaseIconController::SelectionStore{
            .read = [this](bool builtin) { return saved[builtin ? 0 : 1]; },
            .write = [this](bool builtin, const QList<int>& rows) { saved[builtin ? 0 : 1] = rows; }},
        mode);
    view = std::make_unique<LibraryView>(*controller);
    QObject::connect(controller.get(), &BaseIconController::baseIconChosen,
                     [this](const std::optional<Image>& image, const Path& path) {
                       base = image;
                       chosen.push_back(image ? path.filename().string() : "none");
                     });
    QObject::connect(controller.get(), &BaseIconController::failed, [this](const QString& why) { failures << why; });
    controller->awakeFromNib();
    controller->restoreIconSetSelection();
    view->setLibrary(LibraryView::Custom);
    view->setIconSide(32);
    view->resize(320, 500);
    view->show();
  }
  ~LibraryFixture() override { view.reset(); }

  /// A set of the user's library with icons in that order.
  void makeSet(const std::string& name, const std::vector<std::string>& icons, const Path& library = "Icons") {
    std::filesystem::create_directories(tree / library / name);
    for (const std::string& icon : icons) writeIcon(tree / library / name / (icon + ".icns"));
    std::string list = "(";
    for (const std::string& icon : icons) list += "\"" + icon + ".icns\", ";
    writeFile(tree / library / name / iconListName, list + ")");
    _sets[library] += "\"" + name + "\", ";
    writeFile(tree / library / setListName, "(" + _sets[library] + ")");
  }

  IconSetArrayController& sets() { return controller->customIconSetArrayController(); }
  IconArrayController& icons() { return controller->customIconArrayController(); }
  LibraryTableView& iconTable() { return *view->customTableView(); }
  LibraryTableView& setTable() { return *view->page(LibraryView::Custom)->setTableView(); }
  void select(LibraryTableView& table, const QList<int>& rows) {
    QItemSelection selection;
    for (const int row : rows) selection.select(table.model()->index(row, 0), table.model()->index(row, 0));
    table.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  }

  /// "A B C": the names in the list.
  std::string shown() {
    return joined(icons().arrangedObjects(), [](const auto& icon) { return icon.name; });
  }
  std::string shownSets() {
    return joined(sets().arrangedObjects(), [](const auto& set) { return set->name(); });
  }
  /// The same as it would be read from the disk.
  std::string onDisk(const std::string& set) {
    const auto read = IconSet::_iconsInDirectory(tree / "Icons" / set, libraryServices);
    return read ? joined(*read, [](const auto& icon) { return icon.name; }) : "unreadable";
  }
  template <typename Objects, typename Name>
  static std::string joined(const Objects& objects, const Name& nameOf) {
    std::string all;
    for (const auto& object : objects) {
      const std::string name = nameOf(object);
      all += (all.empty() ? "" : " ") + name.substr(0, name.rfind(".icns"));
    }
    return all;
  }

  /// Drags data onto a row (or between two: `above`) and lets it go. `offered`: what the sender allows.
  static Dropped drop(LibraryTableView& table, QMimeData& data, int row, bool above,
                      Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction) {
    const QRect place = row < table.model()->rowCount() ? table.visualRect(table.model()->index(row, 0))
                                                        : QRect(0, table.viewport()->height() - 2, 10, 2);
    const QPoint point(20, above ? place.top() + 1 : place.center().y() + 2);
    Dropped dropped;
    QDragEnterEvent enter(point, offered, &data, Qt::LeftButton, {});
    QApplication::sendEvent(table.viewport(), &enter);
    dropped.isEntered = enter.isAccepted();
    if (!dropped.isEntered) return dropped;
    QDragMoveEvent move(point, offered, &data, Qt::LeftButton, {});
    QApplication::sendEvent(table.viewport(), &move);
    if (!move.isAccepted()) {
      QDragLeaveEvent leave;
      QApplication::sendEvent(table.viewport(), &leave);
      return dropped;
    }
    QDropEvent let(QPointF(point), offered, &data, Qt::LeftButton, {});
    QApplication::sendEvent(table.viewport(), &let);
    dropped.action = let.isAccepted() ? let.dropAction() : Qt::IgnoreAction;
    return dropped;
  }
  /// A drag of rows of the icon list, to its end.
  Dropped dragRows(const QList<int>& rows, LibraryTableView& onto, int row, bool above) {
    QModelIndexList indexes;
    for (const int each : rows) indexes.push_back(iconTable().model()->index(each, 0));
    const std::unique_ptr<QMimeData> data(iconTable().model()->mimeData(indexes));
    if (!data) return {};
    const Dropped dropped = drop(onto, *data, row, above);
    Q_EMIT iconTable().tableViewDragEndedAt(&iconTable(), QPoint(), dropped.action);
    return dropped;
  }
  static std::unique_ptr<QMimeData> files(const std::vector<Path>& paths) {
    QList<QUrl> addresses;
    for (const Path& path : paths) addresses << QUrl::fromLocalFile(QFile::decodeName(path.c_str()));
    auto data = std::make_unique<QMimeData>();
    data->setUrls(addresses);
    return data;
  }

  TemporaryFolder tree;
  AppleDoubleForkStore forks;
  OwnKindIcons kinds;
  RecordingNotices notices;
  IconServices services{.forks = forks, .kinds = kinds, .notices = notices};
  FolderTrash trash{[this] {
    std::filesystem::create_directory(tree / "trash");
    return tree / "trash";
  }()};
  LibraryServices libraryServices{.icons = services, .trash = &trash};
  std::optional<Path> choice;
  int answer = 1;
  std::function<void()> meanwhile;  ///< what happens while a question waits for its answer
  QStringList said;
  QStringList failures;
  std::vector<std::string> chosen;
  std::optional<Image> base;
  QList<int> saved[2];
  std::unique_ptr<BaseIconController> controller;
  std::unique_ptr<LibraryView> view;

 private:
  std::map<Path, std::string> _sets;
};

}  // namespace quorvane::test
