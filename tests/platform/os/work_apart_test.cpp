// SPDX-License-Identifier: MIT
#include "platform/os/work_apart.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

#include "support/system.h"

namespace tarnwick::testing {
namespace {

TEST(WorkApart, HandsOverEveryByte) {
  const std::string large(3'000'000, '\0');
  int changed = 0;
  WorkApart work([&] {
    ++changed;
    return large + "end";
  });
  work.wait();
  EXPECT_EQ(work.handle(), -1);
  EXPECT_EQ(work.result(), large + "end");
}

TEST(WorkApart, ABadEndIsNotThisProcesss) {
  SKIP_ON_WINDOWS("There the work is done in this process.");
  int changed = 0;
  WorkApart crash([&]() -> std::string {
    ++changed;
    std::abort();
  });
  crash.wait();
  EXPECT_EQ(crash.result(), std::nullopt);
  EXPECT_EQ(changed, 0);
  WorkApart raising([]() -> std::string { throw std::runtime_error("no"); });
  raising.wait();
  EXPECT_EQ(raising.result(), std::nullopt);
}

TEST(WorkApart, CanBeHeldToSomeMemory) {
  SKIP_ON_WINDOWS("There the work is done in this process.");
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  GTEST_SKIP() << "This build needs more memory than any limit leaves.";
#endif
  const auto taking = [](std::size_t bytes) {
    return [bytes]() -> std::string {
      WorkApart::limitMemory(std::size_t{64} << 20U);
      return std::to_string(std::string(bytes, 'x').size());
    };
  };
  WorkApart modest(taking(1 << 20U));
  modest.wait();
  EXPECT_EQ(modest.result(), "1048576");
  WorkApart greedy(taking(std::size_t{512} << 20U));
  greedy.wait();
  EXPECT_EQ(greedy.result(), std::nullopt);
  EXPECT_EQ(std::string(std::size_t{512} << 20U, 'x').size(), std::size_t{512} << 20U) << "others are not held to it";
}

TEST(WorkApart, CanBeHeldToSomeTime) {
  SKIP_ON_WINDOWS("There the work is done in this process.");
  WorkApart endless([]() -> std::string {
    WorkApart::limitTime(std::chrono::seconds(1));
    for (volatile bool on = true; on;) {
    }
    return {};
  });
  endless.wait();
  EXPECT_EQ(endless.result(), std::nullopt);
}

TEST(WorkApart, IsEndedWithItsObject) {
  SKIP_ON_WINDOWS("There the work is done at once.");
  WorkApart endless([]() -> std::string {
    for (volatile bool on = true; on;) {
    }
    return {};
  });
  EXPECT_FALSE(endless.take());
  EXPECT_GE(endless.handle(), 0);
}

}  // namespace
}  // namespace tarnwick::testing
