// SPDX-License-Identifier: MIT
#include "store/sql_quote.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace tarnwick {
namespace {

TEST(SqlQuote, DoublesEverySingleQuote) {
  EXPECT_EQ(sqlQuote("it's"), "it''s");
  EXPECT_EQ(sqlQuote("'"), "''");
  EXPECT_EQ(sqlQuote("''a'"), "''''a''");
}

TEST(SqlQuote, DoublesTheQuotesOfALongText) {
  const std::string text = std::string(255, '\'') + "b" + std::string(600, '\'') + std::string(70'000, 'c') + "'";
  EXPECT_EQ(sqlQuote(text), std::string(510, '\'') + "b" + std::string(1200, '\'') + std::string(70'000, 'c') + "''");
}

TEST(SqlQuote, LeavesEveryOtherByteAlone) {
  const std::string bytes("a|b\"c\\d\0e\xff\r\n", 12);
  EXPECT_EQ(sqlQuote(bytes), bytes);
  EXPECT_EQ(sqlQuote(""), "");
}

TEST(SqlQuote, TakesLiteralsAsTexts) {
  const char* text = "o'clock";
  EXPECT_EQ(sqlQuote(text), "o''clock");
  EXPECT_EQ(sqlQuote(std::string_view(text)), "o''clock");
}

TEST(SqlQuote, WritesFlagsAndNumbersBare) {
  EXPECT_EQ(sqlQuote(true), "True");
  EXPECT_EQ(sqlQuote(false), "False");
  EXPECT_EQ(sqlQuote(std::int16_t{-32768}), "-32768");
  EXPECT_EQ(sqlQuote(std::int32_t{2147483647}), "2147483647");
  EXPECT_EQ(sqlQuote(0), "0");
}

TEST(JoinSql, JoinsPiecesOfAllKinds) {
  const std::string text = "b";
  EXPECT_EQ(joinSql("a", text, std::string_view("c"), sqlQuote(1), ""), "abc1");
}

TEST(JoinSql, AllocatesOnce) {
  const std::string page(1'000'000, 'x');
  const std::string sql = joinSql("update ", page, " where id = 1");
  EXPECT_LT(sql.capacity(), page.size() + 100);
}

}  // namespace
}  // namespace tarnwick
