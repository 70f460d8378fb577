// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppcastUpdater.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <QPushButton>
#include <QTest>

#include "app/FeedProcess.h"
#include "app/SheetUpdateView.h"
#include "app/core/SettingsTable.h"
#include "foundation/UserDefaults.h"
#include "system/Links.h"
#include "ui/AlertPanel.h"
#include "ui/HVWindow.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

struct ScriptedFetcher : FeedFetcher {
  void fetch(const QString& address, std::function<void(const FeedAnswer&)> answered) override {
    asked += address;
    pending = std::move(answered);
  }
  void cancel() override { pending = nullptr; }
  void answer(const FeedAnswer& answer) {
    const auto answered = std::exchange(pending, nullptr);
    ASSERT_TRUE(answered);
    answered(answer);
  }
  QStringList asked;
  std::function<void(const FeedAnswer&)> pending;
};

struct ScriptedView : UpdateView {
  [[nodiscard]] bool isOccupied() const override { return ++looks, occupied; }
  void beginWaiting(std::function<void()> givenUp) override { giveUp = std::move(givenUp); }
  void endWaiting() override { giveUp = nullptr; }
  void tell(const QString& title, const QString& message, const QString& details) override {
    told += title + u'|' + message + u'|' + details;
  }
  UpdateAnswer offer(const UpdateOffer& offer) override {
    offers.push_back(offer);
    if (whileOffered) whileOffered();
    return answer;
  }
  mutable int looks = 0;
  bool occupied = false;
  UpdateAnswer answer = UpdateAnswer::Later;
  std::function<void()> giveUp, whileOffered;
  QStringList told;
  std::vector<UpdateOffer> offers;
};

QByteArray feed(const QByteArray& version, const QByteArray& more = {}) {
  return R"(<rss xmlns:v="u"><channel><item><enclosure v:version=")" + version + "\"/>" + more +
         "</item></channel></rss>";
}

struct AppcastUpdaterTest : testing::Test {
  AppcastUpdaterTest() { settings::setValue(defaults, settings::feedAddress, u"https://a.test/feed"_s); }
  void answer(const QByteArray& bytes) {
    fetcher.answer({.outcome = FeedOutcome::Fetched, .feed = bytes, .reason = {}});
  }

  MemorySettings storage;
  UserDefaults defaults{storage};
  ScriptedFetcher fetcher;
  ScriptedView view;
  RecordingAddressOpener opener;
  AppcastUpdater updater{{.defaults = defaults,
                          .fetcher = fetcher,
                          .view = view,
                          .opener = opener,
                          .runningVersion = u"1.9"_s,
                          .homePage = QUrl(u"https://home.test/"_s),
                          .waitMilliseconds = 0,
                          .foregroundRetryMilliseconds = 1,
                          .backgroundRetryMilliseconds = 1}};
};

TEST_F(AppcastUpdaterTest, OffersANewerVersionAndDoesWhatIsAnswered) {
  const QByteArray page = "<link>https://xn--e1awd7f.test/two</link>";
  updater.checkForUpdatesInBackground();
  answer(feed("1.10", page + "<title>Ten</title><description>&lt;p&gt;All\u202Enew&lt;/p&gt;</description>"
                             "<pubDate>Tue, 03 Mar 2026 10:00:00 +0000</pubDate>"));
  ASSERT_EQ(view.offers.size(), 1U);
  const UpdateOffer expected{.version = u"1.10"_s,
                             .runningVersion = u"1.9"_s,
                             .published = QLocale().toString(QDate(2026, 3, 3), QLocale::LongFormat),
                             .news = u"All\\u{202E}new"_s,
                             .pageHost = u"xn--e1awd7f.test"_s};
  EXPECT_EQ(view.offers[0], expected);
  EXPECT_TRUE(opener.opened.empty());

  view.answer = UpdateAnswer::OpenPage;
  for (const QByteArray& link : {page, QByteArray(), QByteArray("<link>javascript:x</link>")}) {
    updater.checkForUpdates();
    answer(feed("2", link));
  }
  const std::vector<QUrl> opened = {QUrl(u"https://xn--e1awd7f.test/two"_s), QUrl(u"https://home.test/"_s),
                                    QUrl(u"https://home.test/"_s)};
  EXPECT_EQ(opener.opened, opened);
  EXPECT_TRUE(view.told.isEmpty());
  opener.answer = false;
  updater.checkForUpdates();
  answer(feed("2", page));
  EXPECT_EQ(view.told.size(), 1);
  EXPECT_TRUE(view.told.takeFirst().contains(u"https://xn--e1awd7f.test/two"_s));

  // A skipped one is told of to those who ask only; the next one to all.
  view.answer = UpdateAnswer::Skip;
  updater.checkForUpdates();
  answer(feed("2.0"));
  view.answer = UpdateAnswer::Later;
  for (const auto& [version, background, offers] :
       {std::tuple("2.0", true, 0), {"2", true, 0}, {"2.0", false, 1}, {"2.0.1", true, 1}}) {
    view.offers.clear();
    background ? updater.checkForUpdatesInBackground() : updater.checkForUpdates();
    answer(feed(version));
    EXPECT_EQ(view.offers.size(), static_cast<std::size_t>(offers)) << version;
  }
  EXPECT_EQ(fetcher.asked, QStringList(fetcher.asked.size(), u"https://a.test/feed"_s));
  EXPECT_TRUE(view.told.isEmpty());
}

