// SPDX-License-Identifier: MIT
#include "engine/result_recording.h"

#include <limits>

#include "base/errors.h"
#include "store/first_field.h"
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

struct Judged {
  std::string url;
  std::string baseline;
};

Judged readJudged(Database& database, std::int16_t idSite) {
  const auto rows = database.query("select url,method,content_compare from sites where idSite = " + sqlQuote(idSite));
  Judged site;
  if (!rows->eof()) {
    site = {rows->field("url").toText(), rows->field("content_compare").toText()};
  }
  rows->close();
  return site;
}

bool isAdopted(const Judged& site, std::int32_t errCode, FirstBaseline first) {
  return site.baseline.empty() && (first == FirstBaseline::anything || errCode == 0);
}

bool passes(const Judged& site, const std::string& content) {
  return !site.baseline.empty() && content == site.baseline;
}

}  // namespace

bool ResultRecording::testSite(std::int16_t idSite, const std::string& content, std::int32_t errCode,
                               const std::string& errDescription, FirstBaseline first, KeptPage kept) {
  Transaction whole(db_);
  const Judged site = readJudged(db_, idSite);
  const std::string id = sqlQuote(idSite);
  const bool keeps = kept == KeptPage::whole || errCode != 0;

  const bool adopted = isAdopted(site, errCode, first);
  const std::string quotedContent = adopted || keeps ? sqlQuote(content) : std::string();
  if (adopted) {
    db_.execute(joinSql("update sites set content_compare = '", quotedContent, "'", " WHERE idsite = ", id));
  }
  db_.execute(joinSql("update sites set content_runtime = '", keeps ? quotedContent : sqlQuote(kPageNotKept), "'",
                      " WHERE idsite = ", id));
  const bool result = adopted || passes(site, content);
  log_.addLog(idSite, site.url, result, errCode, keeps || result ? errDescription : kPageNotKept,
              result || !keeps ? std::string() : content);
  xupdateLastChecked(idSite);

  whole.commit();
  return result;
}

bool ResultRecording::wouldPass(std::int16_t idSite, const std::string& content, std::int32_t errCode,
                                FirstBaseline first) {
  const Judged site = readJudged(db_, idSite);
  return isAdopted(site, errCode, first) || passes(site, content);
}

void ResultRecording::clearContentCompare(std::int16_t idSite) {
  db_.execute("update sites set content_compare = '' where idsite = " + sqlQuote(idSite));
}

void ResultRecording::updateContentCompare(std::int16_t idSite, const std::string& text) {
  db_.execute(joinSql("update sites set content_compare = '", sqlQuote(text), "' where idsite = ", sqlQuote(idSite)));
}

std::string ResultRecording::getContentCompare(std::int16_t idSite) {
  return firstText(db_, "select content_compare from sites where idsite = " + sqlQuote(idSite));
}

std::string ResultRecording::getContentRuntime(std::int16_t idSite) {
  return firstText(db_, "select content_runtime from sites where idsite = " + sqlQuote(idSite));
}

void ResultRecording::xupdateLastChecked(std::int16_t idSite) {
  db_.execute(joinSql("update sites set lastChecked = '", sqlQuote(dateTimeText(clock_.localNow())), "'",
                      " where idsite = ", sqlQuote(idSite)));
}

std::optional<LocalTime> ResultRecording::getLastChecked(std::int16_t idSite) {
  return parseStamp(firstText(db_, "select lastChecked from sites where idsite = " + sqlQuote(idSite)));
}

bool ResultRecording::getStatus(std::int16_t idSite) {
  return firstFlag(db_, "select status from sites where idSite = " + sqlQuote(idSite));
}

void ResultRecording::setStatus(std::int16_t idSite, bool status) {
  db_.execute(joinSql("update sites set status = ", sqlQuote(status), " where idSite = ", sqlQuote(idSite)));
}

void ResultRecording::clearStatus() { db_.execute("update sites set status = true"); }

bool ResultRecording::getActive(std::int16_t idSite) {
  return firstFlag(db_, "select Active from sites where idSite = " + sqlQuote(idSite));
}

void ResultRecording::setActive(std::int16_t idSite, bool active) {
  db_.execute(joinSql("update sites set Active = ", sqlQuote(active), " where idSite = ", sqlQuote(idSite)));
}

std::string ResultRecording::getUrl(std::int16_t idSite) {
  return firstText(db_, "select url from sites where idSite = " + sqlQuote(idSite));
}

void ResultRecording::updateStatusCounter(std::int16_t idSite, bool result) {
  // Another program may be counting too.
  Transaction whole(db_);
  const std::string column = sqlQuote(result ? "success" : "failure");
  const std::string id = sqlQuote(idSite);
  const auto stored = firstField(db_, joinSql("select ", column, " from sites where idsite = ", id));
  if (!stored) {
    return;
  }
  const std::int64_t count = stored->toInt64();
  if (count < std::numeric_limits<std::int16_t>::min() || count >= std::numeric_limits<std::int16_t>::max()) {
    throw FullCounter("Overflow: the " + column + " counter of site " + id + " (" + getUrl(idSite) + ") stands at " +
                      std::to_string(count) +
                      " and cannot count further. Clear the counters in the site's "
                      "Counters dialog.");
  }
  db_.execute(joinSql("update sites set ", column, " = ", sqlQuote(count + 1), " where idsite = ", id));
  whole.commit();
}

}  // namespace tarnwick
