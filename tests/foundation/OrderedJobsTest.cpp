// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/OrderedJobs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <climits>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

namespace quorvane {
namespace {

using namespace std::chrono_literals;

/// Gives numbered jobs; each sleeps by its number, so that they end in another order than they came in.
class Numbered {
 public:
  explicit Numbered(int count) : _count(count) {}

  void run(int threads, int stopAfter = INT_MAX) {
    runInOrder(threads, {.next = [this] { return next(); },
                         .shouldStop = [this, stopAfter] { return static_cast<int>(done.load()) >= stopAfter; },
                         .tick = [this] { ++ticks; }});
  }

  std::vector<int> reported;
  std::atomic<std::size_t> done = 0;
  std::atomic<std::size_t> mostBegun = 0;
  std::vector<int> inOneFolder;
  int ticks = 0;

 private:
  std::optional<Job> next() {
    if (_given == _count) return std::nullopt;
    const int number = _given++;
    mostBegun = std::max(mostBegun.load(), static_cast<std::size_t>(_given) - _reportedCount);
    // Every third works on one and the same folder.
    const bool isShared = number % 3 == 0;
    return Job{.work = [this, number, isShared]() -> Job::Report {
                 if (isShared) {
                   EXPECT_EQ(_inShared++, 0) << "two jobs in one folder";
                 }
                 std::this_thread::sleep_for(std::chrono::microseconds(number % 7 * 200));
                 if (isShared) {
                   inOneFolder.push_back(number);
                   --_inShared;
                 }
                 ++done;
                 return [this, number] {
                   reported.push_back(number);
                   ++_reportedCount;
                 };
               },
               .holds = isShared ? std::optional(FolderIdentity{1, 2})
                                 : std::optional(FolderIdentity{2, static_cast<ino_t>(number)})};
  }

  int _count;
  int _given = 0;
  std::atomic<std::size_t> _reportedCount = 0;
  std::atomic<int> _inShared = 0;
};

TEST(OrderedJobs, AreReportedInTheOrderInWhichTheyCame) {
  for (const int threads : {1, 2, 5}) {
    Numbered jobs(300);
    jobs.run(threads);
    ASSERT_EQ(jobs.reported.size(), 300U);
    EXPECT_TRUE(std::ranges::is_sorted(jobs.reported));
    EXPECT_TRUE(std::ranges::is_sorted(jobs.inOneFolder));
    EXPECT_EQ(jobs.inOneFolder.size(), 100U);
    EXPECT_LE(jobs.mostBegun, static_cast<std::size_t>(8 * threads + 1)) << "not held back";
    EXPECT_GT(jobs.ticks, 0);
  }
}

TEST(OrderedJobs, ThatAreBegunAreReportedEvenWhenNoMoreShallBe) {
  for (const int threads : {1, 3}) {
    Numbered jobs(1000);
    jobs.run(threads, 20);
    EXPECT_EQ(jobs.reported.size(), jobs.done);
    EXPECT_GE(jobs.done, 20U);
    EXPECT_LE(jobs.done, 20U + static_cast<std::size_t>(threads));
    EXPECT_TRUE(std::ranges::is_sorted(jobs.reported));
  }
}

}  // namespace
}  // namespace quorvane
