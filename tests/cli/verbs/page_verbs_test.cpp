// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>

#include "base/base64.h"
#include "cli/support/tool_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

const std::string kOddPage("a\0\xff\r\n'\x1b[31m\n", 12);

class BaselineVerb : public ToolFixture {
 protected:
  std::string fileOf(const std::string& bytes) {
    const std::string path = folder.file("page.html");
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }
};

TEST_F(BaselineVerb, IsShownByteForByte) {
  addPage("/a", kOddPage);
  ASSERT_EQ(run({"check"}), exit_status::ok);
  EXPECT_EQ(run({"baseline", "1"}), exit_status::ok);
  EXPECT_EQ(out, kOddPage);
  EXPECT_EQ(run({"baseline", "1", "show"}), exit_status::ok);
  EXPECT_EQ(out, kOddPage);
}

TEST_F(BaselineVerb, ActsOnNothingWhenItIsShownOnATerminal) {
  addPage("/a", kOddPage);
  ASSERT_EQ(run({"check"}), exit_status::ok);
  terminal = {.isTerminal = true};
  EXPECT_EQ(run({"baseline", "1"}), exit_status::ok);
  EXPECT_EQ(out, "a\\x00\\xff\\r\n'\\x1b[31m\n");
}

TEST_F(BaselineVerb, IsSetFromAFileByteForByte) {
  addPage("/a", "alpha");
  EXPECT_EQ(run({"baseline", "1", "set", fileOf(kOddPage)}), exit_status::ok);
  EXPECT_EQ(column(1, "content_compare"), kOddPage);
}

TEST_F(BaselineVerb, IsSetFromStandardInput) {
  addPage("/a", "alpha");
  input = kOddPage;
  EXPECT_EQ(run({"baseline", "1", "set", "-"}), exit_status::ok);
  EXPECT_EQ(column(1, "content_compare"), kOddPage);
}

TEST_F(BaselineVerb, IsLoadedFromTheUrl) {
  addPage("/a", "alpha");
  EXPECT_EQ(run({"baseline", "1", "load"}), exit_status::ok);
  EXPECT_EQ(column(1, "content_compare"), "alpha");
  EXPECT_THAT(out, HasSubstr("5 bytes"));
  EXPECT_EQ(column(1, "lastChecked"), "NULL");
}

