// SPDX-License-Identifier: MIT
#include "store/post_vars.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class PostVarsTest : public DataFixture {
 protected:
  PostVars variables{database};
};

TEST_F(PostVarsTest, ListHoldsNamesAndValuesInTheDatabasesOrder) {
  variables.addPostVars(3, "b", "2");
  variables.addPostVars(4, "other site", "x");
  variables.addPostVars(3, "a", "1");
  const TextTable table = variables.getPostVars(3);
  ASSERT_EQ(table.lastColumn(), 2U);
  ASSERT_EQ(table.lastRow(), 2U);
  EXPECT_EQ(table.at(1, 1), "b");
  EXPECT_EQ(table.at(2, 1), "2");
  EXPECT_EQ(table.at(1, 2), "a");
  EXPECT_EQ(table.at(2, 2), "1");
  EXPECT_EQ(table.at(0, 1), "");
  EXPECT_EQ(table.at(1, 0), "");
}

TEST_F(PostVarsTest, ListOfASiteWithoutVariablesHasNoFilledRow) {
  EXPECT_EQ(variables.getPostVars(1).lastRow(), 0U);
  EXPECT_EQ(variables.getPostVars(1).lastColumn(), 2U);
}

TEST_F(PostVarsTest, NullIsListedAsTheTextNull) {
  folder.execute("insert into postVars (idSite,pname,pvalue) values (1,'n',NULL)");
  EXPECT_EQ(variables.getPostVars(1).at(2, 1), "NULL");
}

TEST_F(PostVarsTest, StatementsAreBuiltFromTheirPieces) {
  variables.getPostVars(1);
  variables.addPostVars(1, "it's", "v");
  variables.updatePostVars(1, "n'", "v");
  variables.getIdPostVars(1, "n'", "v");
  variables.deletePostVars(1);
  variables.clearPostVars(1);
  EXPECT_THAT(takeStatements(),
              ElementsAre("select idpostvars,pname,pvalue from postvars where idSite = 1",
                          "insert into postvars (idSite,pname,pvalue) values (1, 'it''s', 'v' )",
                          "update postVars set pname = 'n''',pvalue = 'v' WHERE  idPostVars = 1",
                          "select idPostVars from postVars where  idSite = 1 AND  pname = 'n''' AND  pvalue = 'v'",
                          "delete from postVars where  idPostvars = 1", "delete from postvars where idSite = 1"));
}

TEST_F(PostVarsTest, EveryTextIsStoredAndFoundAgain) {
  std::int16_t idSite = 0;
  for (const std::string& text : trickyTexts()) {
    ++idSite;
    variables.addPostVars(idSite, text, text);
    EXPECT_EQ(variables.getIdPostVars(idSite, text, text), idSite) << text;
    EXPECT_EQ(variables.getPostVars(idSite).at(1, 1), text);
    EXPECT_EQ(variables.getPostVars(idSite).at(2, 1), text);
  }
}

TEST_F(PostVarsTest, VariablesAreFoundByExactlyTheirText) {
  variables.addPostVars(1, "Name", "7");
  EXPECT_EQ(variables.getIdPostVars(1, "Name", "7"), 1);
  EXPECT_EQ(variables.getIdPostVars(1, "name", "7"), 0);
  EXPECT_EQ(variables.getIdPostVars(1, "Name ", "7"), 0);
  EXPECT_EQ(variables.getIdPostVars(1, "Name", " 7"), 0);
  EXPECT_EQ(variables.getIdPostVars(1, "Name", "007"), 0);
  EXPECT_EQ(variables.getIdPostVars(1, "Name", "7.0"), 0);
  EXPECT_EQ(variables.getIdPostVars(2, "Name", "7"), 0);
}

TEST_F(PostVarsTest, FirstOfTwoEqualVariablesIsFound) {
  variables.addPostVars(1, "twin", "x");
  variables.addPostVars(1, "twin", "x");
  EXPECT_EQ(variables.getIdPostVars(1, "twin", "x"), 1);
  variables.deletePostVars(1);
  EXPECT_EQ(variables.getIdPostVars(1, "twin", "x"), 2);
}

TEST_F(PostVarsTest, IdOutside16BitsIsAnErrorThatNamesIt) {
  folder.execute("insert into postVars (idPostVars,idSite,pname,pvalue) values (40000,1,'n','v')");
  EXPECT_THAT(errorOf<OverflowError>([&] { variables.getIdPostVars(1, "n", "v"); }), HasSubstr("40000"));
}

TEST_F(PostVarsTest, VariableIsChangedByItsId) {
  variables.addPostVars(1, "a", "1");
  variables.addPostVars(1, "b", "2");
  variables.updatePostVars(2, "c", "3");
  variables.updatePostVars(99, "d", "4");
  EXPECT_EQ(folder.queryRows("select idPostVars,idSite,pname,pvalue from postVars"), "1|1|a|1\n2|1|c|3\n");
}

TEST_F(PostVarsTest, OneVariableOrAllOfASiteAreRemoved) {
  for (const char* name : {"a", "b", "c"}) {
    variables.addPostVars(1, name, "");
  }
  variables.addPostVars(2, "d", "");
  variables.deletePostVars(2);
  variables.deletePostVars(99);
  EXPECT_EQ(folder.queryRows("select pname from postVars"), "a\nc\nd\n");
  variables.clearPostVars(1);
  EXPECT_EQ(folder.queryRows("select pname from postVars"), "d\n");
}

TEST_F(PostVarsTest, FailedStatementTravelsToTheCaller) {
  folder.execute("drop table postVars");
  EXPECT_THROW(variables.getPostVars(1), DataAccessError);
  EXPECT_THROW(variables.addPostVars(1, "a", "b"), DataAccessError);
  EXPECT_THROW(variables.getIdPostVars(1, "a", "b"), DataAccessError);
}

}  // namespace
}  // namespace tarnwick::testing
