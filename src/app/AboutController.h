// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

#include "app/SideWindow.h"
#include "foundation/base/LibraryNotice.h"

namespace quorvane {

/// The About window: what this program is, who made it, what may be done with it, and what it is built on.
class AboutController : public QObject {
  Q_OBJECT
 public:
  /// Either may be missing; its buttons are then left out.
  struct Actions {
    std::function<void()> writeToMaker;
    std::function<void(const QString& page)> visitPage;  ///< below the maker's home page
  };

  explicit AboutController(Actions actions);

  /// Made on first use.
  SideWindow& window();
  /// In the middle of the sender's window.
  void showWindow(QWidget* sender);

  void sendMail(QObject* sender);
  void visitHomePage(QObject* sender);
  void visitCommentPage(QObject* sender);
  /// Returns when it has been put away.
  void showLicence(QObject* sender);

 private:
  Actions _actions;
  std::unique_ptr<SideWindow> _window;
};

/// All that the window program is linked with, by name.
std::vector<LibraryNotice> linkedLibraries();

}  // namespace quorvane
