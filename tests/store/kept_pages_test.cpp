// SPDX-License-Identifier: MIT
#include "store/kept_pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "platform/local_files.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

constexpr std::uint64_t kGibibyte = std::uint64_t{1} << 30U;

class KeptPagesTest : public DataFixture {
 protected:
  KeptPagesTest() {
    for (int row = 0; row < 3; ++row) {
      addFailure();
    }
  }
  void addFailure() {
    database.execute("insert into log (idSite,status,content) values (1,false,'" + std::string(60, 'x') + "')");
  }
  std::string lengths() { return folder.queryRows("select length(content) from log order by rowid"); }
  /// As a check does it that fails: `kept`, or taken back at its end.
  void failOnce(std::uint64_t most, bool kept = true) {
    Transaction whole(database);
    pages.forgetLogSize();
    addFailure();
    pages.keepLogWithin(most);
    if (kept) {
      whole.commit();
      pages.logSizeKept();
    }
  }

  LocalFiles files;
  KeptPages pages{database, files};
};

TEST_F(KeptPagesTest, TheOldestAreEmptiedUntilTheRestIsWithinTheBound) {
  failOnce(130);
  EXPECT_EQ(lengths(), "0\n0\n60\n60\n");
  failOnce(130);
  EXPECT_EQ(lengths(), "0\n0\n0\n60\n60\n");
}

TEST_F(KeptPagesTest, WhatWasEmptiedInATransactionThatIsTakenBackIsEmptiedByTheNext) {
  failOnce(250);
  failOnce(130, false);
  EXPECT_EQ(lengths(), "60\n60\n60\n60\n");
  failOnce(130, false);
  failOnce(250);
  EXPECT_EQ(lengths(), "0\n60\n60\n60\n60\n");
}

TEST_F(KeptPagesTest, WhatAnotherProgramHasEmptiedIsNotEmptiedAgain) {
  failOnce(250);
  folder.execute("update log set content = '' where rowid <= 2");
  failOnce(190);
  EXPECT_EQ(lengths(), "0\n0\n60\n60\n60\n");
}

TEST_F(KeptPagesTest, ALogIsNotReadWhoseFileIsFarSmallerThanItsBound) {
  failOnce(kGibibyte);
  EXPECT_TRUE(std::ranges::none_of(watch().boundStatements,
                                   [](const std::string& sql) { return sql.find("from log") != std::string::npos; }));
}

TEST_F(KeptPagesTest, ALogThatWasClearedIsCountedAnew) {
  failOnce(130);
  database.execute("delete from log");
  failOnce(130);
  failOnce(130);
  failOnce(130);
  EXPECT_EQ(lengths(), "0\n60\n60\n");
}

}  // namespace
}  // namespace tarnwick::testing
