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
  EXPECT_EQ(pieces("a<>1.5e-3,b>=.5"), (Pieces{"a", "<>", "1.5e-3", ",", "b", ">=", ".5"}));
  EXPECT_EQ(pieces("0x1F 12abc x'0A'"), (Pieces{"0x1F", "12abc", "x'0A'"}));
}

TEST(SqlTokens, TakesNamesInBracketsAndQuotesWhole) {
  const auto tokens = sqlTokens("[Total Log Entries] \"a\"\"b\" `c d` [it's]");
  ASSERT_EQ(tokens.size(), 4U);
  EXPECT_EQ(nameIn(tokens[0]), "Total Log Entries");
  EXPECT_EQ(nameIn(tokens[1]), "a\"b");
  EXPECT_EQ(nameIn(tokens[2]), "c d");
  EXPECT_EQ(nameIn(tokens[3]), "it's");
}

TEST(SqlTokens, NeverLooksIntoAText) {
  const auto tokens = sqlTokens("'select a -- b /* c ; [d \"e now() it''s'");
  ASSERT_EQ(tokens.size(), 1U);
  EXPECT_EQ(tokens[0].kind, SqlTokenKind::text);
  EXPECT_EQ(textIn(tokens[0]), "select a -- b /* c ; [d \"e now() it's");
}

TEST(SqlTokens, UndoesDoubledQuotesAnywhereInAText) {
  const auto value = [](std::string_view text) { return textIn(sqlTokens(text).at(0)); };
  EXPECT_EQ(value("''"), "");
  EXPECT_EQ(value("''''"), "'");
  EXPECT_EQ(value("'''a'''"), "'a'");
  EXPECT_EQ(value("'a''''b'"), "a''b");
  EXPECT_FALSE(holdsQuotes(sqlTokens("'plain'").at(0)));
  EXPECT_TRUE(holdsQuotes(sqlTokens("'it''s'").at(0)));
}

TEST(SqlTokens, KeepsEveryByteOfAText) {
  const std::string bytes("a\0b\r\n\xff\xfe|", 8);
  EXPECT_EQ(textIn(sqlTokens("'" + bytes + "'").at(0)), bytes);
}

TEST(SqlTokens, SkipsComments) { EXPECT_EQ(pieces("a -- 'b\n c /* 'd' */ e -- f"), (Pieces{"a", "c", "e"})); }

TEST(SqlTokens, ATextWithoutItsEndIsAClearError) {
  try {
    sqlTokens("update sites set url = 'it''s");
    FAIL() << "accepted";
  } catch (const DataAccessError& error) {
    EXPECT_NE(error.cause().find("has no end"), std::string::npos) << error.what();
    EXPECT_EQ(error.statement(), "update sites set url = '...'");
  }
}

TEST(SqlTokens, RefusesANameOrCommentWithoutItsEndAndStrayBytes) {
  EXPECT_THROW(sqlTokens("select [a from b"), DataAccessError);
  EXPECT_THROW(sqlTokens("select \"a from b"), DataAccessError);
  EXPECT_THROW(sqlTokens("select /* a"), DataAccessError);
  EXPECT_THROW(sqlTokens("select ?"), DataAccessError);
  EXPECT_THROW(sqlTokens(std::string_view("select \0 1", 10)), DataAccessError);
}

TEST(SqlTokens, ReadsWholeNumbersOnly) {
  const auto value = [](std::string_view number) { return wholeNumberIn(sqlTokens(number).at(0)); };
  EXPECT_EQ(value("32767"), 32767);
  EXPECT_EQ(value("9223372036854775807"), 9223372036854775807);
  EXPECT_FALSE(value("9223372036854775808"));
  EXPECT_FALSE(value("1.5"));
  EXPECT_FALSE(value("0x1F"));
}

TEST(SqlTokens, ComparesWordsInAnyLetterCase) {
  const auto tokens = sqlTokens("SeLeCt [select]");
  EXPECT_TRUE(tokens[0].isWord("select"));
  EXPECT_FALSE(tokens[0].isWord("selec"));
  EXPECT_FALSE(tokens[1].isWord("select"));
}

}  // namespace
}  // namespace tarnwick
