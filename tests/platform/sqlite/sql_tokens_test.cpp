// SPDX-License-Identifier: MIT
#include "platform/sqlite/sql_tokens.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/errors.h"

namespace tarnwick {
namespace {

std::vector<std::string> pieces(std::string_view sql) {
  std::vector<std::string> sources;
  for (const SqlToken& token : sqlTokens(sql)) {
    sources.emplace_back(token.source);
  }
  return sources;
}

using Pieces = std::vector<std::string>;

TEST(SqlTokens, CutsAStatementIntoWordsNumbersAndSymbols) {
  EXPECT_EQ(pieces("select max(idSite)+1 as mid\r\n from sites"),
            (Pieces{"select", "max", "(", "idSite", ")", "+", "1", "as", "mid", "from", "sites"}));
  EXPECT_EQ(pieces("a<>1.5e-3,b>=.5"), (Pieces{"a", "<>", "1.5e", "-", "3", ",", "b", ">=", ".", "5"}));
  EXPECT_EQ(pieces("0x1F 12abc x'0A'"), (Pieces{"0x1F", "12abc", "x'0A'"}));
}

TEST(SqlTokens, TakesNamesInBracketsAndQuotesWhole) {
  const auto tokens = sqlTokens("[Total Log Entries] \"a\"\"b\" `c d` [it's]");
  ASSERT_EQ(tokens.size(), 4U);
  EXPECT_EQ(unquoted(tokens[0]), "Total Log Entries");
  EXPECT_EQ(unquoted(tokens[1]), "a\"b");
  EXPECT_EQ(unquoted(tokens[2]), "c d");
  EXPECT_EQ(unquoted(tokens[3]), "it's");
}

TEST(SqlTokens, NeverLooksIntoAText) {
  const auto tokens = sqlTokens("'select a -- b /* c ; [d \"e now() it''s'");
  ASSERT_EQ(tokens.size(), 1U);
  EXPECT_EQ(tokens[0].kind, SqlTokenKind::text);
  EXPECT_EQ(unquoted(tokens[0]), "select a -- b /* c ; [d \"e now() it's");
}

TEST(SqlTokens, UndoesDoubledQuotesAnywhereInAText) {
  const auto value = [](std::string_view text) { return unquoted(sqlTokens(text).at(0)); };
  EXPECT_EQ(value("''"), "");
  EXPECT_EQ(value("''''"), "'");
  EXPECT_EQ(value("'''a'''"), "'a'");
  EXPECT_EQ(value("'a''''b'"), "a''b");
}

TEST(SqlTokens, KeepsEveryByteOfAText) {
  const std::string bytes("a\0b\r\n\xff\xfe|", 8);
  EXPECT_EQ(unquoted(sqlTokens("'" + bytes + "'").at(0)), bytes);
}

TEST(SqlTokens, SkipsComments) { EXPECT_EQ(pieces("a -- 'b\n c /* 'd' */ e -- f"), (Pieces{"a", "c", "e"})); }

TEST(SqlTokens, ATextWithoutItsEndIsAClearError) {
  try {
    sqlTokens("update sites set url = 'it''s");
    FAIL() << "accepted";
  } catch (const DataAccessError& error) {
    EXPECT_NE(error.cause().find("has no end"), std::string::npos) << error.what();
  }
}

TEST(SqlTokens, RefusesANameWithoutItsEndAndParameters) {
  EXPECT_THROW(sqlTokens("select [a from b"), DataAccessError);
  EXPECT_THROW(sqlTokens("select \"a from b"), DataAccessError);
  EXPECT_THROW(sqlTokens("select ?"), DataAccessError);
  EXPECT_THROW(sqlTokens("select :a"), DataAccessError);
}

TEST(SqlTokens, ANameThatIsQuotedIsOneName) {
  for (const char* name : {"plain", "a b", "it's", "a`b", "a\"b]", ""}) {
    const std::string quoted = quotedName(name);
    const auto tokens = sqlTokens(quoted);
    ASSERT_EQ(tokens.size(), 1U) << name;
    EXPECT_TRUE(tokens[0].isName());
    EXPECT_EQ(unquoted(tokens[0]), name);
  }
}

TEST(SqlTokens, ComparesWordsInAnyLetterCase) {
  const auto tokens = sqlTokens("SeLeCt [select]");
  EXPECT_TRUE(tokens[0].is("select"));
  EXPECT_FALSE(tokens[0].is("selec"));
  EXPECT_FALSE(tokens[1].is("select"));
}

}  // namespace
}  // namespace tarnwick
