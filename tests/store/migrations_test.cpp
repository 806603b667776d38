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
        "where m.type in ('table', 'view') order by m.name, c.cid");
  }

  /// What lies on the tables of the sites, word for word.
  std::string objects() {
    return folder.queryRows(
        "select sql from sqlite_master where tbl_name in ('sites', 'siteRows', 'pagePieces') order by name");
  }

  ProgramFolder folder;
  HandClock clock;
  SqliteConnections databases{clock};
};

TEST_P(MigrationsTest, EveryFormIsBroughtToTheOneOfAFreshList) {
  const std::string fresh = tables();
  const std::string freshObjects = objects();
  layForm(GetParam());
  { const Database opened(folder.path(), databases); }
  EXPECT_EQ(form(), std::to_string(kFormOfTables));
  EXPECT_EQ(tables(), fresh);
  EXPECT_EQ(objects(), freshObjects);
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

struct Forms : MigrationsTest {
  /// Whether the pages lie apart, once the program has opened the list.
  bool isDense() {
    { const Database opened(folder.path(), databases); }
    EXPECT_EQ(form(), std::to_string(kFormOfTables));
    EXPECT_EQ(folder.queryText("pragma integrity_check"), "ok");
    return folder.queryText("select count(*) from sqlite_master where name = 'siteRows'") == "1";
  }
  std::string sites() { return folder.queryRows("select * from sites order by idSite"); }
};

TEST_F(Forms, EveryPageSurvivesItsMove) {
  layForm(1);
  folder.execute(
      "insert into sites (idSite, url, content_compare, content_runtime) values (2, 'same', 'a', 'a'), "
      "(3, 'changed', 'it''s', cast(x'6100620d0a' as text)), (4, 'empty', '', ''), (5, 'bytes', x'00ff', 'x'), "
      "(-3, 'below', 'm', 'n'), (40000, 'beyond', null, 'n'), (7, 'no baseline', '', '11:refused')");
  const std::string before = sites();
  EXPECT_TRUE(isDense());
  EXPECT_EQ(sites(), before);
  EXPECT_EQ(folder.queryText("select count(*) from pagePieces"), "9");
}

TEST_F(Forms, AListThatAnotherToolHasExtendedStaysAsItIs) {
  for (const char* extension :
       {"alter table sites add column note text", "create index by_url on sites (url)",
        "create trigger t after update on sites begin select 1; end",
        "alter table sites add column host text generated always as (lower(url)) virtual",
        "drop index sites_list; create index sites_list on sites (url)", "create table t (s references sites (idSite))",
        "insert into sites (idSite) values (1152921504606846975)",
        "drop index sites_list; alter table sites rename to s; create table sites as select * from s"}) {
    layForm(1);
    folder.execute(extension);
    const std::string before = sites();
    EXPECT_FALSE(isDense()) << extension;
    EXPECT_EQ(sites(), before);
  }
}

TEST_F(Forms, AListWithValuesThatTodaysTablesDoNotTakeStaysAsItIs) {
  layForm(1);
  folder.laySitesAsOneTable();
  folder.execute("pragma user_version = 1; update sites set tInterval = 'ten'");
  const std::string before = sites();
  EXPECT_FALSE(isDense());
  EXPECT_EQ(sites(), before);
  folder.execute("update sites set tInterval = 10; pragma user_version = 1");
  EXPECT_TRUE(isDense());
}

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
