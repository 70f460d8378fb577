// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>

namespace quorvane {

/// A newer version, as it is offered. All is plain and safe to be shown.
struct UpdateOffer {
  QString version;
  QString runningVersion;
  QString published = {};  ///< a day in the user's way of writing; empty when it is not known
  QString news = {};       ///< lines; may be empty
  QString pageHost = {};   ///< of the page that can be opened
  bool operator==(const UpdateOffer&) const = default;
};

enum class UpdateAnswer { OpenPage, Later, Skip };

/// What the user sees of looking for newer versions. The window shows sheets; tests answer from a script.
class UpdateView {
 public:
  virtual ~UpdateView() = default;
  /// Something is up that must not be covered: a sheet, another window that wants an answer, a menu.
  [[nodiscard]] virtual bool isOccupied() const = 0;
  /// Says that it takes a while, until endWaiting(); the user can give up, which is told by the event loop. Nothing
  /// when occupied.
  virtual void beginWaiting(std::function<void()> givenUp) = 0;
  virtual void endWaiting() = 0;
  /// Returns when it is read.
  virtual void tell(const QString& title, const QString& message, const QString& details) = 0;
  /// Returns with the answer; what is no answer, such as the end of the session, is Later.
  virtual UpdateAnswer offer(const UpdateOffer& offer) = 0;
};

}  // namespace quorvane
