// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QString>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quorvane {

/// What a start of the program asks for; without paths and addresses: to come to the front.
struct OpenRequest {
  std::vector<std::filesystem::path> paths;  ///< absolute
  std::vector<std::string> otherAddresses;   ///< of what does not lie on this computer: to be refused with a message
  std::string action;                        ///< a desktop action's name, when it is one
  std::string activationToken;               ///< allows the window to come to the front, on Wayland
  std::string startupId;                     ///< the same on X11
  bool operator==(const OpenRequest&) const = default;

  /// From the program's arguments (without its own name) and what the desktop put into the environment.
  static OpenRequest fromArguments(const std::vector<std::string>& arguments);
};

/// Sees to it that a session has one window: later starts hand over to the first one, on the session bus, as programs
/// that the desktop starts do ("org.freedesktop.Application"). Belongs to the thread whose event loop runs.
class SingleInstance {
 public:
  enum class Role {
    First,   ///< requests of later starts will come here
    Second,  ///< the first one has taken the request over: end with success
    Alone,   ///< there is no bus, or the first one does not answer: go on without
  };
  using Handler = std::function<void(const OpenRequest&)>;

  /// The identifier is the name on the bus too; the path of the object follows from it.
  explicit SingleInstance(QString applicationId, QDBusConnection bus = QDBusConnection::sessionBus());
  /// Gives the name up.
  ~SingleInstance();
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;

  /// Takes the name, or hands the request over to who has it. Waits a few seconds for an answer at most.
  Role start(const OpenRequest& own);

  /// Gets the requests of later starts, each from the event loop, never while the caller is being answered. Those that
  /// came before there was a handler come then.
  void setHandler(Handler handler);

 private:
  class Object;

  bool takeName();
  [[nodiscard]] bool handOver(const OpenRequest& request) const;

  QString _id;
  QString _path;
  QDBusConnection _bus;
  std::unique_ptr<Object> _object;
  bool _hasName = false;
};

}  // namespace quorvane
