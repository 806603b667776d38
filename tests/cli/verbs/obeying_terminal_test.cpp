// SPDX-License-Identifier: MIT
// Nothing that a list, an argument or a file's name holds is a command to the terminal.
#include <algorithm>

#include "base/text.h"
#include "cli/support/tool_fixture.h"
#include "cli/verbs/verbs.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

/// Clears the screen in three ways, and reorders what follows.
const std::string kOdd = std::string(kOnWindows ? "" : "\x1b[2J\x07") + "\xc2\x9b" + "2J\xe2\x80\xae\x7f odd";
using Arguments = std::vector<std::string>;

/// What a terminal would obey in it, as an escape; empty for nothing.
std::string obeyedIn(std::string_view text) {
  while (!text.empty()) {
    const auto decoded = decodeUtf8(text);
    const std::string_view piece = text.substr(0, decoded ? decoded->length : 1);
    if (!decoded || (movesTheCursor(decoded->character) && piece != "\n")) {
      return visibleText(piece);
    }
    text.remove_prefix(piece.size());
  }
  return {};
}

class ObeyingTerminal : public ToolFixture {
 protected:
  void runHarmlessly(const Arguments& arguments) {
    run(arguments);
    EXPECT_EQ(obeyedIn(err), "") << ::testing::PrintToString(arguments);
    if (terminal.isTerminal || std::ranges::count(arguments, "--json") > 0) {
      EXPECT_EQ(obeyedIn(out), "") << ::testing::PrintToString(arguments);
    }
    complained_ += err;
  }

  /// Every text of the list, the log and the settings is odd, and so is the name of the folder.
  void makeAllOdd() {
    server.respond("/page", {.body = kOdd});
    addSite(server.url("/page"));
    ASSERT_EQ(run({"check"}), exit_status::ok) << err;
    addSite("http://b/");
    folder.execute("insert into postVars (idPostVars, idSite, pname, pvalue) values (1, 1, '" + kOdd + "', '" + kOdd +
                   "')");
    folder.execute("update sites set method = '" + kOdd + "', email = '" + kOdd + "', sUserName = '" + kOdd +
                   "', sPassWord = '" + kOdd + "', lastChecked = '" + kOdd + "', content_runtime = '" + kOdd +
                   "', status = 0");
    folder.execute("update sites set url = 'http://" + kOdd + "' where idSite = 2");
    folder.execute("update control set email = '" + kOdd + "', smtp = '" + kOdd + "', audio = '" + kOdd +
                   "', program = '" + kOdd + "'");
    folder.execute("update log set url = '" + kOdd + "', errDescription = '" + kOdd + "', content = '" + kOdd + "'");
    odd_ = folder.file(kOdd);
    std::filesystem::create_directories(pathOf(odd_));
    std::filesystem::copy(pathOf(folder.file("tarnwick.mdb")), pathOf(odd_ + "/tarnwick.mdb"));
  }

  std::string odd_;
  std::string complained_;
};

/// Files that are named without a folder come there.
class WorkIn {
 public:
  explicit WorkIn(const std::string& folder) { std::filesystem::current_path(pathOf(folder)); }
  ~WorkIn() { std::filesystem::current_path(before_); }
  WorkIn(const WorkIn&) = delete;
  WorkIn& operator=(const WorkIn&) = delete;

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
};

