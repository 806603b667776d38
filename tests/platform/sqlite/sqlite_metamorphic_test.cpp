// SPDX-License-Identifier: MIT
// What must hold for any statement about any sites, whether their pages lie apart or they are one plain table: two ways
// to ask the same thing give the same answer.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <string>
#include <variant>
#include <vector>

#include "open_database.h"
#include "platform/sqlite/sql_dialect.h"
#include "random_sql.h"

namespace tarnwick::testing {
namespace {

constexpr int kSites = 12;
constexpr int kRounds = 60;

using Rows = std::vector<std::string>;

Rows rowsOf(const std::unique_ptr<Recordset>& records) {
  Rows rows;
  for (; !records->eof(); records->moveNext()) {
    std::string& row = rows.emplace_back();
    for (std::size_t i = 0; i < records->fieldCount(); ++i) {
      const std::string value = records->field(i).toTableText();
      row += std::to_string(value.size()) + ":" + value + "|";
    }
  }
  return rows;
}

Rows ask(const OpenDatabase& list, const std::string& sql) { return rowsOf(list.conn->execute(sql)); }
Rows allSites(const OpenDatabase& list) { return ask(list, "select * from sites order by idSite"); }

std::string literalOf(const SqlParameter& parameter) {
  const auto* const value = std::get_if<SqlValue>(&parameter);
  if (value != nullptr && std::holds_alternative<std::int64_t>(value->held())) {
    return value->toText();
  }
  const std::string text = value != nullptr ? value->toText() : std::string(std::get<std::string_view>(parameter));
  std::string literal = "'";
  for (const char c : text) {
    literal.append(c == '\'' ? 2 : 1, c);
  }
  return literal + "'";
}

SqlValue valueOf(const SqlParameter& parameter) {
  const auto* const value = std::get_if<SqlValue>(&parameter);
  return value != nullptr ? *value : SqlValue(std::string(std::get<std::string_view>(parameter)));
}

/// A translated statement with its values written where they belong. What stands in single quotes is none of them: the
/// units of datediff, and texts that were left as they are.
std::string writtenOut(const PlainStatement& statement) {
  std::string sql;
  for (std::size_t i = 0; i < statement.text.size(); ++i) {
    if (statement.text[i] == '?') {
      std::size_t digits = 0;
      const int number = std::stoi(statement.text.substr(i + 1), &digits);
      sql += literalOf(statement.parameters.at(static_cast<std::size_t>(number) - 1));
      i += digits;
    } else {
      sql += statement.text[i];
    }
  }
  return sql;
}

/// Whether the pages lie apart, as in today's lists, or in the rows of one table.
class SqliteMetamorphic : public ::testing::TestWithParam<Pages> {
 protected:
  void SetUp() override {
    fill(list_, sites_);
    if (GetParam() == Pages::inSites) {
      layAsOneTable(list_);
    }
  }

  static void layAsOneTable(const OpenDatabase& list) {
    list.conn->close();
    list.folder.laySitesAsOneTable();
    list.conn->open(list.connString());
  }
  static std::vector<std::string> makeSites(RandomSql& sql) {
    std::vector<std::string> sites;
    for (int i = 0; i < kSites; ++i) {
      sites.push_back(sql.siteValues());
    }
    return sites;
  }
  static void insert(const OpenDatabase& list, std::size_t id, const std::string& values) {
    list.run("insert into sites (idSite," + std::string(RandomSql::kColumns) + ") values (" + std::to_string(id) + "," +
             values + ")");
  }
  static void fill(const OpenDatabase& list, const std::vector<std::string>& sites) {
    for (std::size_t i = 0; i < sites.size(); ++i) {
      insert(list, i + 1, sites[i]);
    }
  }
  PlainStatement plain(const std::string& statement, Pages pages) {
    return std::get<PlainStatement>(translateSql(statement, list_.clock, pages));
  }
  /// All sites as `change` leaves them; it is taken back.
  template <typename Change>
  Rows after(Change change) {
    list_.conn->begin();
    change();
    const Rows rows = allSites(list_);
    list_.conn->rollback();
    return rows;
  }

