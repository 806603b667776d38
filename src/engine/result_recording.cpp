// SPDX-License-Identifier: MIT
#include "engine/result_recording.h"

#include <limits>
#include <string_view>

#include "base/errors.h"
#include "engine/settling.h"
#include "page_rules/page_judge.h"
#include "store/first_field.h"
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

constexpr const char* kErrorPage = "The page is an error page of the server, and was not taken as the baseline.";
constexpr const char* kShortPage =
    "The page has less than half the length of the one before, and was not taken as the baseline.";
constexpr std::string_view kFailedFetch = "11:";

}  // namespace

bool isPage(std::string_view stored) {
  return !stored.empty() && !stored.starts_with(kFailedFetch) && stored != kPageNotKept;
}

ResultRecording::Judged ResultRecording::judge(std::int16_t idSite, std::string_view content, std::int32_t errCode,
                                               FirstBaseline first) {
  const auto rows = db_.query("select url,method,content_compare from sites where idSite = " + sqlQuote(idSite));
  Judged site;
  std::string baseline;
  if (!rows->eof()) {
    const bool hasBaseline = !rows->holds("content_compare", {});
    site = {rows->field("url").toText(), hasBaseline, hasBaseline && rows->holds("content_compare", content)};
    if (hasBaseline && errCode == 0 && hasRules(idSite)) {
      baseline = rows->field("content_compare").toText();
    }
  }
  rows->close();
  if (!baseline.empty()) {
    const PageVerdict verdict = judgePage(baseline, content, rules_.rulesOf(idSite));
    site.equals = site.equals || verdict.same;
    site.remark = verdict.remark;
  }
  if (site.hasBaseline && !site.equals && errCode == 0 && hasFurther(idSite)) {
    site.equals = isFurtherGood(further_, idSite, content, hasRules(idSite) ? rules_.rulesOf(idSite) : RuleSet());
    site.remark = site.equals ? "" : site.remark;
  }
  site.isAdopted = isAdopted(idSite, site, content, errCode, first);
  return site;
}

bool ResultRecording::hasRules(std::int16_t idSite) {
  if (!withRules_) {
    withRules_ = rules_.sitesWithRules();
  }
  return withRules_->contains(idSite);
}

bool ResultRecording::hasFurther(std::int16_t idSite) {
  if (!withFurther_) {
    withFurther_ = further_.sitesWithFurtherPages();
  }
  return withFurther_->contains(idSite);
}

bool ResultRecording::isAdopted(std::int16_t idSite, Judged& site, std::string_view content, std::int32_t errCode,
                                FirstBaseline first) {
  if (site.hasBaseline || first == FirstBaseline::anything || errCode != 0) {
    return !site.hasBaseline && first == FirstBaseline::anything;
  }
  if (first == FirstBaseline::nothing) {
    site.remark = kErrorPage;
    return false;
  }
  const std::string before = getContentRuntime(idSite);
  if (!before.starts_with(kFailedFetch) && before != kPageNotKept && content.size() * 2 < before.size()) {
    site.remark = kShortPage;
    return false;
  }
  return true;
}

bool ResultRecording::testSite(std::int16_t idSite, const std::string& content, std::int32_t errCode,
                               const std::string& errDescription, FirstBaseline first, KeptPage kept) {
  Transaction whole(db_);
  const Judged site = judge(idSite, content, errCode, first);
  remark_ = site.remark;
  const std::string behind = joinSql("'", " WHERE idsite = ", sqlQuote(idSite));
  const bool keeps = kept == KeptPage::whole || errCode != 0;

  if (site.isAdopted) {
    db_.execute("update sites set content_compare = '", content, behind);
  }
  db_.execute("update sites set content_runtime = '", keeps ? std::string_view(content) : kPageNotKept, behind);
  const bool result = site.isAdopted || site.equals;
  const std::string& cause = errDescription.empty() ? remark_ : errDescription;
  log_.addLog(idSite, site.url, result, errCode, keeps || result ? cause : kPageNotKept,
              result || !keeps ? std::string_view() : content);
  xupdateLastChecked(idSite);

  whole.commit();
  return result;
}

bool ResultRecording::wouldPass(std::int16_t idSite, const std::string& content, std::int32_t errCode,
                                FirstBaseline first) {
  const Judged site = judge(idSite, content, errCode, first);
  return site.isAdopted || site.equals;
}

std::unique_ptr<StoredText> ResultRecording::storeAhead(std::int16_t idSite, const std::string& content,
                                                        const std::function<void()>& between) {
  constexpr std::size_t kLong = std::size_t{1} << 20U;
  if (content.size() < kLong) {
    return nullptr;
  }
  const auto rows = db_.query("select content_compare,content_runtime from sites where idSite = " + sqlQuote(idSite));
  const bool isNew =
      !rows->eof() && !rows->holds("content_compare", content) && !rows->holds("content_runtime", content);
  rows->close();
  const auto betweenParts = [&] {
    between();
    db_.finishWriterAside();
  };
  betweenParts();
  return isNew ? db_.conn().storeAhead(content, betweenParts) : nullptr;
}

void ResultRecording::clearContentCompare(std::int16_t idSite) {
  db_.execute("update sites set content_compare = '' where idsite = " + sqlQuote(idSite));
}

void ResultRecording::updateContentCompare(std::int16_t idSite, const std::string& text) {
  db_.execute("update sites set content_compare = '", text, "' where idsite = " + sqlQuote(idSite));
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