TEST_F(ObeyingTerminal, IsToldNothingOfWhatIsStored) {
  makeAllOdd();
  for (const bool isTerminal : {false, true}) {
    // Without the live line, which is the tool's own.
    terminal = {.isTerminal = isTerminal, .isDumb = true};
    for (const Arguments& verb : std::vector<Arguments>{{"sites"},
                                                        {"sites", "--down"},
                                                        {"site", "1", "--show-password"},
                                                        {"site", "2"},
                                                        {"post", "1"},
                                                        {"baseline", "1"},
                                                        {"diff", "1"},
                                                        {"log"},
                                                        {"settings"},
                                                        {"option", "all"},
                                                        {"option", "1"},
                                                        {"check", "2"},
                                                        {"check", "--due"},
                                                        {"report"},
                                                        {"counters", "clear"},
                                                        {"compact"},
                                                        {"compact", "--yes"},
                                                        {"export", odd_ + "/list.json"},
                                                        {"export", odd_ + "/tarnwick.mdb", "--format", "csv"},
                                                        {"export", "-", "--format", "csv", "--baselines"},
                                                        {"export", "-", "--format", "json", "--baselines"},
                                                        {"import", odd_ + "/list.json", "--dry-run"},
                                                        {"import", odd_ + "/list.json"},
                                                        {"set", "1", "--interval", "5"},
                                                        {"delete", "1"}}) {
      for (const bool json : {false, true}) {
        Arguments arguments = verb;
        arguments.insert(arguments.end(), {"--folder", odd_});
        if (json) {
          arguments.emplace_back("--json");
        }
        runHarmlessly(arguments);
      }
    }
  }
  EXPECT_THAT(complained_, HasSubstr("\\xc2\\x9b2J"));
}

TEST_F(ObeyingTerminal, IsToldNothingOfWhatIsAskedFor) {
  const WorkIn apart(folder.path());
  for (const Verb& verb : allVerbs(fields)) {
    Arguments known{verb.name};
    Arguments odd{verb.name};
    for (const VerbOption& option : verb.options) {
      if (!option.name.starts_with("--")) {
        known.emplace_back("1");
        odd.push_back(kOdd);
      }
    }
    const auto with = [](Arguments arguments, const Arguments& more) {
      arguments.insert(arguments.end(), more.begin(), more.end());
      return arguments;
    };
    const Arguments elsewhere{"--folder", folder.file("no " + kOdd)};
    const std::string oddOption = "--" + kOdd;
    for (const Arguments& more : std::vector<Arguments>{
             {}, {kOdd}, {oddOption}, {oddOption + "=" + kOdd}, {"-" + kOdd}, {"--folder=" + kOdd}, {"--folder", ""}}) {
      runHarmlessly(with(with(known, elsewhere), more));
      runHarmlessly(with(with(odd, elsewhere), more));
    }
    for (const VerbOption& option : verb.options) {
      if (option.name.starts_with("--")) {
        runHarmlessly(with(with(known, elsewhere), {option.name + "=" + kOdd}));
        runHarmlessly(with(with(known, elsewhere), {option.name, kOdd}));
        if (verb.name != "run") {
          runHarmlessly(with(known, {option.name + "=" + kOdd}));
        }
      }
    }
  }
  runHarmlessly({kOdd});
  runHarmlessly({"--" + kOdd, "sites"});
  EXPECT_THAT(complained_, HasSubstr("\\xc2\\x9b2J"));
}

TEST_F(ObeyingTerminal, IsAskedAboutNothingThatItObeys) {
  std::ostringstream written;
  std::ostringstream asked;
  Console(written, asked, {}).ask("Delete " + kOdd + "?");
  EXPECT_EQ(obeyedIn(asked.str()), "");
}

TEST_F(ObeyingTerminal, AFileHasEveryByteOfACsvListAndATerminalItsText) {
  addSite("http://a/");
  folder.execute("update sites set sUserName = '" + kOdd + "', sPassWord = cast(x'ff410a42' as text)");
  ASSERT_EQ(run({"export", "-", "--format", "csv"}), exit_status::ok) << err;
  const std::string file = out;
  EXPECT_THAT(file, HasSubstr(kOdd));
  terminal.isTerminal = true;
  ASSERT_EQ(run({"export", "-", "--format", "csv"}), exit_status::ok) << err;
  EXPECT_EQ(obeyedIn(out), "");
  EXPECT_THAT(out, HasSubstr("2J\\xe2\\x80\\xae\\x7f odd"));
  EXPECT_EQ(std::ranges::count(out, '\n'), std::ranges::count(file, '\n'));
  terminal.isTerminal = false;
  input = file;
  EXPECT_EQ(run({"import", "-", "--format", "csv", "--dry-run"}), exit_status::ok) << err;
  EXPECT_THAT(out, HasSubstr("1 unchanged"));
}

}  // namespace
}  // namespace tarnwick::testing