  FreshSeed dice_;
  const ::testing::ScopedTrace trace_{__FILE__, __LINE__, dice_.again()};
  RandomSql sql_{dice_};
  const std::vector<std::string> sites_ = makeSites(sql_);
  const OpenDatabase list_;
};

INSTANTIATE_TEST_SUITE_P(Forms, SqliteMetamorphic, ::testing::Values(Pages::apart, Pages::inSites),
                         [](const auto& form) { return form.param == Pages::apart ? "PagesApart" : "OneTable"; });

TEST_P(SqliteMetamorphic, TranslatingTwiceEqualsOnce) {
  for (int round = 0; round < kRounds; ++round) {
    const std::string statement = dice_.oneIn(2) ? sql_.select() : sql_.change();
    SCOPED_TRACE(statement);
    const SqlCommand command = translateSql(statement, list_.clock, GetParam());
    if (!std::holds_alternative<PlainStatement>(command)) {
      continue;
    }
    const std::string once = writtenOut(std::get<PlainStatement>(command));
    EXPECT_EQ(writtenOut(plain(once, GetParam())), once);
  }
}

TEST_P(SqliteMetamorphic, BlanksCommentsAndLetterCaseChangeNothing) {
  for (int round = 0; round < kRounds; ++round) {
    const std::string asked = sql_.select();
    const std::string otherwise = sql_.spelledOtherwise(asked);
    EXPECT_EQ(ask(list_, otherwise), ask(list_, asked)) << asked << "\n" << otherwise;
    const std::string change = sql_.change();
    const std::string changedOtherwise = sql_.spelledOtherwise(change);
    EXPECT_EQ(after([&] { list_.run(changedOtherwise); }), after([&] { list_.run(change); })) << change << "\n"
                                                                                              << changedOtherwise;
  }
}

TEST_P(SqliteMetamorphic, BoundValuesChangeNothing) {
  for (int round = 0; round < kRounds; ++round) {
    const bool reads = dice_.oneIn(2);
    const std::string statement = reads ? sql_.select() : sql_.change();
    SCOPED_TRACE(statement);
    const PlainStatement bound = plain(statement, Pages::inSites);
    std::vector<SqlValue> values;
    std::ranges::transform(bound.parameters, std::back_inserter(values), valueOf);
    const std::string written = writtenOut(bound);
    const bool canBeWritten = written.find('\0') == std::string::npos;
    if (reads) {
      const Rows rows = ask(list_, statement);
      EXPECT_EQ(rowsOf(list_.conn->execute(bound.text, values)), rows);
      EXPECT_TRUE(!canBeWritten || rowsOf(list_.conn->execute(written, {})) == rows);
    } else {
      const Rows rows = after([&] { list_.run(statement); });
      EXPECT_EQ(after([&] { list_.conn->execute(bound.text, values); }), rows);
      EXPECT_TRUE(!canBeWritten || after([&] { list_.conn->execute(written, {}); }) == rows);
    }
  }
}

TEST_P(SqliteMetamorphic, ATextThatIsHandedOverApartIsTheOneInQuotes) {
  for (int round = 0; round < kRounds; ++round) {
    const std::string before = "update sites set " + std::string(dice_.oneIn(2) ? "content_compare" : "url") + " = '";
    const std::string text = sql_.bytes(true);
    const std::string behind = "' where " + (dice_.oneIn(2) ? "idSite = 3" : sql_.condition(1, true));
    const std::string whole =
        before + literalOf(SqlValue(text)).substr(1, literalOf(SqlValue(text)).size() - 2) + behind;
    EXPECT_EQ(after([&] { list_.conn->execute(before, text, behind); }), after([&] { list_.run(whole); })) << whole;
  }
}

TEST_P(SqliteMetamorphic, TopIsTheBeginningOfTheWhole) {
  for (int round = 0; round < kRounds; ++round) {
    const std::string rest = sql_.select().substr(std::string("select").size());
    const Rows whole = ask(list_, "select" + rest);
    const std::size_t count = dice_.below(kSites + 2);
    const std::string top = "select top " + std::to_string(count) + rest;
    EXPECT_EQ(ask(list_, top),
              Rows(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(std::min(count, whole.size()))))
        << top;
    const std::string inner = "select count(*) from (" + top + ")";
    EXPECT_EQ(ask(list_, inner), ask(list_, "select " + std::to_string(std::min(count, whole.size())))) << inner;
  }
}

TEST_P(SqliteMetamorphic, TrueFalseAndNullMakeTheWhole) {
  const auto ids = [&](const std::string& condition) {
    return ask(list_, "select idSite from sites where " + condition);
  };
  Rows all = ask(list_, "select idSite from sites");
  std::ranges::sort(all);
  for (int round = 0; round < kRounds; ++round) {
    const std::string condition = sql_.condition(3, true);
    Rows parts = ids(condition);
    for (const std::string& other : {"not (" + condition + ")", "(" + condition + ") is null"}) {
      const Rows part = ids(other);
      parts.insert(parts.end(), part.begin(), part.end());
    }
    std::ranges::sort(parts);
    EXPECT_EQ(parts, all) << condition;
  }
}

TEST_P(SqliteMetamorphic, PermutedSitesGivePermutedResults) {
  std::vector<std::size_t> numbers(sites_.size());
  std::iota(numbers.begin(), numbers.end(), 1);
  std::ranges::shuffle(numbers, dice_.engine());
  const OpenDatabase permuted;
  std::map<std::string, std::string> renamed;
  for (std::size_t i = 0; i < sites_.size(); ++i) {
    insert(permuted, numbers[i], sites_[i]);
    const auto fieldOf = [&](std::size_t id) { return ask(list_, "select " + std::to_string(id)).front(); };
    renamed[fieldOf(i + 1)] = fieldOf(numbers[i]);
  }
  if (GetParam() == Pages::inSites) {
    layAsOneTable(permuted);
  }
  for (int round = 0; round < kRounds; ++round) {
    const std::string condition = sql_.condition(2, false);
    SCOPED_TRACE(condition);
    Rows expected;
    for (const std::string& id : ask(list_, "select idSite from sites where " + condition)) {
      expected.push_back(renamed.at(id));
    }
    Rows found = ask(permuted, "select idSite from sites where " + condition);
    std::ranges::sort(expected);
    std::ranges::sort(found);
    EXPECT_EQ(found, expected);
    const std::string soonest = "select top 3 (tinterval*60)-datediff('s',[lastChecked],now()) from sites where " +
                                condition + " ORDER BY (tinterval*60)-datediff('s',[lastChecked],now())";
    EXPECT_EQ(ask(permuted, soonest), ask(list_, soonest));
  }
}

TEST_P(SqliteMetamorphic, TheFormOfTheTablesChangesNothing) {
  const OpenDatabase other;
  fill(other, sites_);
  if (GetParam() == Pages::apart) {
    layAsOneTable(other);
  }
  for (int round = 0; round < kRounds; ++round) {
    const std::string change = sql_.change();
    list_.run(change);
    other.run(change);
    ASSERT_EQ(allSites(list_), allSites(other)) << change;
    const std::string asked = sql_.select();
    ASSERT_EQ(ask(list_, asked), ask(other, asked)) << asked;
  }
}

}  // namespace
}  // namespace tarnwick::testing
