// SPDX-License-Identifier: MIT
#include "cli/verbs/tool.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <streambuf>

#include "cli/support/tool_fixture.h"
#include "cli/verbs/command_line.h"
#include "cli/verbs/verbs.h"

namespace tarnwick::testing {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

const std::vector<const char*> kVerbs = {"sites",   "site",     "add",    "set",      "delete", "post",      "baseline",
                                         "diff",    "counters", "check",  "settings", "log",    "report",    "compact",
                                         "restore", "export",   "import", "init",     "run",    "completion"};

/// Takes nothing, for a reason that the system has.
class FullBuffer final : public std::streambuf {
 public:
  explicit FullBuffer(int cause) : cause_(cause) {}

 protected:
  int_type overflow(int_type) override {
    errno = cause_;
    return traits_type::eof();
  }

 private:
  int cause_;
};

class ToolItself : public ToolFixture {
 protected:
  int runOnOutputThatFails(int cause, const std::vector<std::string>& arguments) {
    FullBuffer full(cause);
    std::ostream written(&full);
    std::ostringstream complaints;
    Console console(written, complaints, {});
    const int status = runTool(arguments, folder.path(), machine.services(), console);
    err = complaints.str();
    return status;
  }
};

TEST_F(ToolItself, RemovesWhatAKilledCompactionHasLeft) {
  const std::vector<std::string> left{"backup.mdb.new", "tarnwick.mdb.new", "replaced.mdb.new", "temp.mdb-journal"};
  for (const std::string& name : left) {
    std::ofstream(folder.file(name)) << "passwords";
  }
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  for (const std::string& name : left) {
    EXPECT_FALSE(std::filesystem::exists(folder.file(name))) << name;
  }
}

TEST_F(ToolItself, FailsWhenItsOutputCannotBeWritten) {
  addPage("/a", "alpha");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  for (const auto& arguments : std::vector<std::vector<std::string>>{{"sites"},
                                                                     {"site", "1"},
                                                                     {"check"},
                                                                     {"check", "--json"},
                                                                     {"baseline", "1"},
                                                                     {"log"},
                                                                     {"log", "--json"},
                                                                     {"settings"},
                                                                     {"--help"},
                                                                     {"add", "http://b/"}}) {
    EXPECT_EQ(runOnOutputThatFails(ENOSPC, arguments), exit_status::failed) << arguments.front();
    EXPECT_EQ(err,
              "tarnwickctl: Standard output took not all of it: " + std::generic_category().message(ENOSPC) + ".\n")
        << arguments.front();
  }
}

TEST_F(ToolItself, MindsNoReaderThatHasSeenEnough) {
  addPage("/a", "alpha");
  ASSERT_EQ(run({"post", "1", "add", "name", "value"}), exit_status::ok) << err;
  ASSERT_EQ(run({"check"}), exit_status::ok);
  for (const auto& arguments : std::vector<std::vector<std::string>>{{"--help"},
                                                                     {"export", "--help"},
                                                                     {"check"},
                                                                     {"check", "--json"},
                                                                     {"sites"},
                                                                     {"sites", "--json"},
                                                                     {"site", "1"},
                                                                     {"site", "1", "--json"},
                                                                     {"log"},
                                                                     {"log", "--json"},
                                                                     {"post", "1"},
                                                                     {"post", "1", "--json"},
                                                                     {"baseline", "1"},
                                                                     {"baseline", "1", "--json"},
                                                                     {"diff", "1"},
                                                                     {"diff", "1", "--json"},
                                                                     {"settings"},
                                                                     {"settings", "--json"},
                                                                     {"option", "all"},
                                                                     {"option", "all", "--json"},
                                                                     {"report"},
                                                                     {"export", "-", "--format", "csv"},
                                                                     {"export", "-", "--format", "json"},
                                                                     {"counters", "clear"}}) {
    EXPECT_EQ(runOnOutputThatFails(EPIPE, arguments), exit_status::ok) << ::testing::PrintToString(arguments);
    EXPECT_EQ(err, "") << ::testing::PrintToString(arguments);
  }
}

TEST_F(ToolItself, KnowsWhyItsOutputFailedWhateverFailsBehindIt) {
  // One line is lost; what the system says of it is overwritten by what follows.
  FullBuffer gone(EPIPE);
  std::ostream written(&gone);
  std::ostringstream complaints;
  Console console(written, complaints, {});
  console.out() << "a line\n";
  errno = ENOSPC;
  console.out() << "a line\n";
  EXPECT_EQ(console.flush(), std::errc::broken_pipe);
  EXPECT_FALSE(console.good());
  console.writeOn();
  EXPECT_TRUE(console.good());
}

TEST_F(ToolItself, TakesAnEmptyValueForOneInEveryVerb) {
  const std::vector<Verb> verbs = allVerbs(fields);
  std::size_t seen = 0;
  for (const Verb& verb : verbs) {
    for (const VerbOption& option : verb.options) {
      if (!option.name.starts_with("--")) {
        continue;
      }
      ++seen;
      // The next argument is asked for, or what is wrong is told of the empty value.
      const CommandLine line = understand({verb.name, option.name + "=", "--help"}, verbs);
      const bool anyText = option.oneOf.empty() && (std::holds_alternative<std::string*>(option.target) ||
                                                    std::holds_alternative<std::optional<std::string>*>(option.target));
      if (anyText) {
        EXPECT_NE(line.text, "") << verb.name << " " << option.name;
      } else if (line.text.empty()) {
        ASSERT_FALSE(line.complaints.empty()) << verb.name << " " << option.name;
        EXPECT_THAT(line.complaints.front(), Not(HasSubstr("--help"))) << verb.name << " " << option.name;
        EXPECT_THAT(line.complaints.front(), HasSubstr(option.name)) << verb.name;
      }
    }
    EXPECT_NE(understand({verb.name, "--folder=", "--help"}, verbs).text, "") << verb.name;
  }
  EXPECT_GT(seen, 40U);
}

TEST_F(ToolItself, HelpsInTheUsersLanguage) {
  const Wording wording(std::vector<Wording::Entry>{{"List the sites", "Die Seiten zeigen"},
                                                    {"Usage", "Aufruf"},
                                                    {"Verbs", "Verben"},
                                                    {"Print JSON", "JSON ausgeben"},
                                                    {"all of them", "alle"}});
  const std::vector<Verb> verbs = allVerbs(fields);
  EXPECT_THAT(
      understand({"--help"}, verbs, wording).text,
      ::testing::AllOf(HasSubstr("Aufruf: tarnwickctl"), HasSubstr("\nVerben:\n"), HasSubstr(" Die Seiten zeigen\n")));
  EXPECT_THAT(understand({"sites", "--help"}, verbs, wording).text,
              ::testing::AllOf(HasSubstr(" JSON ausgeben\n"), HasSubstr("  tarnwickctl sites\n      alle\n")));
}

TEST_F(ToolItself, StoresAnEmptyValueAndNotTheNextArgument) {
  ASSERT_EQ(run({"add", "http://a/", "--password=", "--inactive"}), exit_status::ok) << err;
  EXPECT_EQ(column(1, "sPassWord"), "");
  EXPECT_EQ(column(1, "active"), "0");
  ASSERT_EQ(run({"add", "http://b/", "--user=", "--password=secret"}), exit_status::ok) << err;
  EXPECT_EQ(column(2, "sUserName"), "");
  EXPECT_EQ(column(2, "sPassWord"), "secret");
  EXPECT_EQ(run({"set", "1", "--url=", "--inactive"}), exit_status::failed);
  EXPECT_EQ(column(1, "url"), "http://a/");
}

TEST_F(ToolItself, TakesForAValueWhatOnlyLooksLikeAnOption) {
  ASSERT_EQ(run({"add", "http://a/", "--user", "--password=", "--password", "--"}), exit_status::ok) << err;
  EXPECT_EQ(column(1, "sUserName"), "--password=");
  EXPECT_EQ(column(1, "sPassWord"), "--");
}

TEST_F(ToolItself, WritesNothingThatATerminalObeys) {
  const std::string odd =
      "http://a/\xc2\x9b"
      "2J\xe2\x80\xae\xd8\x9c\xe2\x81\xa9\xc3\xa9";
  addSite("http://b/");
  folder.execute("update sites set url = '" + odd + "', sUserName = '" + odd + "'");
  for (const auto& arguments : std::vector<std::vector<std::string>>{
           {"sites", "--json"}, {"site", "1", "--json"}, {"export", "-", "--format", "json"}}) {
    const Json json = runJson(arguments);
    EXPECT_THAT(out, HasSubstr("http://a/\\u009b2J\\u202e\\u061c\\u2069\xc3\xa9"));
    EXPECT_THAT(json.dump(), HasSubstr(odd)) << "the value is the same";
    for (const char* obeyed : {"\xc2\x9b", "\xe2\x80\xae", "\xd8\x9c", "\xe2\x81\xa9"}) {
      EXPECT_THAT(out, Not(HasSubstr(obeyed)));
    }
  }
  EXPECT_EQ(run({"import", folder.file("\xc2\x9b"
                                       "2J\x1b[2J.json")}),
            exit_status::failed);
  EXPECT_THAT(err, HasSubstr("\\xc2\\x9b2J\\x1b[2J.json"));
  EXPECT_THAT(err, Not(HasSubstr("\xc2\x9b")));
  EXPECT_THAT(err, Not(HasSubstr("\x1b")));
}

TEST_F(ToolItself, NamesAWordThatIsNoVerbWhereverItStands) {
  for (const auto& arguments : std::vector<std::vector<std::string>>{
           {"frob"}, {"--folder", folder.path(), "frob"}, {"frob", "--folder", folder.path()}}) {
    EXPECT_EQ(run(arguments), exit_status::failed);
    EXPECT_EQ(err, "tarnwickctl: There is no verb \"frob\".\ntarnwickctl: See: tarnwickctl --help\n");
  }
  EXPECT_EQ(run({"--frob"}), exit_status::failed);
  EXPECT_THAT(err, StartsWith("tarnwickctl: There is no option \"--frob\"."));
}

TEST_F(ToolItself, AsksForAVerb) {
  EXPECT_EQ(run({}), exit_status::failed);
  EXPECT_THAT(err, StartsWith("tarnwickctl: A verb is missing"));
}

TEST_F(ToolItself, SaysWhichNumbersAreIds) {
  for (const auto& arguments :
       std::vector<std::vector<std::string>>{{"site", "99999"}, {"delete", "99999"}, {"check", "99999"}}) {
    EXPECT_EQ(run(arguments), exit_status::failed);
    EXPECT_THAT(err, HasSubstr("\"99999\" is no id: ids are whole numbers from 1 to 32767"));
  }
}

TEST_F(ToolItself, TakesTheFolderBeforeTheVerbAndBehindIt) {
  const ProgramFolder other;
  other.execute("insert into sites (idSite, url) values (7, 'http://other/')");
  EXPECT_EQ(run({"sites", "--folder", other.path()}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("http://other/"));
  EXPECT_EQ(run({"--folder", other.path() + "/", "sites"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("http://other/"));
  EXPECT_EQ(run({"sites", "--folder", ""}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("--folder names no folder"));
}

TEST_F(ToolItself, TellsOfAWrongFolderWhereItLiesAndHowToNameAnother) {
  EXPECT_EQ(run({"--folder", "no such folder", "sites"}), exit_status::failed);
  EXPECT_THAT(err, Not(HasSubstr("database no such folder")));
  EXPECT_THAT(err, HasSubstr("/no such folder/tarnwick.mdb is missing."));
  EXPECT_THAT(err, EndsWith("Or name the right folder with --folder.\n"));
}

TEST_F(ToolItself, EveryHelpNamesTheFolderAndFitsATerminal) {
  for (const char* verb : kVerbs) {
    EXPECT_EQ(run({verb, "--help"}), exit_status::ok) << verb;
    EXPECT_THAT(out, HasSubstr("  --folder DIR ")) << verb;
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);) {
      EXPECT_LE(characterCount(line), 100U) << verb << ": " << line;
    }
  }
}

TEST_F(ToolItself, ListsAddBeforeSet) {
  EXPECT_EQ(run({"--help"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("\nVerbs:\n"));
  EXPECT_LT(out.find("\n  add "), out.find("\n  set "));
}

}  // namespace
}  // namespace tarnwick::testing
