// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "cli/support/tool_fixture.h"
#include "platform/sqlite/sqlite_connection.h"
#include "store/database.h"
#include "support/whole_match.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class UpkeepVerbs : public ToolFixture {
 protected:
  std::string contents(const std::string& name) const {
    std::ifstream file(folder.file(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
};

using ReportVerb = UpkeepVerbs;

TEST_F(ReportVerb, WritesTheReportAndPrintsItsPath) {
  folder.execute("insert into log (url, status, dateStamp) values ('http://a/', 1, '2024-05-17 11:00:00')");
  EXPECT_EQ(run({"report"}), exit_status::ok) << err;
  EXPECT_EQ(out, folder.path() + "/reports/report.html\n");
  EXPECT_THAT(contents("reports/report.html"), HasSubstr("http://a/"));
}

TEST_F(ReportVerb, PrintsItsPathAsJson) {
  EXPECT_EQ(runJson({"report", "--json"}), Json({{"path", folder.path() + "/reports/report.html"}}));
}

TEST_F(ReportVerb, SaysWhatIsWrongWithTheReportsFolder) {
  std::filesystem::create_directory(folder.file("reports"));
  EXPECT_EQ(run({"report"}), exit_status::failed);
  EXPECT_EQ(out, "");
  EXPECT_THAT(err, HasSubstr("green.jpg"));
}

using CompactVerb = UpkeepVerbs;

TEST_F(CompactVerb, ShrinksTheDatabaseAndPrintsTheSizes) {
  addSite("http://a/");
  folder.execute("update sites set content_runtime = zeroblob(1000000)");
  folder.execute("update sites set content_runtime = null");
  const auto before = std::filesystem::file_size(folder.databasePath());
  const Json sizes = runJson({"compact", "--json"});
  EXPECT_EQ(sizes["before"], before);
  EXPECT_EQ(sizes["after"], std::filesystem::file_size(folder.databasePath()));
  EXPECT_LT(sizes["after"], 150000);
  EXPECT_EQ(std::filesystem::file_size(folder.file("backup.mdb")), before);
  EXPECT_EQ(column(1, "url"), "http://a/");
}

TEST_F(CompactVerb, PrintsTheSizesForPeople) {
  EXPECT_EQ(run({"compact"}), exit_status::ok) << err;
  EXPECT_THAT(out, WholeMatch("The database is compacted: [0-9]+ bytes before, [0-9]+ bytes after\\. .*\n"));
}

TEST_F(CompactVerb, FailsWithTheReasonWhileAnotherProgramHasTheDatabaseOpen) {
  SqliteConnections others(machine.clock());
  Database open(folder.path(), others);
  open.execute("update control set timeout = 31");
  EXPECT_EQ(run({"compact", "--json"}), exit_status::failed);
  EXPECT_EQ(out, "");
  EXPECT_THAT(err, StartsWith("tarnwickctl: Aborting compact: The database"));
  EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << err;
}

using RestoreVerb = UpkeepVerbs;

TEST_F(RestoreVerb, PutsACopyInThePlaceOfADamagedList) {
  addSite("http://a/");
  std::filesystem::copy_file(folder.databasePath(), folder.file("copy.mdb"));
  std::ofstream(folder.databasePath(), std::ios::trunc) << "damaged";
  EXPECT_EQ(run({"sites"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("tarnwickctl restore backup.mdb"));
  EXPECT_EQ(run({"restore", folder.file("copy.mdb")}), exit_status::ok) << err;
  EXPECT_THAT(out, HasSubstr("with 1 site. The one before is kept as " + folder.path() + "/replaced-2024-05-17-"));
  EXPECT_EQ(column(1, "url"), "http://a/");
}

TEST_F(RestoreVerb, PrintsWhatIsKeptAsJson) {
  std::filesystem::copy_file(folder.databasePath(), folder.file("copy.mdb"));
  const Json first = runJson({"restore", folder.file("copy.mdb"), "--json"});
  EXPECT_EQ(first["sites"], 0);
  EXPECT_TRUE(std::filesystem::exists(first["kept"].get<std::string>()));
  std::filesystem::remove(folder.databasePath());
  EXPECT_EQ(runJson({"restore", folder.file("copy.mdb"), "--json"}), Json({{"sites", 0}, {"kept", nullptr}}));
}

TEST_F(RestoreVerb, IsRefusedWhileARunIsOn) {
  std::filesystem::copy_file(folder.databasePath(), folder.file("copy.mdb"));
  const auto lock = machine.services().runLocks.makeRunLock(folder.path());
  lock->take();
  EXPECT_EQ(run({"restore", folder.file("copy.mdb")}), exit_status::failed);
  EXPECT_EQ(out, "");
  EXPECT_THAT(err, HasSubstr("A run is on in this folder: "));
  EXPECT_THAT(err, HasSubstr("would go on with the list that is to be replaced. Stop that run first"));
  EXPECT_THAT(err, HasSubstr("Nothing was changed."));
  EXPECT_THAT(err, Not(HasSubstr("second run")));
}

using InitVerb = UpkeepVerbs;

TEST_F(InitVerb, LaysAFreshListIntoANamedFolderOnce) {
  std::filesystem::create_directories(folder.file("fresh"));
  std::filesystem::copy_file(folder.databasePath(), folder.file("fresh/tarnwick.mdb"));
  std::ofstream(folder.file("fresh/email.txt")) << "template";
  const std::string named = folder.file("named");
  EXPECT_EQ(run({"init", "--folder", named}), exit_status::ok) << err;
  EXPECT_EQ(out, "A fresh list lies in " + named + ".\n");
  EXPECT_EQ(run({"--folder", named, "add", "http://a/"}), exit_status::ok) << err;
  EXPECT_EQ(runJson({"init", "--folder", named, "--json"}), Json({{"folder", named}, {"laid", false}}));
  EXPECT_EQ(run({"--folder", named, "sites"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("http://a/"));
  std::filesystem::remove(named + "/tarnwick.mdb");
  EXPECT_EQ(run({"init", "--folder", named}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("has had a list"));
  EXPECT_FALSE(std::filesystem::exists(named + "/tarnwick.mdb"));
}

TEST_F(InitVerb, SaysThatThereIsNothingToLay) {
  EXPECT_EQ(run({"init", "--folder", folder.file("named")}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("install it again"));
  EXPECT_FALSE(std::filesystem::exists(folder.file("named")));
}

TEST_F(InitVerb, LeavesAListThatIsThere) {
  EXPECT_EQ(run({"init"}), exit_status::ok) << err;
  EXPECT_THAT(out, HasSubstr("already"));
}

}  // namespace
}  // namespace tarnwick::testing
