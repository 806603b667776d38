// SPDX-License-Identifier: MIT
#include "store/site_records.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/errors.h"
#include "base/text.h"
#include "store/acknowledgements.h"
#include "store/baselines.h"
#include "store/first_field.h"
#include "store/outbox.h"
#include "store/site_history.h"
#include "store/site_options.h"
#include "store/site_rules.h"
#include "store/site_standing.h"
#include "store/site_table.h"
#include "store/site_tags.h"
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

constexpr std::string_view kInsertTemplate =
    "insert into sites (idSite,url,method,active,tInterval) values (~idSite~,'http://localhost','GET',true,10)";
constexpr std::string_view kIdToken = "~idSite~";

std::int16_t newSiteId(const SqlValue& mid) {
  constexpr std::int64_t kHighestId = std::numeric_limits<std::int16_t>::max();
  const std::int64_t id = mid.toInt64();
  if (id > kHighestId) {
    throw OverflowError("Overflow: no site can be added, since the site id " + std::to_string(id - 1) +
                        " is in use and ids end at " + std::to_string(kHighestId) +
                        ". Delete the site with the highest id, then add the new one.");
  }
  return checkedInt16(id, "the new site's id");
}

bool mayStandInAddress(char c) {
  return isLetter(c) || isDigit(c) || std::string_view("_.@-").find(c) != std::string_view::npos;
}

/// What lies beside the original tables.
void removeWhatGoesWith(Database& database, std::int64_t idSite) {
  removeOptionsOf(database, idSite);
  SiteStandings(database).removeStanding(idSite);
  SiteRules(database).removeRules(idSite);
  Outbox(database).removeAlertsOf(idSite);
  Baselines(database).removeBaselinesOf(idSite);
  SiteTags(database).removeTagsOf(idSite);
  Acknowledgements(database).removeAcknowledgement(idSite);
  SiteHistory(database).removeHistory(idSite);
}

}  // namespace

std::int16_t SiteRecords::addSite() {
  // Another program may be adding one too.
  Transaction whole(db_);
  const SqlValue mid = firstField(db_, "select max(idSite)+1 as mid from sites").value_or(SqlValue());
  const std::int16_t idSite = mid.isNull() ? std::int16_t{1} : newSiteId(mid);
  addSite(idSite);
  whole.commit();
  return idSite;
}

void SiteRecords::addSite(std::int16_t idSite) {
  std::string sql(kInsertTemplate);
  sql.replace(sql.find(kIdToken), kIdToken.size(), sqlQuote(idSite));
  db_.execute(std::move(sql));
  // Left behind by a program that deleted a site and knew nothing of it. Not before the id has turned out to be free.
  removeWhatGoesWith(db_, idSite);
}

void SiteRecords::updateSites(std::int16_t idSite, const std::string& url, const std::string& method, bool active,
                              std::int16_t tInterval, bool alertEmail, const std::string& email,
                              const std::string& sUserName, const std::string& sPassWord) {
  db_.execute(joinSql("update sites set ",                              //
                      "url = '", sqlQuote(url), "'", ", ",              //
                      "method = '", sqlQuote(method), "'", ", ",        //
                      "active = ", sqlQuote(active), ", ",              //
                      "tInterval = '", sqlQuote(tInterval), "'", ", ",  //
                      "alertEmail = ", sqlQuote(alertEmail), ", ",      //
                      "email = '", sqlQuote(email), "'", ", ",          //
                      "sUserName = '", sqlQuote(sUserName), "'", ", ",  //
                      "sPassWord = '", sqlQuote(sPassWord), "'", " ",   //
                      " WHERE idSite = ", sqlQuote(idSite)));
}

TextTable SiteRecords::getArraySites(std::int16_t idSite) {
  std::string sql = joinSql("select ", kSiteFields, " from sites");
  if (idSite > 0) {
    sql += " where idSite = " + sqlQuote(idSite);
  }
  return readSiteTable(db_, std::move(sql));
}

std::string SiteRecords::getMethod(std::int16_t idSite) {
  const auto method = firstField(db_, "select method from methods where idSite = " + sqlQuote(idSite));
  return method ? method->toText() : "NONE";
}

void SiteRecords::clearCounters(std::int16_t idSite) {
  std::string sql = "update sites set success=0,failure=0 ";
  if (idSite >= 0) {
    sql += " where idSite = " + sqlQuote(idSite);
  }
  db_.execute(std::move(sql));
}

void SiteRecords::deleteSite(std::int16_t idSite) {
  // Both or neither: a variable left behind would be sent by the next site that is given this id.
  Transaction whole(db_);
  db_.execute(joinSql("delete from sites ", " where idsite = ", sqlQuote(idSite)));
  db_.execute(joinSql("delete from postvars ", " where idsite = ", sqlQuote(idSite)));
  removeWhatGoesWith(db_, idSite);
  whole.commit();
}

void SiteRecords::deleteSiteOfAnyId(std::int64_t idSite) {
  if (std::in_range<std::int16_t>(idSite)) {
    deleteSite(static_cast<std::int16_t>(idSite));
    return;
  }
  const SqlValue id(idSite);
  Transaction whole(db_);
  db_.conn().execute("delete from sites where idSite = ?1", {&id, 1});
  db_.conn().execute("delete from postVars where idSite = ?1", {&id, 1});
  removeWhatGoesWith(db_, idSite);
  whole.commit();
}

bool SiteRecords::anyIdExists(std::int64_t idSite) {
  const SqlValue id(idSite);
  return !db_.conn().execute("select idSite from sites where idSite = ?1", {&id, 1})->eof();
}

bool SiteRecords::idExists(std::int16_t idSite) {
  return firstField(db_, "select idSite from sites where idsite = " + sqlQuote(idSite)).has_value();
}

bool SiteRecords::isEmail(std::string_view s) {
  constexpr std::size_t kShortest = 5;
  constexpr std::size_t kLongestEnding = 3;
  const std::size_t at = s.rfind('@');
  const std::size_t dot = s.rfind('.');
  if (s.size() < kShortest || at == std::string_view::npos || dot == std::string_view::npos) {
    return false;
  }
  if (s.size() - dot - 1 > kLongestEnding) {
    return false;
  }
  const std::size_t underscore = s.rfind('_');
  if (underscore != std::string_view::npos && underscore > at) {
    return false;
  }
  return std::count(s.begin(), s.end(), '@') == 1 && std::all_of(s.begin(), s.end(), mayStandInAddress);
}

}  // namespace tarnwick
