// SPDX-License-Identifier: MIT
#include "cli/support/tool_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

class PostVerb : public ToolFixture {
 protected:
  PostVerb() {
    addSite("http://a/");
    addSite("http://b/");
    folder.execute("update sites set method = 'post'");
  }
  void store(const std::string& rows) { folder.execute("insert into postVars (idSite, pname, pvalue) values " + rows); }
  std::string vars(int id = 1) const {
    return folder.queryRows("select pname, pvalue from postVars where idSite = " + std::to_string(id) +
                            " order by idPostVars");
  }
};

TEST_F(PostVerb, ListsTheVariablesInTheirOrder) {
  store("(1, 'b', '1'), (1, 'a', '2 x'), (2, 'c', '3')");
  EXPECT_EQ(run({"post", "1"}), exit_status::ok);
  EXPECT_EQ(out, "NAME  VALUE\nb     1\na     2 x\n");
  EXPECT_EQ(run({"post", "1", "list"}), exit_status::ok);
  EXPECT_EQ(out, "NAME  VALUE\nb     1\na     2 x\n");
}

TEST_F(PostVerb, PrintsTheVariablesAsJson) {
  store("(1, 'b', 'NULL'), (1, null, 'x')");
  EXPECT_EQ(runJson({"post", "1", "--json"}),
            Json::parse(R"([{"pname": "b", "pvalue": "NULL"}, {"pname": "", "pvalue": "x"}])"));
}

TEST_F(PostVerb, SaysHowToAddTheFirstOne) {
  EXPECT_EQ(run({"post", "1"}), exit_status::ok);
  EXPECT_EQ(out, "");
  EXPECT_THAT(err, HasSubstr("tarnwickctl post 1 add NAME VALUE"));
  EXPECT_EQ(runJson({"post", "1", "--json"}), Json::array());
}

TEST_F(PostVerb, AddsAVariableBehindTheOthers) {
  store("(1, 'a', '1')");
  EXPECT_EQ(run({"post", "1", "add", "a", "1"}), exit_status::ok);
  EXPECT_EQ(run({"post", "1", "add", "", ""}), exit_status::ok);
  EXPECT_EQ(run({"post", "1", "add", "[x,y]", "{}"}), exit_status::ok);
  EXPECT_EQ(run({"post", "1", "add", "--", "-n", "-1"}), exit_status::ok);
  EXPECT_EQ(vars(), "a|1\na|1\n|\n[x,y]|{}\n-n|-1\n");
  EXPECT_EQ(err, "");
}

TEST_F(PostVerb, ReadsAValueThatNobodyIsToSee) {
  input = "se cret\r\n";
  EXPECT_EQ(run({"post", "1", "add", "key", "--value-file", "-"}), exit_status::ok) << err;
  EXPECT_EQ(vars(), "key|se cret\n");
  EXPECT_EQ(out.find("se cret"), std::string::npos);
  input = "two\nlines";
  EXPECT_EQ(run({"post", "1", "add", "", "--value-file=-"}), exit_status::ok) << err;
  EXPECT_EQ(vars(), "key|se cret\n|two\nlines\n");
  for (const auto& arguments :
       std::vector<std::vector<std::string>>{{"post", "1", "add", "a", "b", "--value-file", "-"},
                                             {"post", "1", "add", "--value-file", "-"},
                                             {"post", "1", "add", "a", "--value-file", "none"},
                                             {"post", "1", "change", "key", "--value-file", "-"},
                                             {"post", "1", "remove", "key", "--value-file", "-"},
                                             {"post", "1", "--value-file", "-"}}) {
    EXPECT_EQ(run(arguments), exit_status::failed) << ::testing::PrintToString(arguments);
    EXPECT_THAT(err, ::testing::StartsWith("tarnwickctl: ")) << ::testing::PrintToString(arguments);
  }
  EXPECT_EQ(vars(), "key|se cret\n|two\nlines\n");
}

