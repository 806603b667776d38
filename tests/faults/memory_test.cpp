// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <sqlite3.h>

#include <memory>
#include <new>
#include <string>
#include <vector>

#include "base/errors.h"
#include "base/sql_value.h"
#include "exchange/json/json_value.h"
#include "faults/faults_fixture.h"
#include "store/fields.h"
#include "support/failing_memory.h"
#include "support/faulty_disk.h"

namespace tarnwick::testing {
namespace {

/// Every allocation of recording a result with a fresh connection, refused in turn.
class MemorySweep : public ::testing::TestWithParam<Allocator> {
 protected:
  static constexpr int kMost = 5000;

  /// False when there are fewer than `n` allocations.
  bool meets(int n) {
    bool struck = false;
    try {
      m data(used.folder.path(), machine.services());
      refuseAllocation(GetParam(), n);
      record(data);
      struck = allocationWasRefused();
    } catch (const std::bad_alloc&) {
      struck = allocationWasRefused();
    } catch (const DataAccessError& error) {
      struck = allocationWasRefused();
      EXPECT_NE(std::string(error.what()).find("memory"), std::string::npos) << error.what();
      // The statement may have come after much that is stored, or have stored nothing in any case.
      EXPECT_EQ(std::string(error.what()).find("othing was stored"), std::string::npos) << error.what();
    }
    return struck;
  }

  static void record(m& data) {
    constexpr std::int16_t kLarge = 2;
    Transaction whole = data.beginTransaction();
    EXPECT_TRUE(data.testSite(kLarge, UsedFolder::largePage(), 0, "")) << "the baseline was misread";
    data.setStatus(kLarge, true);
    data.updateStatusCounter(kLarge, true);
    whole.commit();
  }

  FaultyDisk disk;  // for its speed
  UsedFolder used;
  TestServices machine;
};

TEST_P(MemorySweep, NothingIsLostAndNoSiteIsTakenForDown) {
  const std::string before = used.valuables();
  int n = 1;
  int recordedBefore = 0;
  for (; n < kMost && meets(n); ++n) {
    SCOPED_TRACE("allocation " + std::to_string(n));
    const int recorded = used.recorded(2, true);
    ASSERT_LE(recorded, recordedBefore + 1);
    ASSERT_EQ(used.number("select success from sites where idSite = 2"), 7 + recorded) << "all of a record, or nothing";
    recordedBefore = recorded;
    ASSERT_EQ(used.falseAlarms(), "");
    ASSERT_EQ(used.valuables(), before);
  }
  EXPECT_GT(n, 10);
  EXPECT_LT(n, kMost);
  EXPECT_EQ(used.integrity(), "ok");
}

INSTANTIATE_TEST_SUITE_P(Faults, MemorySweep, ::testing::Values(Allocator::program, Allocator::database),
                         [](const auto& chosen) {
                           return chosen.param == Allocator::program ? std::string("Program") : std::string("Database");
                         });

template <typename Value>
class CopyingWithoutMemory : public ::testing::Test {};
using CopiedValues = ::testing::Types<SqlValue, JsonValue, FieldValue>;
TYPED_TEST_SUITE(CopyingWithoutMemory, CopiedValues);

TYPED_TEST(CopyingWithoutMemory, IsRefusedAndNoMore) {
  const TypeParam value(std::string(100, 'x'));
  std::vector<TypeParam> copies;
  copies.reserve(2);
  refuseAllocation(Allocator::program, 1);
  EXPECT_THROW(copies.push_back(value), std::bad_alloc);
  EXPECT_TRUE(allocationWasRefused());
  EXPECT_TRUE(copies.empty());
}

/// Lets SQLite have no more memory than it has now.
class NoMoreMemory {
 public:
  NoMoreMemory() { sqlite3_hard_heap_limit64(sqlite3_memory_used() + 2000); }
  ~NoMoreMemory() { sqlite3_hard_heap_limit64(0); }
  NoMoreMemory(const NoMoreMemory&) = delete;
  NoMoreMemory& operator=(const NoMoreMemory&) = delete;
};

TEST(LastingLackOfMemory, IsToldOnceAndTheRunGoesOn) {
  FaultyDisk disk;  // for its speed
  const UsedFolder used;
  std::unique_ptr<NoMoreMemory> lack;
  expectThatARunOutlives(
      used, [&](RunningProgram&) { lack = std::make_unique<NoMoreMemory>(); }, 1,
      [&](RunningProgram&) { lack.reset(); });
}

}  // namespace
}  // namespace tarnwick::testing
