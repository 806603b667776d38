// SPDX-License-Identifier: MIT
#include "fuzz/entries/sql_entries.h"

#include <algorithm>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "base/errors.h"
#include "fuzz/entries/sql_scratch.h"
#include "platform/clock.h"
#include "platform/sqlite/sql_dialect.h"
#include "platform/sqlite/sql_tokens.h"
#include "store/sql_quote.h"
#include "support/hand_clock.h"

namespace tarnwick::testing {
namespace {

/// The quoted texts of the statement, but for the units of `datediff`, which stay where they are.
std::ptrdiff_t textsForParameters(const std::vector<SqlToken>& tokens) {
  std::ptrdiff_t texts = 0;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    const bool unit = i >= 2 && tokens[i - 1].is("(") && tokens[i - 2].is("datediff");
    texts += tokens[i].kind == SqlTokenKind::text && !unit ? 1 : 0;
  }
  return texts;
}

void requireParameters(const PlainStatement& statement, std::string_view sql) {
  std::ptrdiff_t texts = 0;
  for (const SqlParameter& parameter : statement.parameters) {
    const auto* text = std::get_if<std::string_view>(&parameter);
    const bool isText = text != nullptr || std::holds_alternative<std::string>(std::get<SqlValue>(parameter).held());
    texts += isText ? 1 : 0;
    require(text == nullptr || (text->data() >= sql.data() && text->data() + text->size() <= sql.data() + sql.size()),
            "a parameter is not in the statement");
  }
  // The time is one text more.
  require(texts - textsForParameters(sqlTokens(sql)) <= 1, "a parameter is no quoted text");
  require(texts >= textsForParameters(sqlTokens(sql)), "a quoted text is no parameter");
}

std::optional<SqlCommand> translated(std::string_view sql) {
  try {
    return translateSql(sql, HandClock());
  } catch (const DataAccessError&) {
    return std::nullopt;
  }
}

std::string columnsOf(SqlScratch::Trial& trial, const std::string& table) {
  return trial
      .value(joinSql("select group_concat(cid || '|' || name || '|' || type || '|' || \"notnull\" || '|' || ",
                     "ifnull(dflt_value, '') || '|' || pk || '|' || hidden, char(10)) from pragma_table_xinfo('",
                     sqlQuote(table), "')"))
      .toText();
}

constexpr const char* kNewestTable =
    " from sqlite_master where type = 'table' and sql like 'create table%' order by rowid desc limit 1";

}  // namespace

void fuzzSqlStatement(std::string_view input) {
  const std::optional<SqlCommand> command = translated(input);
  const auto* plain = command ? std::get_if<PlainStatement>(&*command) : nullptr;
  if (plain != nullptr && plain->reusable) {
    requireParameters(*plain, input);
  }
  SqlScratch::Trial trial(sqlScratch());
  bool ran = true;
  try {
    trial.run(input);
  } catch (const DataAccessError&) {
    ran = false;  // a refusal is a good answer
  }
  require(!ran || command, "a statement was run that cannot be read");
  require(plain == nullptr || trial.statements() <= 1, "more than one statement was run");
}

void fuzzSqlValue(std::string_view input) {
  const std::string value(input);
  const std::string quoted = joinSql("'", sqlQuote(input), "'");
  const std::vector<SqlToken> texts = sqlTokens(quoted);
  require(texts.size() == 1 && texts[0].kind == SqlTokenKind::text && unquoted(texts[0]) == value,
          "the quoted value is another text");
  const std::string nameOfIt = quotedName(input);
  const std::vector<SqlToken> names = sqlTokens(nameOfIt);
  require(names.size() == 1 && names[0].kind == SqlTokenKind::name && unquoted(names[0]) == value,
          "the quoted name is another name");

  SqlScratch::Trial trial(sqlScratch());
  trial.run(joinSql("insert into log (idSite, stamp, note) values (7, ", quoted, ", ", quoted, ")"));
  trial.run(joinSql("update sites set page = ", quoted, ", error = true where idSite = 1"));
  require(trial.statements() == 2, "a value brought in a statement");
  require(trial.value("select note from log where idSite = 7") == SqlValue(value), "an inserted value is another one");
  require(trial.value("select page from sites where idSite = 1") == SqlValue(value), "a set value is another one");
  require(trial.value(joinSql("select ", quoted, " as x")) == SqlValue(value), "a selected value is another one");
  require(
      trial.value(joinSql("select count(*) from log where note = ", quoted, " and stamp = ", quoted)).toInt64() == 1,
      "a value is not found");
  require(trial.value("select count(*) from sites").toInt64() == 2, "a value has taken away a row");
}

void fuzzSqlTable(std::string_view input) {
  SqlScratch::Trial trial(sqlScratch());
  const std::int64_t before = trial.value("select count(*) from sqlite_master").toInt64();
  try {
    trial.run(input);
  } catch (const DataAccessError&) {
    return;
  }
  if (trial.value("select count(*) from sqlite_master").toInt64() <= before) {
    return;
  }
  const std::string name = trial.value(joinSql("select name", kNewestTable)).toText();
  const std::string columns = columnsOf(trial, name);
  bool counted = true;
  try {
    trial.run(joinSql("alter table ", quotedName(name), " add column [a number] counter not null"));
  } catch (const DataAccessError&) {
    counted = false;
  }
  const std::string after = columnsOf(trial, name);
  require(counted ? after.starts_with(columns + "\n") &&
                        after.find("|a number|INTEGER|", columns.size()) != std::string::npos
                  : after == columns,
          "the table that is made again has other columns");
}

void fuzzSqlDate(std::string_view input) {
  const std::string one(takePiece(input));
  const std::string other(input);
  const std::optional<LocalTime> from = parseStamp(one);
  const std::optional<LocalTime> to = parseStamp(other);
  if (from) {
    require(parseDateTime(dateTimeText(*from)) == from, "a date does not name itself");
    require(dateTimeText(*from).starts_with(dateText(*from)), "a date has two days");
  }
  const std::string a = joinSql("'", sqlQuote(one), "'");
  const std::string b = joinSql("'", sqlQuote(other), "'");
  SqlScratch::Trial trial(sqlScratch());
  for (const char* unit : {"n", "s"}) {
    const SqlValue forwards = trial.value(joinSql("select datediff('", unit, "', ", a, ", ", b, ")"));
    const SqlValue backwards = trial.value(joinSql("select datediff('", unit, "', ", b, ", ", a, ")"));
    require(forwards.isNull() == (!from || !to), "a difference of what is no date, or none of dates");
    require(forwards.toInt64() == -backwards.toInt64(), "there and back again is not the same way");
    require(!from || !to || std::string_view(unit) != "s" || forwards.toInt64() == (*to - *from).count(),
            "a difference in seconds is wrong");
  }
}

}  // namespace tarnwick::testing