TEST_F(PostVerb, SaysWhenAVariableWillNotBeSent) {
  folder.execute("update sites set method = 'GET'");
  EXPECT_EQ(run({"post", "1", "add", "a", "1"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("tarnwickctl set 1 --method post"));
}

TEST_F(PostVerb, ChangesOneVariableInItsPlace) {
  store("(1, 'a', '1'), (1, 'b', '2'), (2, 'a', '1')");
  EXPECT_EQ(run({"post", "1", "change", "a", "1", "c", "3"}), exit_status::ok);
  EXPECT_EQ(out, "The variable is \"c\" = \"3\" now.\n");
  EXPECT_EQ(vars(), "c|3\nb|2\n");
  EXPECT_EQ(vars(2), "a|1\n");
}

TEST_F(PostVerb, ChangesTheNameOrTheValueAlone) {
  store("(1, 'a', '1'), (1, 'b', '2')");
  EXPECT_EQ(run({"post", "1", "change", "a", "--value", "9"}), exit_status::ok);
  EXPECT_EQ(run({"post", "1", "change", "b", "2", "--name", ""}), exit_status::ok);
  EXPECT_EQ(vars(), "a|9\n|2\n");
}

TEST_F(PostVerb, RemovesOneVariable) {
  store("(1, 'a', '1'), (1, 'a', '2'), (1, 'b', '3'), (1, 'c', '4'), (1, 'c', '4')");
  EXPECT_EQ(run({"post", "1", "remove", "a", "2"}), exit_status::ok);
  EXPECT_EQ(out, "The variable \"a\" is removed.\n");
  EXPECT_EQ(run({"post", "1", "remove", "b"}), exit_status::ok);
  EXPECT_EQ(run({"post", "1", "remove", "c"}), exit_status::ok) << "one of two that are equal";
  EXPECT_EQ(vars(), "a|1\nc|4\n");
}

TEST_F(PostVerb, FindsVariablesExactly) {
  store("(1, 'a', '1')");
  for (const char* name : {"A", "a ", " a", ""}) {
    EXPECT_EQ(run({"post", "1", "remove", name}), exit_status::failed) << name;
    EXPECT_THAT(err, HasSubstr("has no variable \"" + std::string(name) + "\"")) << name;
  }
  EXPECT_EQ(run({"post", "1", "change", "a", "1 ", "b", "2"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("of the value \"1 \""));
  EXPECT_EQ(vars(), "a|1\n");
}

TEST_F(PostVerb, RefusesANameOfSeveralVariablesAndListsTheirValues) {
  store("(1, 'a', '1'), (1, 'a', '2')");
  EXPECT_EQ(run({"post", "1", "remove", "a"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("Add behind the name the value of the one that is meant: \"1\", \"2\""));
  EXPECT_EQ(run({"post", "1", "change", "a", "--value", "9"}), exit_status::failed);
  EXPECT_EQ(vars(), "a|1\na|2\n");
}

TEST_F(PostVerb, ReachesAVariableOfWhichAPartIsNull) {
  store("(1, 'a', '1'), (1, 'b', null), (1, null, 'c')");
  EXPECT_EQ(run({"post", "1", "change", "b", "--value", "2"}), exit_status::ok);
  EXPECT_EQ(vars(), "a|1\nb|2\n|c\n");
  store("(1, 'd', null)");
  EXPECT_EQ(run({"post", "1", "remove", "d"}), exit_status::ok);
  EXPECT_EQ(vars(), "a|1\nb|2\n|c\n");
}

TEST_F(PostVerb, TellsTheFormOfAnActionThatLacksAPart) {
  store("(1, 'a', '1')");
  for (const auto& arguments : std::vector<std::vector<std::string>>{{"add", "a"},
                                                                     {"add", "a", "b", "c"},
                                                                     {"change", "a"},
                                                                     {"change", "a", "1", "b"},
                                                                     {"change", "a", "1", "b", "2", "--name", "c"},
                                                                     {"remove"},
                                                                     {"remove", "a", "1", "b"},
                                                                     {"remove", "a", "--name", "b"},
                                                                     {"list", "a"}}) {
    std::vector<std::string> line = {"post", "1"};
    line.insert(line.end(), arguments.begin(), arguments.end());
    EXPECT_EQ(run(line), exit_status::failed) << arguments.back();
    EXPECT_THAT(err, HasSubstr("It is: tarnwickctl post 1 " + arguments.front()));
  }
  EXPECT_EQ(vars(), "a|1\n");
}

TEST_F(PostVerb, NamesASiteThatIsNotInTheList) {
  EXPECT_EQ(run({"post", "3", "add", "a", "1"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("There is no site 3."));
  EXPECT_EQ(vars(3), "");
}

}  // namespace
}  // namespace tarnwick::testing
