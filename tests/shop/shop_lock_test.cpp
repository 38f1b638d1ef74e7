#include "shop/shop_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <thread>

#include "support/shop_folder.h"

namespace tarvane {
namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

constexpr milliseconds kLong{20'000};

class ShopLockTest : public testing::Test {
 protected:
  bool IsFree() const { return ShopLock::Take(folder_.path()).has_value(); }

  ShopFolder folder_;
};

TEST_F(ShopLockTest, OneProgramAtATime) {
  {
    auto lock = ShopLock::Take(folder_.path());
    ASSERT_TRUE(lock && lock->holds());
    EXPECT_FALSE(IsFree());
    const ShopLock moved = std::move(*lock);
    lock.reset();
    EXPECT_FALSE(IsFree()) << "it has moved, and still holds";
    const auto start = Clock::now();
    EXPECT_FALSE(ShopLock::Take(folder_.path(), milliseconds(120)));
    EXPECT_GE(Clock::now() - start, milliseconds(120));
  }
  EXPECT_TRUE(IsFree());
}

TEST_F(ShopLockTest, WaitsForTheOther) {
  auto lock = ShopLock::Take(folder_.path());
  std::thread other([&lock] {
    std::this_thread::sleep_for(milliseconds(100));
    lock.reset();
  });
  const auto start = Clock::now();
  EXPECT_TRUE(ShopLock::Take(folder_.path(), kLong));
  EXPECT_LT(Clock::now() - start, kLong);
  other.join();
}

// Runs in a process of its own, which takes the folder and is killed.
TEST_F(ShopLockTest, EndsWithItsProcessAndIsNotPassedOn) {
  int ready[2];
  ASSERT_EQ(::pipe(ready), 0);
  const pid_t holder = ::fork();
  if (holder == 0) {
    const auto lock = ShopLock::Take(folder_.path());
    const pid_t started = ::fork();
    // A program that outlives the one that started it.
    if (started == 0) ::execlp("sleep", "sleep", "30", nullptr);
    const auto told = ::write(ready[1], &started, sizeof started);
    ::pause();
    ::_exit(told > 0 ? 0 : 1);
  }
  pid_t started = 0;
  ASSERT_EQ(::read(ready[0], &started, sizeof started), static_cast<ssize_t>(sizeof started));
  EXPECT_FALSE(IsFree());
  ::kill(holder, SIGKILL);
  ::waitpid(holder, nullptr, 0);
  EXPECT_TRUE(ShopLock::Take(folder_.path(), milliseconds(5'000)));
  ::kill(started, SIGKILL);
  ::close(ready[0]);
  ::close(ready[1]);
}

TEST_F(ShopLockTest, WhatCannotBeLockedIsUsedWithout) {
  for (const auto& path : {folder_.path() / "none", folder_.jobs_file()}) {
    const auto lock = ShopLock::Take(path);
    ASSERT_TRUE(lock) << path;
    EXPECT_FALSE(lock->holds()) << path;
  }
}

}  // namespace
}  // namespace tarvane
