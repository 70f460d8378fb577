// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/SingleInstance.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QTimer>
#include <deque>
#include <optional>

#include "system/FileAddress.h"

namespace quorvane {

namespace {

const QString interfaceName = QStringLiteral("org.freedesktop.Application");
const QString tokenKey = QStringLiteral("activation-token");
const QString startupKey = QStringLiteral("desktop-startup-id");
constexpr int answerMilliseconds = 5000;

QString textOf(const std::string& bytes) {
  return QString::fromStdString(bytes);
}

std::string environment(const char* name) {
  return qgetenv(name).toStdString();
}

void addAddress(OpenRequest& request, const std::string& address) {
  if (auto path = pathOfAddress(address)) {
    request.paths.push_back(*std::move(path));
  } else {
    request.otherAddresses.push_back(address);
  }
}

QVariantMap platformData(const OpenRequest& request) {
  QVariantMap data;
  if (!request.activationToken.empty()) data[tokenKey] = textOf(request.activationToken);
  if (!request.startupId.empty()) data[startupKey] = textOf(request.startupId);
  return data;
}

/// The request in a call; nullopt when it is no call of the interface.
std::optional<OpenRequest> requestIn(const QDBusMessage& call) {
  const QString signature = call.signature();
  const QVariantList arguments = call.arguments();
  OpenRequest request;
  if (call.member() == QLatin1String("Open") && signature == QLatin1String("asa{sv}")) {
    for (const QString& address : arguments[0].toStringList()) addAddress(request, address.toStdString());
  } else if (call.member() == QLatin1String("ActivateAction") && signature == QLatin1String("sava{sv}")) {
    request.action = arguments[0].toString().toStdString();
  } else if (call.member() != QLatin1String("Activate") || signature != QLatin1String("a{sv}")) {
    return std::nullopt;
  }
  const auto data = qdbus_cast<QVariantMap>(arguments.back());
  request.activationToken = data.value(tokenKey).toString().toStdString();
  request.startupId = data.value(startupKey).toString().toStdString();
  return request;
}

}  // namespace

/// What others call.
class SingleInstance::Object : public QDBusVirtualObject {
 public:
  [[nodiscard]] QString introspect(const QString& /*path*/) const override {
    return QStringLiteral(
        "<interface name=\"org.freedesktop.Application\">"
        "<method name=\"Activate\"><arg type=\"a{sv}\" direction=\"in\"/></method>"
        "<method name=\"Open\"><arg type=\"as\" direction=\"in\"/><arg type=\"a{sv}\" direction=\"in\"/></method>"
        "<method name=\"ActivateAction\"><arg type=\"s\" direction=\"in\"/><arg type=\"av\" direction=\"in\"/>"
        "<arg type=\"a{sv}\" direction=\"in\"/></method>"
        "</interface>");
  }

  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
    if (!message.interface().isEmpty() && message.interface() != interfaceName) return false;
    auto request = requestIn(message);
    if (!request) return false;
    connection.send(message.createReply());
    _requests.push_back(*std::move(request));
    deliverLater();
    return true;
  }

  void setHandler(Handler handler) {
    _handler = std::move(handler);
    deliverLater();
  }

 private:
  /// A sheet may be up, and whoever calls must not wait for its end.
  void deliverLater() {
    QTimer::singleShot(0, this, [this] {
      if (!_handler || _requests.empty()) return;
      const OpenRequest next = std::move(_requests.front());
      _requests.pop_front();
      // First, as the handler may run an event loop of its own.
      if (!_requests.empty()) deliverLater();
      _handler(next);
    });
  }

  std::deque<OpenRequest> _requests;
  Handler _handler;
};

OpenRequest OpenRequest::fromArguments(const std::vector<std::string>& arguments) {
  OpenRequest request;
  for (const std::string& argument : arguments) {
    if (auto path = pathOfArgument(argument)) {
      request.paths.push_back(*std::move(path));
    } else {
      request.otherAddresses.push_back(argument);
    }
  }
  request.activationToken = environment("XDG_ACTIVATION_TOKEN");
  request.startupId = environment("DESKTOP_STARTUP_ID");
  return request;
}

SingleInstance::SingleInstance(QString applicationId, QDBusConnection bus)
    : _id(std::move(applicationId)),
      _path(QLatin1Char('/') + QString(_id).replace(u'.', u'/').replace(u'-', u'_')),
      _bus(std::move(bus)),
      _object(std::make_unique<Object>()) {}

SingleInstance::~SingleInstance() {
  if (!_hasName) return;
  _bus.unregisterService(_id);
  _bus.unregisterObject(_path);
}

bool SingleInstance::takeName() {
  // The object first: calls come as soon as there is the name.
  if (!_bus.registerVirtualObject(_path, _object.get())) return false;
  const auto reply = _bus.interface()->registerService(_id, QDBusConnectionInterface::DontQueueService,
                                                       QDBusConnectionInterface::DontAllowReplacement);
  _hasName = reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
  if (!_hasName) _bus.unregisterObject(_path);
  return _hasName;
}

bool SingleInstance::handOver(const OpenRequest& request) const {
  QStringList addresses;
  for (const auto& path : request.paths) addresses.append(textOf(fileAddress(path)));
  for (const auto& address : request.otherAddresses) addresses.append(textOf(address));
  const bool opens = !addresses.isEmpty();
  auto call = QDBusMessage::createMethodCall(_id, _path, interfaceName,
                                             opens ? QStringLiteral("Open") : QStringLiteral("Activate"));
  if (opens) call << addresses;
  call << platformData(request);
  call.setAutoStartService(false);
  return _bus.call(call, QDBus::Block, answerMilliseconds).type() == QDBusMessage::ReplyMessage;
}

SingleInstance::Role SingleInstance::start(const OpenRequest& own) {
  if (!_bus.isConnected() || _bus.interface() == nullptr) return Role::Alone;
  if (takeName()) return Role::First;
  if (handOver(own)) return Role::Second;
  // It may just have ended.
  return takeName() ? Role::First : Role::Alone;
}

void SingleInstance::setHandler(Handler handler) {
  _object->setHandler(std::move(handler));
}

}  // namespace quorvane
