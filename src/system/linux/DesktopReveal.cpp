// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QDesktopServices>
#include <QObject>
#include <QTimer>
#include <QVariantMap>

#include "foundation/FileDescriptor.h"
#include "system/FileAddress.h"
#include "system/Reveal.h"

namespace quorvane {

namespace {

// A file manager that has to be started first takes a second or two.
constexpr int patienceMilliseconds = 10'000;

class BusRevealWays : public RevealWays {
 public:
  void showItem(const std::filesystem::path& path, const std::string& startupId, Answer answer) override {
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QString::fromStdString(fileAddress(path))} << QString::fromStdString(startupId);
    send(call, std::move(answer));
  }

  void askPortal(const std::filesystem::path& path, Answer answer) override {
    // The portal opens the folder that holds what it is given a handle of.
    FileDescriptor item(::open(path.c_str(), O_PATH | O_CLOEXEC));
    if (!item.isOpen()) return answerLater(std::move(answer), false);
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.OpenURI"), QStringLiteral("OpenDirectory"));
    // The message holds a handle of its own.
    call << QString() << QVariant::fromValue(QDBusUnixFileDescriptor(item.get())) << QVariantMap();
    send(call, std::move(answer));
  }

 private:
  void send(const QDBusMessage& call, Answer answer) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return answerLater(std::move(answer), false);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, patienceMilliseconds), &_home);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &_home,
                     [answer = std::move(answer)](QDBusPendingCallWatcher* finished) {
                       finished->deleteLater();
                       answer(!finished->isError());
                     });
  }

  void answerLater(Answer answer, bool isShown) {
    QTimer::singleShot(0, &_home, [answer = std::move(answer), isShown] { answer(isShown); });
  }

  QObject _home;  ///< no answer comes once it is gone
};

}  // namespace

std::unique_ptr<RevealWays> makeDesktopRevealWays() {
  return std::make_unique<BusRevealWays>();
}

bool DesktopAddressOpener::open(const QUrl& address) {
  return QDesktopServices::openUrl(address);
}

}  // namespace quorvane