TEST_F(AppcastUpdaterTest, SaysInTheForegroundWhatItCannotSayOtherwise) {
  struct Row {
    FeedAnswer answer;
    QString expected;
  };
  const auto fetched = [](const QByteArray& bytes) { return FeedAnswer{FeedOutcome::Fetched, bytes, {}}; };
  const auto failed = [](FeedOutcome outcome) { return FeedAnswer{outcome, {}, u"why\u202E"_s}; };
  const Row rows[] = {{fetched(feed("1.9.0")), u"Newest Version|Quorvane 1.9"_s},
                      {fetched(feed("1.2")), u"Newest"_s},
                      {fetched(feed("rubbish")), u"none that can be compared"_s},
                      {fetched("<html/>"), u"no list of versions"_s},
                      {failed(FeedOutcome::AddressRefused), u"not a safe one"_s},
                      {failed(FeedOutcome::Unreachable), u"cannot be reached"_s},
                      {failed(FeedOutcome::NotSecure), u"no safe connection"_s},
                      {failed(FeedOutcome::NotThere), u"no list of versions at"_s},
                      {failed(FeedOutcome::ServerFailed), u"at present"_s},
                      {failed(FeedOutcome::TooSlow), u"too long to answer"_s},
                      {failed(FeedOutcome::TooLarge), u"is too long"_s},
                      {failed(FeedOutcome::RedirectRefused), u"sends us on"_s},
                      {failed(FeedOutcome::Failed), u"missing or does not work"_s}};
  for (const Row& row : rows) {
    view.told.clear();
    updater.checkForUpdatesInBackground();
    fetcher.answer(row.answer);
    EXPECT_TRUE(view.told.isEmpty());
    updater.checkForUpdates();
    fetcher.answer(row.answer);
    ASSERT_EQ(view.told.size(), 1);
    EXPECT_TRUE(view.told[0].contains(row.expected)) << view.told[0].toStdString();
    const bool hasReason = !row.answer.reason.isEmpty();
    EXPECT_EQ(view.told[0].contains(u"https://a.test/feed\nwhy\\u{202E}"_s), hasReason);
  }
  EXPECT_TRUE(view.offers.empty());
}

TEST_F(AppcastUpdaterTest, IsOneCheckAtATimeAndCoversNothing) {
  updater.checkForUpdatesInBackground();
  QTest::qWait(5);
  EXPECT_FALSE(view.giveUp) << "in the background nothing says that it takes a while";
  updater.checkForUpdates();
  updater.checkForUpdates();
  updater.checkForUpdatesInBackground();
  EXPECT_EQ(fetcher.asked.size(), 1);
  ASSERT_TRUE(QTest::qWaitFor([&] { return static_cast<bool>(view.giveUp); }));
  std::exchange(view.giveUp, nullptr)();
  EXPECT_FALSE(fetcher.pending);

  // Over a sheet: who asked is told later, the background tries once more and gives up.
  const auto waitForLooks = [&](int looks) { EXPECT_TRUE(QTest::qWaitFor([&] { return view.looks >= looks; })); };
  view.occupied = true;
  updater.checkForUpdates();
  answer(feed("1.0"));
  waitForLooks(5);
  EXPECT_TRUE(view.told.isEmpty());
  view.occupied = false;
  EXPECT_TRUE(QTest::qWaitFor([&] { return view.told.size() == 1; }));
  view.occupied = true;
  view.looks = 0;
  updater.checkForUpdatesInBackground();
  answer(feed("2"));
  // Once it looks before it waits.
  waitForLooks(2);
  view.occupied = false;
  QTest::qWait(20);
  EXPECT_TRUE(view.offers.empty());
  view.occupied = true;
  updater.checkForUpdatesInBackground();
  answer(feed("2"));
  view.occupied = false;
  // While it is offered nobody is asked again.
  view.whileOffered = [&] { updater.checkForUpdates(), updater.checkForUpdatesInBackground(); };
  EXPECT_TRUE(QTest::qWaitFor([&] { return view.offers.size() == 1; }));
  EXPECT_EQ(fetcher.asked.size(), 4);
}

