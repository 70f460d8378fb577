// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>
#include <QWindow>

#include "CanvasTesting.h"
#include "composition/view/DroppedFolder.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

class FolderDropTest : public ::testing::Test {
 protected:
  FolderDropTest() {
    std::filesystem::create_directory(_oddFolder);
    std::filesystem::create_directory_symlink(_oddFolder, root() / "link");
    test::writeFile(root() / "file", "text");
    _view.resize(200, 200);
    QObject::connect(&_view, &FolderView::setPath,
                     [this](const std::filesystem::path& path) { _opened.push_back(path); });
    QObject::connect(&_view, &FolderView::dropRefused, [this](const QString& reason) { _refusals << reason; });
  }

  [[nodiscard]] std::filesystem::path root() const { return std::filesystem::canonical(_temporary.path()); }
  [[nodiscard]] QByteArray address(const char* name) const {
    return "file://" + QByteArray::fromStdString((root() / name).string());
  }
  void setAddresses(const QByteArrayList& addresses) {
    _data.clear();
    if (!addresses.isEmpty()) _data.setData(QStringLiteral("text/uri-list"), addresses.join("\r\n") + "\r\n");
  }
  /// The action that the entering thing is answered with, of those that its source offers.
  Qt::DropAction enter(QObject& receiver, Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction) {
    QDragEnterEvent event(QPoint(50, 50), offered, &_data, Qt::LeftButton, {});
    QApplication::sendEvent(&receiver, &event);
    return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
  }
  bool drop() {
    QDropEvent event(QPoint(50, 50), Qt::CopyAction, &_data, Qt::LeftButton, {});
    QApplication::sendEvent(&_view, &event);
    return event.isAccepted();
  }

  /// What the desktop tells of a refused thing that is let go.
  void letGo() {
    QDragLeaveEvent leave;
    QApplication::sendEvent(_view.windowHandle(), &leave);
  }

  test::TemporaryFolder _temporary;
  std::filesystem::path _oddFolder = root() / "\xFF and %41";
  FolderView _view;
  QMimeData _data;
  std::vector<std::filesystem::path> _opened;
  QStringList _refusals;
};

TEST_F(FolderDropTest, OneFolderIsOpenedByTheBytesOfItsName) {
  showLabel(_view);
  const QImage before = drawn(_view, 1);
  for (const QByteArray& taken :
       {address("%FF%20and%20%2541"), address("link"), "file://localhost" + address("link").mid(7)}) {
    _view.setCanvasLabelCenter({1, 2});
    setAddresses({taken});
    QSignalSpy activation(&_view, &FolderView::activationRequested);
    EXPECT_EQ(enter(_view), Qt::CopyAction) << taken.toStdString();
    _view.setCanvasLabelCenter({64, 64});
    EXPECT_GT(largestDifference(before, drawn(_view, 1)), 3);  // it is highlighted
    _view.setCanvasLabelCenter({1, 2});
    EXPECT_TRUE(drop());
    EXPECT_EQ(activation.size(), 1);
    EXPECT_EQ(_view.canvasLabelCenter(), (Point{64, 64}));
    EXPECT_EQ(largestDifference(before, drawn(_view, 1)), 0);
  }
  EXPECT_EQ(_opened, std::vector(3, _oddFolder));
  EXPECT_TRUE(_refusals.isEmpty());
}

TEST_F(FolderDropTest, EverythingElseIsRefusedWithAReason) {
  const QByteArray folder = address("link");
  const std::pair<QByteArrayList, const char*> refused[] = {
      {{address("file")}, "not a file"},
      {{address("nothing")}, "does not exist"},
      {{folder, folder}, "one folder"},
      {{"smb://server/share"}, "on this computer"},
      {{"file://elsewhere" + folder.mid(7)}, "on this computer"},
      {{folder + "%00"}, "on this computer"},
      {{}, "Only a folder"},
  };
  const QImage before = drawn(_view, 1);
  _view.show();
  for (const auto& [addresses, reason] : refused) {
    setAddresses(addresses);
    _refusals.clear();
    EXPECT_EQ(enter(_view), Qt::IgnoreAction) << reason;
    EXPECT_EQ(largestDifference(before, drawn(_view, 1)), 0);
    letGo();
    ASSERT_EQ(_refusals.size(), 1);
    EXPECT_TRUE(_refusals[0].contains(QLatin1String(reason))) << _refusals[0].toStdString();
  }
  setAddresses({folder});
  // Answering a move would have the folder removed from where it is.
  EXPECT_EQ(enter(_view, Qt::LinkAction | Qt::MoveAction), Qt::LinkAction);
  EXPECT_EQ(enter(_view, Qt::MoveAction), Qt::IgnoreAction);
  _view.setEnabled(false);
  EXPECT_EQ(_view.draggingEntered(_data), Qt::IgnoreAction);
  EXPECT_FALSE(_view.performDragOperation(_data));
  EXPECT_TRUE(_opened.empty());
}

TEST_F(FolderDropTest, TheReasonComesWhenARefusedThingIsLetGoHere) {
  _view.show();
  setAddresses({address("file")});
  QWindow& window = *_view.windowHandle();
  const auto moveTo = [&](QPoint place) {
    QDragMoveEvent move(place, Qt::CopyAction, &_data, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &move);
  };
  for (const auto& [last, refusals] : {std::pair{QPoint(60, 60), 1}, {QPoint(300, 60), 0}}) {
    _refusals.clear();
    EXPECT_EQ(enter(window), Qt::IgnoreAction);
    moveTo({50, 55});
    moveTo(last);
    EXPECT_TRUE(_refusals.isEmpty());
    letGo();
    letGo();
    EXPECT_EQ(_refusals.size(), refusals);
  }
}

}  // namespace
}  // namespace quorvane
