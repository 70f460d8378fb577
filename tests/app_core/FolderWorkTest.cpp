// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/FolderWork.h"

#include <gmock/gmock.h>
#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <future>

#include "app/core/ApplyFailure.h"
#include "app/core/ScriptedPrompts.h"
#include "foundation/base/Text.h"
#include "support/BrandingFixture.h"

namespace quorvane {
namespace {

using namespace std::chrono_literals;
using Mode = WorkQueue::Mode;
using Importance = WorkQueue::Importance;

/// Runs the event loop until `isDone`, or fails.
void spinUntil(const std::function<bool()>& isDone) {
  const auto end = std::chrono::steady_clock::now() + 20s;
  while (!isDone() && std::chrono::steady_clock::now() < end)
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
  ASSERT_TRUE(isDone());
}

class FolderWorkTest : public test::BrandingFixture {};
INSTANTIATE_TEST_SUITE_P(Attributes, FolderWorkTest, ::testing::Values(AppleDoubleForkStore::Attributes::Use));

TEST_P(FolderWorkTest, LoadsAppliesAndReverts) {
  for (const Mode mode : {Mode::AtOnce, Mode::InBackground}) {
    FolderWork work(services, mode);
    std::vector<std::string> answers;
    std::optional<LoadedFolder> before;
    std::optional<LoadedFolder> branded;
    const auto note = [&](const char* what) {
      return [&answers, what](const Result<BrandingResult>& result) {
        answers.push_back(what + std::string(result && *result == BrandingOutcome::Changed ? " done" : " failed"));
      };
    };
    const auto keep = [](std::optional<LoadedFolder>& where) {
      return [&where](Result<LoadedFolder> loaded) { where = std::move(loaded).toOptional(); };
    };
    work.load(folder, keep(before));
    if (mode == Mode::InBackground) spinUntil([&] { return before.has_value(); });
    work.apply([] { return test::plainImage(Qt::red); }, folder, note("apply"));
    work.load(folder, keep(branded));
    work.apply([] { return std::optional<Image>(); }, folder, note("nothing"));
    work.apply([] { return test::plainImage(Qt::red); }, tree / "missing", note("nowhere"));
    if (mode == Mode::InBackground) spinUntil([&] { return !work.isBusy(); });
    EXPECT_THAT(answers, ::testing::ElementsAre("apply done", "nothing failed", "nowhere failed"));
    ASSERT_TRUE(before && branded);
    EXPECT_FALSE(before->backup);
    EXPECT_TRUE(branded->backup);
    EXPECT_EQ(branded->icon.size(), (Size{512, 512}));
    work.revert(folder, note("revert"));
    work.reset(folder, note("reset"));
    // No event loop runs: the end of the program waits, and the second notice is given.
    notices.noted.clear();
    EXPECT_TRUE(work.finish(20s));
    EXPECT_EQ(answers.back(), "reset done");
    EXPECT_FALSE(work.isBusy());
    EXPECT_TRUE(shownIcon().empty());
  }
}

TEST_P(FolderWorkTest, RefusesFilesAndOnlyTheLastLoadIsAnswered) {
  test::writeFile(tree / "file", std::string("x"));
  FolderWork work(services);
  std::vector<std::filesystem::path> answered;
  const auto load = [&](const std::filesystem::path& path) {
    work.load(path, [&answered, path](const Result<LoadedFolder>& loaded) {
      answered.push_back(loaded ? path : loaded.error().where());
    });
  };
  for (int i = 0; i < 5; ++i) load(folder);
  load(tree / "file");
  spinUntil([&] { return !work.isBusy(); });
  EXPECT_THAT(answered, ::testing::ElementsAre(tree / "file"));
  load(folder);
  work.cancelLoad();
  EXPECT_FALSE(work.isBusy());
}

TEST(WorkQueue, DropsWhatMayBeDroppedAndWaitsForTheRest) {
  std::vector<int> done;
  std::vector<bool> busy;
  std::promise<void> begun;
  std::promise<void> gate;
  const auto held = gate.get_future().share();
  const auto job = [&done](int number) {
    return [&done, number] { return [&done, number] { done.push_back(number); }; };
  };
  {
    WorkQueue queue(Mode::InBackground);
    queue.setBusyListener([&](bool isBusy) { busy.push_back(isBusy); });
    queue.add(Importance::MayBeDropped, [&, held] {
      begun.set_value();
      held.wait();
      return job(1)();
    });
    begun.get_future().wait();
    const auto kept = queue.add(Importance::MustBeDone, job(2));
    queue.cancel(kept);
    queue.cancel(queue.add(Importance::MayBeDropped, job(3)));
    queue.add(Importance::MayBeDropped, job(4));
    queue.addLater(1h, [&done] { done.push_back(5); });
    // Something does not answer: the caller learns so, in bounded time.
    EXPECT_FALSE(queue.finish(10ms));
    gate.set_value();
  }
  // The delayed one leaves its mark where it runs, the others where they are delivered.
  EXPECT_THAT(done, ::testing::UnorderedElementsAre(2, 5));
  EXPECT_THAT(busy, ::testing::ElementsAre(true, false));
}

TEST(ApplyFailure, SaysWhatWhereWhyAndWhatToDo) {
  const std::filesystem::path folder = "/home/me/%1 %2\n";
  const struct {
    Error error;
    const char* why;
    const char* advice;
  } rows[] = {
      {Error::system(EACCES, "cannot write"), "Permission denied", "write permission"},
      {Error::system(EROFS, "cannot write"), "Read-only file system", "write protection"},
      {Error::system(ENOSPC, "cannot write"), "No space left", "no room left"},
      {Error::system(ENOENT, "cannot open").at(folder), "%1 %2\\x0A", "no longer there"},
      {Error::system(EXDEV, "cannot rename"), "cross-device", "try again"},
      {Error::refused("it is a link").at(folder / "Icon\r"), "Icon\\x0D: it is a link", "in the way"},
      {Error::tooLarge("is too large"), "is too large", "another picture"},
      {Error::broken("promise"), "promise", "report"},
  };
  for (const auto& row : rows) {
    const QString reason = QString::fromStdString(printable(row.error.message()));
    const QString text = applyFailureDetails(folder, row.error, reason);
    EXPECT_TRUE(text.contains(QLatin1String("folder /home/me/%1 %2\\x0A could not"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QLatin1String(row.why))) << text.toStdString();
    EXPECT_TRUE(text.section(QLatin1String("\n\n"), 2).contains(QLatin1String(row.advice))) << text.toStdString();
    EXPECT_NE(text, revertFailureDetails(folder, row.error, reason));
  }
}

TEST(ScriptedPrompts, AnswerOneAtATime) {
  ScriptedPrompts prompts;
  prompts.answers = {UserPrompts::alternateReturn};
  const QString title = QStringLiteral("T");
  prompts.whileShown = [&](const Prompt&) {
    EXPECT_EQ(prompts.runPromptSheetWithTitle(title, title, title), UserPrompts::otherReturn);
  };
  EXPECT_EQ(prompts.runPromptSheetWithTitle(title, title, title, title), UserPrompts::alternateReturn);
  prompts.runMessageSheetWithTitle(title, QStringLiteral("100 %1"));
  ASSERT_EQ(prompts.shown.size(), 2U);
  EXPECT_EQ(prompts.shown[1].message, QStringLiteral("100 %1"));
  EXPECT_EQ(prompts.shown[1].kind, Prompt::Kind::Message);
}

}  // namespace
}  // namespace quorvane
