// SPDX-License-Identifier: MIT
#include <random>

#include "exchange/foreign/list_reading.h"
#include "foreign_fixture.h"
#include "program/m.h"
#include "support/program_folder.h"
#include "support/test_services.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// The pages of jet_writer.py.
std::string everyByte(std::size_t length) {
  std::string bytes;
  for (std::size_t i = 0; i < length; ++i) {
    bytes += static_cast<char>((i * 7 + i / 251) % 256);
  }
  return bytes;
}

const std::string kOddPage = "<html>caf\xe9 \x80 \x81\x8d\x8f\x90\x9d end</html>\r\n";

class JetFiles : public ::testing::TestWithParam<const char*> {
 protected:
  static std::string bytes() { return bytesOfFile(std::string(JET_FILES) + GetParam()); }
  static ReadList read(const std::string& file) {
    return ListReading(
               "list.mdb", "", [&] { return file; }, programFields())
        .finish();
  }
  /// Reads the file and imports it; the lines of what was not taken over.
  std::vector<std::string> import(ImportOptions how = {}) {
    ReadList file = read(bytes());
    EXPECT_EQ(file.word, "jet");
    m data(folder.path(), machine.services());
    ListFaults faults;
    Transaction whole(data.database());
    const ImportPlan plan = planAnyList(data, file.list, how, faults);
    EXPECT_TRUE(faults.none());
    carryOut(data, plan, file.list);
    whole.commit();
    std::vector<std::string> notes;
    for (const ForeignNote& note : file.list.content.notes) {
      notes.push_back(lineOf(note));
    }
    return notes;
  }
  std::string text(const std::string& what) { return folder.queryText("select " + what); }

  ProgramFolder folder;
  TestServices machine;
};

TEST_P(JetFiles, ComeWithEveryByteOfTheirPages) {
  EXPECT_THAT(import(), ElementsAre("not taken over: 1 POST variable of a site that is not there",
                                    "not taken over: the table \"test\""));
  EXPECT_EQ(text("content_compare from sites where idSite = 1"), kOddPage);
  EXPECT_EQ(text("content_compare from sites where idSite = 2"), everyByte(3000)) << "on two pages";
  EXPECT_EQ(text("content_runtime from sites where idSite = 2"), everyByte(1500)) << "on one";
  EXPECT_EQ(text("content_compare from sites where idSite = 7"), everyByte(1'100'000)) << "on hundreds";
  EXPECT_EQ(text("content_runtime from sites where idSite = 9"), "x") << "in the row itself";
  for (int row = 0; row < 700; row += 53) {
    EXPECT_EQ(text("content from log where dateStamp = datetime('1999-12-31 23:59:58', '+" + std::to_string(row) +
                   " minutes')"),
              everyByte(static_cast<std::size_t>(row) * 5));
  }
}

TEST_P(JetFiles, ComeWithSitesVariablesSettingsAndLog) {
  import();
  EXPECT_EQ(folder.queryRows("select idSite, method, active, tInterval, lastChecked, alertEmail, email, sUserName, "
                             "sPassWord, status, success, failure from sites"),
            "1|GET|1|10|1999-12-31 23:59:58|0||||1|1275|3\n"
            "2|POST|1|5|1999-12-31 23:59:58|1|a@b.cd|me|s\u00e9cret|0|7|8\n"
            "5|GET|0|60|NULL|0||||NULL|NULL|NULL\n"
            "7|GET|1|1|1999-12-31 23:59:58|0||||1|1|0\n"
            "9|GET|1|1|NULL|0||||NULL|0|0\n");
  EXPECT_EQ(text("url from sites where idSite = 2"), "http://localhost/two?x='y'");
  EXPECT_EQ(text("url from sites where idSite = 5"), "http://localhost/" + std::string(230, 'u'));
  EXPECT_EQ(folder.queryRows("select idSite, pname, pvalue from postVars"), "2|user|me & you\n2|na\u00efve|\n");
  EXPECT_EQ(folder.queryRows("select email, smtp, program, timeout, clogs, creports, cemail from control"),
            "from@b.cd|mail.b.cd|C:\\Tools\\down.exe ~url~|30|1|0|1\n");
  EXPECT_EQ(folder.queryRows("select count(*), min(errCode), sum(status), max(errDescription) from log"),
            "700|-12007|350|not found\n");
}

TEST_P(JetFiles, LeaveSettingsAndLogOfAListInUseAlone) {
  folder.execute("insert into sites (idSite, url) values (1, 'http://mine/'); update control set smtp = 'mine'");
  EXPECT_THAT(import({.asNew = true}),
              ::testing::Contains("not taken over: the settings and the 700 results of the log, which only an empty "
                                  "list takes"));
  EXPECT_EQ(text("smtp from control"), "mine");
  EXPECT_EQ(text("count(*) from log"), "0");
  EXPECT_EQ(text("count(*) from sites"), "6");
  EXPECT_EQ(text("url from sites where idSite = 1"), "http://mine/");
  EXPECT_EQ(text("success from sites where idSite = 2"), "1275") << "of the first that was added";
}

TEST_P(JetFiles, ThatAreCutShortAreTold) {
  const std::string whole = bytes();
  for (const std::size_t size : {whole.size() / 2, std::size_t{20000}, std::size_t{5000}, std::size_t{100}}) {
    const ReadList list = read(whole.substr(0, size));
    ASSERT_FALSE(list.faults.none()) << size;
    EXPECT_THAT(list.faults.kept().front().text, HasSubstr("damaged")) << size;
    EXPECT_TRUE(list.list.content.sites.empty());
  }
  EXPECT_THAT(ListReading(
                  "a", "jet", [] { return std::string("text"); }, programFields())
                  .finish()
                  .faults.kept()
                  .front()
                  .text,
              HasSubstr("this is no Jet database"));
}

TEST_P(JetFiles, ThatAreDamagedAnywhereEndNothingElse) {
  const std::string whole = bytes();
  std::mt19937 random(7);
  for (int i = 0; i < 25; ++i) {
    std::string damaged = whole;
    for (int changes = 0; changes < 30; ++changes) {
      // Most of it stands in the first pages: definitions, maps, the catalog.
      const std::size_t end = changes % 3 == 0 ? damaged.size() : std::size_t{60000};
      damaged[random() % end] = static_cast<char>(random());
    }
    const ReadList list = read(damaged);
    EXPECT_TRUE(list.faults.none() || list.list.content.sites.empty());
  }
}

INSTANTIATE_TEST_SUITE_P(Versions, JetFiles, ::testing::Values("jet3.mdb", "jet4.mdb"),
                         [](const auto& chosen) { return std::string(chosen.param).substr(0, 4); });

}  // namespace
}  // namespace tarnwick::testing