TEST(SheetUpdateView, ShowsSheetsAndTakesNoAnswerForLater) {
  HVWindow window;
  window.resize(900, 700);
  window.show();
  SheetUpdateView view(window);
  const auto press = [&](const QString& title) {
    for (auto* button : window.findChildren<QPushButton*>())
      if (button->isVisible() && button->text().remove(u'&') == title) return button->click();
    ADD_FAILURE() << title.toStdString();
    window.cancelSheets();
  };
  const UpdateOffer offer{
      .version = u"2"_s, .runningVersion = u"1"_s, .published = {}, .news = u"<b>bold</b>"_s, .pageHost = u"a.test"_s};
  const std::pair<std::function<void()>, UpdateAnswer> rows[] = {
      {[&] { press(u"Open Download Page"_s); }, UpdateAnswer::OpenPage},
      {[&] { QTest::keyClick(window.focusWidget(), Qt::Key_Return); }, UpdateAnswer::OpenPage},
      {[&] { press(u"Later"_s); }, UpdateAnswer::Later},
      {[&] { press(u"Skip This Version"_s); }, UpdateAnswer::Skip},
      {[&] { window.cancelSheets(); }, UpdateAnswer::Later},
      {[&] {
         EXPECT_EQ(window.findChild<MessageText*>()->toPlainText(), u"<b>bold</b>");
         EXPECT_TRUE(view.isOccupied());
         EXPECT_EQ(view.offer(offer), UpdateAnswer::Later) << "another one at a time";
         QTest::keyClick(window.findChild<MessageText*>(), Qt::Key_Escape);
       },
       UpdateAnswer::Later}};
  for (const auto& [act, answer] : rows) {
    QTimer::singleShot(0, &window, act);
    EXPECT_EQ(view.offer(offer), answer);
  }
  QTimer::singleShot(0, &window, [&] { press(u"Later"_s); });
  EXPECT_EQ(view.offer({.version = u"2"_s, .runningVersion = u"1"_s, .published = {}, .news = {}, .pageHost = {}}),
            UpdateAnswer::Later);

  bool givenUp = false;
  view.beginWaiting([&] { givenUp = true; });
  EXPECT_TRUE(window.isSheetUp());
  press(u"Cancel"_s);
  EXPECT_TRUE(QTest::qWaitFor([&] { return givenUp; }));
  view.endWaiting();
  EXPECT_FALSE(window.isSheetUp());
}

TEST(FeedProcess, PassesOnWhatTheProgramSaysAndEndsIt) {
  const auto run = [](const QString& program, const QString& address) {
    FeedProcess process(program);
    std::optional<FeedAnswer> answer;
    process.fetch(address, [&](const FeedAnswer& given) { answer = given; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }, 30'000));
    return answer.value_or(FeedAnswer());
  };
  EXPECT_EQ(run(u"/nowhere/feed"_s, u"x"_s).outcome, FeedOutcome::Failed);
  EXPECT_EQ(run(u"/bin/echo"_s, u"x"_s).outcome, FeedOutcome::Fetched);
  EXPECT_EQ(run(u"/bin/echo"_s, u"x"_s).feed, QByteArray("x 15\n"));
  EXPECT_EQ(run(u"/bin/false"_s, u"x"_s).outcome, FeedOutcome::Failed);
  EXPECT_EQ(run(u"/usr/bin/yes"_s, u"y"_s).outcome, FeedOutcome::TooLarge);
  // Cancelled or gone, it answers nobody, and its program ends.
  bool answered = false;
  auto process = std::make_unique<FeedProcess>(u"/bin/sleep"_s);
  process->fetch(u"100"_s, [&](const FeedAnswer&) { answered = true; });
  process->cancel();
  process->fetch(u"100"_s, [&](const FeedAnswer&) { answered = true; });
  process.reset();
  QTest::qWait(20);
  EXPECT_FALSE(answered);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "one is still running";
}

}  // namespace
}  // namespace quorvane
