// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/base/BoundedCache.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace quorvane {
namespace {

TEST(BoundedCache, RemembersTheLastFew) {
  BoundedCache<int, int> cache(2);
  int made = 0;
  const auto ask = [&](int key) {
    return cache.get(key, [&] {
      ++made;
      return key * 10;
    });
  };
  EXPECT_EQ(ask(1), 10);
  EXPECT_EQ(ask(2), 20);
  EXPECT_EQ(ask(1), 10);
  EXPECT_EQ(made, 2);
  EXPECT_EQ(ask(3), 30);  // 2 was asked for longest ago
  EXPECT_EQ(ask(1), 10);
  EXPECT_EQ(made, 3);
  EXPECT_EQ(ask(2), 20);
  EXPECT_EQ(made, 4);
}

TEST(BoundedCache, MakesAValueOnceHoweverManyAsk) {
  BoundedCache<int, int> cache(4);
  std::atomic<int> made = 0;
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([&] {
      for (int key = 0; key < 4; ++key) {
        const int value = cache.get(key, [&] {
          std::this_thread::yield();
          ++made;
          return key;
        });
        EXPECT_EQ(value, key);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(made, 4);
}

}  // namespace
}  // namespace quorvane
