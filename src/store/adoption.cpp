// SPDX-License-Identifier: MIT
#include "store/adoption.h"

#include "store/first_field.h"
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

std::string literal(const std::optional<std::string>& text) {
  return text ? joinSql("'", sqlQuote(*text), "'") : std::string("null");
}

template <typename Value>
std::string literal(const std::optional<Value>& value) {
  return value ? sqlQuote(*value) : std::string("null");
}

}  // namespace

void adoptState(Database& database, std::int16_t idSite, const CheckedState& state) {
  database.execute(joinSql("update sites set lastChecked = ", literal(state.lastChecked),
                           ", status = ", literal(state.status), ", success = ", literal(state.success),
                           ", failure = ", literal(state.failure), " where idSite = ", sqlQuote(idSite)));
  database.execute(joinSql("update sites set content_runtime = ", literal(state.contentRuntime),
                           " where idSite = ", sqlQuote(idSite)));
}

void adoptLogRow(Database& database, const LogRow& row) {
  database.execute(joinSql("insert into log (idSite,url,status,errCode,errDescription,dateStamp,content) values (",
                           literal(row.idSite), ",", literal(row.url), ",", literal(row.status), ",",
                           literal(row.errCode), ",", literal(row.errDescription), ",", literal(row.dateStamp), ",",
                           literal(row.content), ")"));
}

bool isFresh(Database& database) {
  return !firstField(database, "select top 1 idSite from sites") && !firstField(database, "select top 1 url from log");
}

}  // namespace tarnwick
