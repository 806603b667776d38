// SPDX-License-Identifier: MIT
#include "store/result_log.h"

#include <algorithm>
#include <vector>

#include "store/first_field.h"
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

// The fields are read by their numbers, in this order: a log may have millions of rows.
constexpr const char* kFields = "rowid as position,idSite,url,status,errCode,errDescription,dateStamp";
constexpr std::size_t kPositionField = 0;

constexpr std::size_t kMostRowsOfPiece = 500;
constexpr std::size_t kMostBytesOfPiece = std::size_t{1} << 20U;

std::string conditionsOf(const LogChoice& choice, std::int64_t first, std::int64_t last) {
  std::string sql = joinSql(" where rowid >= ", sqlQuote(first), " and rowid <= ", sqlQuote(last));
  if (choice.since) {
    sql += joinSql(" and dateStamp >= '", sqlQuote(dateTimeText(*choice.since)), "'");
  }
  if (choice.idSite) {
    sql += joinSql(" and idSite = ", sqlQuote(*choice.idSite));
  }
  if (choice.failures) {
    sql += " and status = 0";
  }
  return sql;
}

std::optional<std::int64_t> number(const SqlValue& value) {
  return value.isNull() ? std::nullopt : std::optional(value.toInt64());
}

std::optional<std::string> text(const SqlValue& value) {
  return value.isNull() ? std::nullopt : std::optional(value.toText());
}

LogRow rowOf(const Recordset& rows, bool content) {
  std::size_t field = kPositionField;
  LogRow row;
  row.idSite = number(rows.field(++field));
  row.url = text(rows.field(++field));
  const SqlValue status = rows.field(++field);
  row.status = status.isNull() ? std::nullopt : std::optional(status.toBool());
  row.errCode = number(rows.field(++field));
  row.errDescription = text(rows.field(++field));
  row.dateStamp = text(rows.field(++field));
  if (content) {
    row.content = text(rows.field(++field));
  }
  return row;
}

std::size_t bytesOf(const LogRow& row) {
  std::size_t bytes = sizeof(LogRow);
  for (const auto* part : {&row.url, &row.errDescription, &row.dateStamp, &row.content}) {
    bytes += *part ? (*part)->size() : 0;
  }
  return bytes;
}

}  // namespace

std::optional<ResultLog::Span> ResultLog::spanOf(const LogChoice& choice) {
  const SqlValue last = firstField(db_, "select max(rowid) from log").value_or(SqlValue());
  // The index of the days tells where a day begins, so that what lies before it is not read.
  const SqlValue first =
      firstField(db_, choice.since ? joinSql("select min(rowid) from log where datevalue(dateStamp) >= '",
                                             sqlQuote(dateText(*choice.since)), "'")
                                   : std::string("select min(rowid) from log"))
          .value_or(SqlValue());
  if (last.isNull() || first.isNull()) {
    return std::nullopt;
  }
  Span span{first.toInt64(), last.toInt64()};
  if (choice.newest) {
    const SqlValue oldestOfNewest =
        firstField(db_, joinSql("select rowid from log", conditionsOf(choice, span.first, span.last),
                                " order by rowid desc limit 1 offset ",
                                sqlQuote(std::max<std::int64_t>(*choice.newest, 1) - 1)))
            .value_or(SqlValue());
    span.first = oldestOfNewest.isNull() ? span.first : oldestOfNewest.toInt64();
  }
  return span;
}

void ResultLog::readLog(const LogChoice& choice, const std::function<bool(const LogRow&)>& take) {
  auto rest = spanOf(choice);
  while (rest && rest->first <= rest->last && readPiece(choice, *rest, take)) {
  }
}

LogPiece ResultLog::readLogBackwards(std::int16_t idSite, std::optional<std::int64_t> before, std::int64_t most) {
  const auto whole = spanOf({});
  if (!whole) {
    return {};
  }
  const std::int64_t last = before ? std::min(*before - 1, whole->last) : whole->last;
  const std::int64_t first = std::max(whole->first, last - most + 1);
  LogPiece piece;
  const auto rows = db_.query(
      joinSql("select ", kFields, " from log", conditionsOf({.idSite = idSite}, first, last), " order by rowid desc"));
  for (; !rows->eof(); rows->moveNext()) {
    piece.rows.push_back(rowOf(*rows, false));
  }
  rows->close();
  piece.before = first > whole->first ? std::optional(first) : std::nullopt;
  return piece;
}

// Reads the next rows of `rest`, moves its beginning behind them, and only then hands them on. False at the end.
bool ResultLog::readPiece(const LogChoice& choice, Span& rest, const std::function<bool(const LogRow&)>& take) {
  std::vector<LogRow> piece;
  std::size_t bytes = 0;
  const auto rows = db_.query(joinSql("select ", kFields, choice.content ? ",content" : "", " from log",
                                      conditionsOf(choice, rest.first, rest.last), " order by rowid"));
  std::int64_t read = rest.first;
  for (; !rows->eof() && piece.size() < kMostRowsOfPiece && bytes < kMostBytesOfPiece; rows->moveNext()) {
    read = rows->field(kPositionField).toInt64();
    piece.push_back(rowOf(*rows, choice.content));
    bytes += bytesOf(piece.back());
  }
  const bool more = !rows->eof();
  rows->close();
  rest.first = read + 1;
  return std::ranges::all_of(piece, take) && more;
}

}  // namespace tarnwick
