// SPDX-License-Identifier: MIT
#include "store/post_vars.h"

#include <array>

#include "base/errors.h"
#include "store/first_field.h"
#include "store/sql_quote.h"

namespace tarnwick {

TextTable PostVars::getPostVars(std::int16_t idSite) {
  constexpr std::size_t kName = 1;
  constexpr std::size_t kValue = 2;
  const auto rows = db_.query("select idpostvars,pname,pvalue from postvars where idSite = " + sqlQuote(idSite));
  TextTable table(kValue);
  for (; !rows->eof(); rows->moveNext()) {
    const std::size_t row = table.addRow();
    table.at(kName, row) = rows->field("pname").toTableText();
    table.at(kValue, row) = rows->field("pvalue").toTableText();
  }
  rows->close();
  return table;
}

void PostVars::addPostVars(std::int16_t idSite, const std::string& pname, const std::string& pvalue) {
  db_.execute(joinSql("insert into postvars (idSite,pname,pvalue) values ", "(", sqlQuote(idSite), ", ", "'",
                      sqlQuote(pname), "'", ", ", "'", sqlQuote(pvalue), "'", " ", ")"));
}

void PostVars::updatePostVars(std::int16_t idPostVars, const std::string& pname, const std::string& pvalue) {
  db_.execute(joinSql("update postVars set ", "pname = '", sqlQuote(pname), "'", ",", "pvalue = '", sqlQuote(pvalue),
                      "'", " WHERE ", " idPostVars = ", sqlQuote(idPostVars)));
}

std::int16_t PostVars::getIdPostVars(std::int16_t idSite, const std::string& pname, const std::string& pvalue) {
  const auto id =
      firstField(db_, joinSql("select idPostVars from postVars where ", " idSite = ", sqlQuote(idSite), " AND ",
                              " pname = '", sqlQuote(pname), "'", " AND ", " pvalue = '", sqlQuote(pvalue), "'"));
  return id ? id->toInt16("the id of a POST variable of site " + sqlQuote(idSite)) : std::int16_t{0};
}

void PostVars::deletePostVars(std::int16_t idPostVars) {
  db_.execute(joinSql("delete from postVars where ", " idPostvars = ", sqlQuote(idPostVars)));
}

void PostVars::clearPostVars(std::int16_t idSite) {
  db_.execute("delete from postvars where idSite = " + sqlQuote(idSite));
}

void PostVars::reIdpostVars() {
  SqlConnection& conn = db_.conn();
  try {
    Transaction whole(db_);
    rebuildPostVars();
    if (conn.inTransaction()) {
      whole.commit();
    }
  } catch (const DataAccessError&) {
    // The ids stay as they are: that is harmless, and the next start tries again.
  }
}

void PostVars::rebuildPostVars() {
  static constexpr std::array kSteps = {
      "drop table tempPostVars",
      "select idSite,pname,pvalue into tempPostVars from postVars",
      "alter table tempPostVars add column idPostVars counter not null",
      "ALTER TABLE tempPostVars ADD CONSTRAINT idConstraint PRIMARY KEY (idPostVars)",
      "drop table postVars",
      "select idPostVars,idSite,pname,pvalue into postVars from tempPostVars",
  };
  for (const char* step : kSteps) {
    try {
      db_.execute(step);
    } catch (const DataAccessError&) {
      if (!db_.conn().inTransaction()) {
        return;  // no room left: the database has taken everything back, so nothing more may be dropped
      }
    }
  }
}

}  // namespace tarnwick