TEST_F(BaselineVerb, StaysWhenThePageCannotBeFetched) {
  addSite("http://127.0.0.1:1/");
  folder.execute("update sites set content_compare = 'kept'");
  EXPECT_EQ(run({"baseline", "1", "load"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("refused"));
  EXPECT_EQ(column(1, "content_compare"), "kept");
}

TEST_F(BaselineVerb, StaysWhenThePageIsEmpty) {
  addPage("/a", "");
  folder.execute("update sites set content_compare = 'kept'");
  EXPECT_EQ(run({"baseline", "1", "load"}), exit_status::failed);
  EXPECT_EQ(column(1, "content_compare"), "kept");
}

TEST_F(BaselineVerb, IsCleared) {
  addPage("/a", "alpha");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  EXPECT_EQ(run({"baseline", "1", "clear"}), exit_status::ok);
  EXPECT_EQ(column(1, "content_compare"), "");
  EXPECT_EQ(run({"baseline", "1"}), exit_status::ok);
  EXPECT_EQ(out, "");
  EXPECT_THAT(err, HasSubstr("no baseline yet"));
}

TEST_F(BaselineVerb, BecomesTheLatestPageWhenThatIsAccepted) {
  addPage("/a", "alpha");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  server.respond("/a", {.body = kOddPage});
  ASSERT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(run({"baseline", "1", "accept"}), exit_status::ok);
  EXPECT_EQ(column(1, "content_compare"), kOddPage);
  EXPECT_EQ(run({"check"}), exit_status::ok);
}

TEST_F(BaselineVerb, DoesNotAcceptAFailedFetchUnlessForced) {
  addPage("/a", "alpha");
  ASSERT_EQ(run({"check"}), exit_status::ok);
  folder.execute("update sites set url = 'http://127.0.0.1:1/'");
  ASSERT_EQ(run({"check"}), exit_status::down);
  EXPECT_EQ(run({"baseline", "1", "accept"}), exit_status::failed);
  EXPECT_EQ(column(1, "content_compare"), "alpha");
  EXPECT_EQ(run({"baseline", "1", "accept", "--force"}), exit_status::ok);
  EXPECT_THAT(column(1, "content_compare"), HasSubstr("11:"));
}

TEST_F(BaselineVerb, RefusesWhatCannotBeDone) {
  addPage("/a", "alpha");
  EXPECT_EQ(run({"baseline", "1", "accept"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("tarnwickctl check 1"));
  EXPECT_EQ(run({"baseline", "1", "set"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("set FILE"));
  EXPECT_EQ(run({"baseline", "1", "set", folder.file("missing")}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("missing"));
  EXPECT_EQ(run({"baseline", "1", "set", fileOf("")}), exit_status::failed);
  EXPECT_EQ(run({"baseline", "1", "load", "file"}), exit_status::failed);
  EXPECT_EQ(run({"baseline", "1", "eat"}), exit_status::failed);
  EXPECT_EQ(run({"baseline", "2"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("no site 2"));
  EXPECT_EQ(run({"baseline"}), exit_status::failed);
  EXPECT_EQ(column(1, "content_compare"), "NULL");
}

TEST_F(BaselineVerb, PrintsJson) {
  addPage("/a", kOddPage);
  ASSERT_EQ(run({"check"}), exit_status::ok);
  const Json shown = runJson({"baseline", "1", "--json"});
  EXPECT_EQ(shown["size"], kOddPage.size());
  EXPECT_EQ(decodeBase64(shown["baseline"]["base64"].get<std::string>()), kOddPage);
}

class DiffVerb : public ToolFixture {
 protected:
  void checkAndChange(const std::string& before, const std::string& after) {
    addPage("/a", before);
    ASSERT_EQ(run({"check"}), exit_status::ok);
    server.respond("/a", {.body = after});
    run({"check"});
  }
};

TEST_F(DiffVerb, IsUnifiedAndEndsWithOneWhenThePagesDiffer) {
  checkAndChange("1\n2\n3\n", "1\ntwo\n3\n");
  EXPECT_EQ(run({"diff", "1"}), exit_status::down);
  EXPECT_EQ(out, "--- baseline of site 1\n+++ latest page of site 1\n@@ -1,3 +1,3 @@\n 1\n-2\n+two\n 3\n");
}

TEST_F(DiffVerb, IsEmptyAndEndsWithZeroWhenThePagesAreEqual) {
  checkAndChange("same\n", "same\n");
  EXPECT_EQ(run({"diff", "1"}), exit_status::ok);
  EXPECT_EQ(out, "");
}

TEST_F(DiffVerb, IsColouredOnATerminalAndActsOnNothingThere) {
  checkAndChange("old\n", "new\x1b[2J\n");
  terminal = {.isTerminal = true, .colour = true};
  run({"diff", "1"});
  EXPECT_THAT(out, HasSubstr("\x1b[31m-old\x1b[0m\n\x1b[32m+new\\x1b[2J\x1b[0m\n"));
}

TEST_F(DiffVerb, KeepsEveryByteInAPipe) {
  checkAndChange("old\r\n", "new\x1b[2J\xff\r\n");
  run({"diff", "1"});
  EXPECT_THAT(out, HasSubstr("-old\r\n+new\x1b[2J\xff\r\n"));
}

TEST_F(DiffVerb, PrintsJson) {
  checkAndChange("old\n", "new\n");
  EXPECT_EQ(run({"diff", "1", "--json"}), exit_status::down);
  EXPECT_EQ(Json::parse(out), (Json{{"idSite", 1}, {"equal", false}, {"diff", {"@@ -1 +1 @@", "-old", "+new"}}}));
}

TEST_F(DiffVerb, NeedsAPageToCompare) {
  addPage("/a", "alpha");
  EXPECT_EQ(run({"diff", "1"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("tarnwickctl check 1"));
  EXPECT_EQ(run({"diff", "7"}), exit_status::failed);
}

TEST_F(BaselineVerb, TakesForceOnlyWhereItDoesSomething) {
  addPage("/a", "alpha");
  for (const char* action : {"show", "load", "clear"}) {
    EXPECT_EQ(run({"baseline", "1", action, "--force"}), exit_status::failed) << action;
    EXPECT_THAT(err, HasSubstr("Only \"accept\" takes --force.")) << action;
  }
}

}  // namespace
}  // namespace tarnwick::testing
