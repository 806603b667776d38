#include "platform/os/heap.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <string>
#include <vector>

namespace tarnwick::testing {
namespace {

constexpr std::size_t kMiB = 1024 * 1024;

/// See statm in proc(5).
std::size_t residentMiB() {
  std::ifstream file("/proc/self/statm");
  std::size_t size = 0;
  std::size_t resident = 0;
  file >> size >> resident;
  return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) / kMiB;
}

void useLargeBlocks() {
  std::vector<std::string> blocks;
  for (int i = 0; i < 6; ++i) {
    blocks.emplace_back(16 * kMiB, 'x');
  }
}

TEST(Heap, FreedBlocksAreKeptUntilTheyAreGivenBack) {
#if defined(__SANITIZE_ADDRESS__) || !defined(__GLIBC__)
  GTEST_SKIP() << "This is not the heap of the C library.";
#endif
  const std::size_t before = residentMiB();
  keepFreedMemory();
  useLargeBlocks();
  EXPECT_GT(residentMiB(), before + 48);
  giveBackFreedMemory();
  EXPECT_LT(residentMiB(), before + 16);
  useLargeBlocks();
  EXPECT_LT(residentMiB(), before + 16);
}

}  // namespace
}  // namespace tarnwick::testing
