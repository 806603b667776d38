// SPDX-License-Identifier: MIT
#include "store/migrations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <memory>

#include "base/errors.h"
#include "store/site_options.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
namespace fs = std::filesystem;

/// A list as a program of its day left it. tests/store/forms has one of each form of the tables.
struct MigrationsTest : ::testing::TestWithParam<std::int64_t> {
  void layForm(std::int64_t form) {
    fs::copy_file(fs::path(TARNWICK_FORMS) / ("form" + std::to_string(form) + ".mdb"), folder.databasePath(),
                  fs::copy_options::overwrite_existing);
    fs::permissions(folder.databasePath(), fs::perms::owner_read | fs::perms::owner_write);
  }
  std::string form() { return folder.queryText("pragma user_version"); }
  /// The tables' definitions, without what blanks and comments say.
  std::string tables() {
    return folder.queryRows(
        "select m.name, c.name, c.type, c.pk from sqlite_master m join pragma_table_info(m.name) c "
        "where m.type = 'table' order by m.name, c.cid");
  }

  ProgramFolder folder;
  HandClock clock;
  SqliteConnections databases{clock};
};

TEST_P(MigrationsTest, EveryFormIsBroughtToTheOneOfAFreshList) {
  const std::string fresh = tables();
  layForm(GetParam());
  { const Database opened(folder.path(), databases); }
  EXPECT_EQ(form(), std::to_string(kFormOfTables));
  EXPECT_EQ(tables(), fresh);
  EXPECT_EQ(folder.queryText("select url from sites where idSite = 1"), "http://www.example.org/");
  EXPECT_EQ(folder.queryText("pragma integrity_check"), "ok");
}

TEST_P(MigrationsTest, OpeningItTwiceChangesNothingMore) {
  layForm(GetParam());
  { const Database opened(folder.path(), databases); }
  const std::string once = folder.queryRows("select * from siteOptions") + tables();
  { const Database opened(folder.path(), databases); }
  EXPECT_EQ(folder.queryRows("select * from siteOptions") + tables(), once);
}

TEST_P(MigrationsTest, AListThatCannotBeWrittenNowIsReadAsItIs) {
  layForm(GetParam());
  const auto before = form();
  const auto writer = databases.makeSqlConnection();
  writer->open("Data Source=" + folder.databasePath() + ";");
  writer->begin();
  {
    Database opened(folder.path(), databases);
    SiteOptions options(opened, programOptions());
    EXPECT_EQ(options.optionsInForce().valueOf(7, "mailLimit").has_value(), GetParam() > 0);
    EXPECT_FALSE(opened.query("select url from sites where idSite = 1")->eof());
  }
  EXPECT_EQ(form(), before);
}

INSTANTIATE_TEST_SUITE_P(Forms, MigrationsTest, ::testing::Range(std::int64_t{0}, kFormOfTables + 1));

struct Forms : MigrationsTest {};

TEST_F(Forms, AnOriginalListKeepsItsBehaviour) {
  layForm(0);
  Database opened(folder.path(), databases);
  for (const OptionField& option : programOptions()) {
    EXPECT_EQ(SiteOptions(opened, programOptions()).optionsInForce().valueOf(1, option.name), std::nullopt);
  }
}

TEST_F(Forms, AFreshListHasWhatIsRecommendedAndNothingElse) {
  const ProgramFolder fresh(ProgramFolder::Options::recommended);
  Database opened(fresh.path(), databases);
  OptionValues recommended;
  for (const OptionField& option : programOptions()) {
    if (!option.recommended.empty()) {
      recommended.emplace(option.name, option.recommended);
    }
  }
  EXPECT_EQ(SiteOptions(opened, programOptions()).options(kAllSites), recommended);
}

TEST_F(Forms, ANewerOneIsRefusedAndBothAreNamed) {
  folder.execute("pragma user_version = " + std::to_string(kFormOfTables + 4));
  try {
    const Database opened(folder.path(), databases);
    FAIL() << "It was opened.";
  } catch (const DataAccessError& error) {
    EXPECT_THAT(error.what(),
                AllOf(HasSubstr("form " + std::to_string(kFormOfTables + 4)),
                      HasSubstr("up to " + std::to_string(kFormOfTables)), HasSubstr(folder.databasePath())));
  }
  EXPECT_EQ(form(), std::to_string(kFormOfTables + 4));
}

TEST_F(Forms, AListThatAnotherProgramWritesToIsBroughtUpToDateLater) {
  layForm(0);
  {
    const auto other = databases.makeSqlConnection();
    other->open("Data Source=" + folder.databasePath() + ";");
    other->begin();
    Database opened(folder.path(), databases);
    EXPECT_FALSE(opened.query("select url from sites")->eof());
    other->rollback();
    SiteOptions(opened, programOptions()).setOption(kAllSites, "newSites", "at once");
  }
  EXPECT_EQ(form(), std::to_string(kFormOfTables));
  EXPECT_EQ(folder.queryRows("select * from siteOptions"), "0|newSites|at once\n");
}

}  // namespace
}  // namespace tarnwick::testing
