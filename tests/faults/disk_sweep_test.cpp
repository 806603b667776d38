// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "base/errors.h"
#include "faults/faults_fixture.h"
#include "support/faulty_disk.h"

namespace tarnwick::testing {
namespace {

using Operation = FaultyDisk::Operation;
using Failure = FaultyDisk::Failure;

struct Fault {
  const char* name;
  Operation operation;
  Failure failure;
  /// How many ticks it lasts; 0 for a single operation.
  int ticks;
};

void PrintTo(const Fault& fault, std::ostream* out) { *out << fault.name; }

/// Makes every operation of a run's first pass fail in turn, each in a fresh program, until all of them have had it.
class DiskSweep : public ::testing::TestWithParam<Fault> {
 protected:
  static constexpr int kMost = 400;

  /// One program that meets the fault at its `n`-th operation; false when there are fewer.
  bool meets(int n) {
    FaultyDisk disk;
    const UsedFolder used;
    const Fault fault = GetParam();
    int failures = 0;
    expectThatARunOutlives(
        used,
        [&](RunningProgram&) {
          disk.failAt(fault.operation, fault.failure, n, fault.ticks > 0 ? FaultyDisk::kForEver : 1);
        },
        fault.ticks,
        [&](RunningProgram&) {
          failures = disk.failures();
          disk.heal();
        });
    return failures > 0;
  }
};

TEST_P(DiskSweep, NothingIsLostAndTheRunGoesOn) {
  int n = 1;
  for (; n <= kMost; ++n) {
    SCOPED_TRACE("operation " + std::to_string(n));
    if (!meets(n) || HasFailure()) {
      break;
    }
  }
  EXPECT_GT(n, 1) << "no such operation was ever made";
  EXPECT_LT(n, kMost);
  RecordProperty("operations", n - 1);
}

INSTANTIATE_TEST_SUITE_P(Faults, DiskSweep,
                         ::testing::Values(Fault{"ReadFails", Operation::read, Failure::broken, 0},
                                           Fault{"ReadFailsForAWhile", Operation::read, Failure::broken, 5},
                                           Fault{"WriteFails", Operation::write, Failure::broken, 0},
                                           Fault{"WriteFailsForAWhile", Operation::write, Failure::broken, 5},
                                           Fault{"DiskIsFull", Operation::write, Failure::full, 0},
                                           Fault{"DiskIsFullForAWhile", Operation::write, Failure::full, 5},
                                           Fault{"LockFails", Operation::lock, Failure::broken, 0},
                                           Fault{"LockFailsForAWhile", Operation::lock, Failure::broken, 5}),
                         [](const auto& chosen) { return std::string(chosen.param.name); });

/// The same for every statement, made to fail before it reaches the database.
bool meetsAtStatement(int n, int ticks) {
  FaultyDisk disk;  // for its speed
  const UsedFolder used;
  int seen = 0;
  expectThatARunOutlives(
      used,
      [&](RunningProgram& running) {
        running.databases.watch.before = [&seen, n, ticks](std::string_view statement) {
          ++seen;
          if (ticks > 0 ? seen >= n : seen == n) {
            throw DataAccessError("The test makes this statement fail.", std::string(statement.substr(0, 100)));
          }
        };
      },
      ticks, [](RunningProgram& running) { running.databases.watch.before = {}; });
  return seen >= n;
}

TEST(StatementSweep, NothingIsLostWhicheverStatementFails) {
  for (int n = 1; meetsAtStatement(n, 0) && !::testing::Test::HasFailure(); ++n) {
    SCOPED_TRACE("statement " + std::to_string(n));
  }
}

TEST(StatementSweep, NothingIsLostFromWhicheverStatementOnAllFailForAWhile) {
  for (int n = 1; meetsAtStatement(n, 5) && !::testing::Test::HasFailure(); ++n) {
    SCOPED_TRACE("statement " + std::to_string(n));
  }
}

/// A file that cannot be opened for a broken disk is as it was, and can be opened afterwards.
TEST(OpeningSweep, AFailedOpeningLeavesTheFileAsItWas) {
  for (const Operation operation : {Operation::open, Operation::read, Operation::write, Operation::lock,
                                    Operation::sharedMemory, Operation::truncate}) {
    FaultyDisk disk;
    const UsedFolder used;
    const std::string before = used.valuables();
    TestServices machine;
    int n = 0;
    do {
      SCOPED_TRACE(std::to_string(static_cast<int>(operation)) + " at " + std::to_string(++n));
      disk.failAt(operation, Failure::broken, n);
      try {
        const m data(used.folder.path(), machine.services());
      } catch (const DataAccessError& error) {
        EXPECT_NE(std::string(error.what()).find(used.folder.databasePath()), std::string::npos) << error.what();
      }
      disk.heal();
      ASSERT_EQ(used.valuables(), before);
      ASSERT_EQ(used.integrity(), "ok");
    } while (disk.failures() > 0 && n < 200);
    EXPECT_LT(n, 200);
  }
}

/// What did not come from the disk must not stay in memory as if it were the record, nor be written back.
TEST(ShortReads, APageThatDidNotComeIsNotKept) {
  for (int n = 1; n < 100; ++n) {
    SCOPED_TRACE("read " + std::to_string(n));
    FaultyDisk disk;
    const UsedFolder used;
    const std::string before = used.valuables();
    {
      TestServices machine;
      m data(used.folder.path(), machine.services());
      disk.failAt(Operation::read, Failure::shortRead, n);
      try {
        data.getArraySites(0);
        data.getContentCompare(1);
        data.getPostVars(3);
        data.setControl("email", "");
      } catch (const DataAccessError&) {
        // told; which of them it is depends on the page
      }
      const bool struck = disk.failures() > 0;
      disk.heal();
      EXPECT_EQ(data.getArraySites(0).lastRow(), 4u);
      EXPECT_EQ(data.getContentCompare(1), "a page that stays");
      EXPECT_EQ(data.getPostVars(3).lastRow(), 1u);
      if (!struck) {
        EXPECT_GT(n, 1);
        break;
      }
    }
    ASSERT_EQ(used.valuables(), before);
    ASSERT_EQ(used.integrity(), "ok");
  }
}

}  // namespace
}  // namespace tarnwick::testing
