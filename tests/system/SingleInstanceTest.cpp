// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/SingleInstance.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusMessage>
#include <QProcess>
#include <QStandardPaths>
#include <atomic>
#include <optional>
#include <thread>

#include "system/FileAddress.h"
#include "system/Reveal.h"

namespace quorvane {
namespace {

using Role = SingleInstance::Role;

TEST(FileAddress, KeepsEveryByteOfAPath) {
  std::string all = "/";
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(pathOfAddress(fileAddress(all)), all);
  EXPECT_EQ(fileAddress("/a b/\xFC#?%20"), "file:///a%20b/%FC%23%3F%2520");
  const struct {
    const char* argument;
    std::optional<std::filesystem::path> path;
  } rows[] = {
      {"file:///a%20b", "/a b"},
      {"FILE://localhost/a", "/a"},
      {"file:/a#part", "/a"},
      {"file://elsewhere.example/a", std::nullopt},
      {"file:///a%00b", std::nullopt},
      {"sftp://host/a", std::nullopt},
      {"/a%20b", "/a%20b"},
      {"/sftp://a", "/sftp://a"},
      {"a b", std::filesystem::current_path() / "a b"},
      {"", std::nullopt},
  };
  for (const auto& row : rows) EXPECT_EQ(pathOfArgument(row.argument), row.path) << row.argument;
}

TEST(Reveal, TriesOneWayAfterTheOther) {
  const std::filesystem::path item = "/a/b \xFC";
  for (int works = 0; works < 4; ++works) {
    ScriptedRevealWays ways;
    RecordingAddressOpener opener;
    ways.canShowItems = works == 0;
    ways.hasPortal = works == 1;
    opener.answer = works == 2;
    bool isShown = works == 3;
    Reveal(ways, opener).show(item, {}, [&](bool answer) { isShown = answer; });
    EXPECT_EQ(isShown, works < 3);
    EXPECT_EQ(ways.asked.size(), works == 0 ? 1U : 2U);
    ASSERT_EQ(opener.opened.size(), works < 2 ? 0U : 1U);
    for (const QUrl& opened : opener.opened) EXPECT_EQ(opened, QUrl(QStringLiteral("file:///a")));
  }
}

TEST(HVWebsite, AppendsThePathAsItStands) {
  RecordingAddressOpener opener;
  HVWebsite site(QStringLiteral("https://quorvane.test/"), opener);
  EXPECT_TRUE(site.visitPage(QStringLiteral("/quorvane/help/")));
  EXPECT_TRUE(site.visitPage(QString()));
  EXPECT_EQ(opener.opened[0].toString(), QStringLiteral("https://quorvane.test//quorvane/help/"));
  EXPECT_EQ(opener.opened[1].toString(), QStringLiteral("https://quorvane.test/"));
  HVWebsite none(QStringLiteral("file:///"), opener);
  EXPECT_FALSE(none.visitPage(QStringLiteral("etc")));
}

TEST(SingleInstance, GoesOnWithoutABus) {
  const auto nowhere = QDBusConnection::connectToBus(QStringLiteral("unix:path=/nonexistent"), QStringLiteral("none"));
  SingleInstance instance(QStringLiteral("test.quorvane.Test"), nowhere);
  EXPECT_EQ(instance.start({}), Role::Alone);
}

/// A session bus of its own.
class BusTest : public ::testing::Test {
 protected:
  QProcess daemon;
  QString address;

  void SetUp() override {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    if (program.isEmpty()) GTEST_SKIP() << "dbus-daemon is not installed";
    daemon.start(program, {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    ASSERT_TRUE(daemon.waitForReadyRead(10'000));
    address = QString::fromLatin1(daemon.readLine().trimmed());
  }
  void TearDown() override {
    daemon.kill();
    daemon.waitForFinished();
  }
  /// What `body` returns on a thread of its own, which is another program to the bus, while events are handled here.
  template <typename Body>
  auto elsewhere(Body body) {
    std::optional<decltype(body(std::declval<QDBusConnection>()))> result;
    std::atomic<bool> isDone = false;
    std::thread other([&] {
      const QString name = QStringLiteral("other");
      result = body(QDBusConnection::connectToBus(address, name));
      QDBusConnection::disconnectFromBus(name);
      isDone = true;
    });
    while (!isDone) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    other.join();
    for (int i = 0; i < 10; ++i) QCoreApplication::processEvents();
    return *std::move(result);
  }
};

TEST_F(BusTest, LaterStartsHandOverToTheFirst) {
  const QString id = QStringLiteral("test.quorvane.Quor-vane");
  const OpenRequest folders{.paths = {"/a b", "/\xFC"},
                            .otherAddresses = {"sftp://host/x"},
                            .action = {},
                            .activationToken = "token",
                            .startupId = "id"};
  const auto startAgain = [&](const OpenRequest& request) {
    return elsewhere([&](const QDBusConnection& bus) { return SingleInstance(id, bus).start(request); });
  };
  const auto firstBus = QDBusConnection::connectToBus(address, QStringLiteral("first"));
  std::vector<OpenRequest> requests;
  {
    SingleInstance first(id, firstBus);
    ASSERT_EQ(first.start(folders), Role::First);
    EXPECT_EQ(startAgain(folders), Role::Second);
    // Nobody is there yet who could open it; it is not lost.
    first.setHandler([&](const OpenRequest& request) { requests.push_back(request); });
    EXPECT_EQ(startAgain({}), Role::Second);
    const auto call = [&](const char* member, const QVariantList& arguments) {
      return elsewhere([&](const QDBusConnection& bus) {
        auto message =
            QDBusMessage::createMethodCall(id, QStringLiteral("/test/quorvane/Quor_vane"),
                                           QStringLiteral("org.freedesktop.Application"), QString::fromLatin1(member));
        message.setArguments(arguments);
        return bus.call(message, QDBus::Block, 10'000).type() == QDBusMessage::ReplyMessage;
      });
    };
    EXPECT_TRUE(call("ActivateAction", {QStringLiteral("new"), QVariantList(), QVariantMap()}));
    EXPECT_FALSE(call("Open", {QStringLiteral("/a")}));
    EXPECT_FALSE(call("Quit", {}));
    ASSERT_EQ(requests.size(), 3U);
    EXPECT_EQ(requests[0], folders);
    EXPECT_EQ(requests[1], OpenRequest());
    EXPECT_EQ(requests[2].action, "new");
  }
  EXPECT_EQ(startAgain(folders), Role::First);
  QDBusConnection::disconnectFromBus(QStringLiteral("first"));
}

}  // namespace
}  // namespace quorvane
