// SPDX-License-Identifier: MIT
#include "engine/site_reasons.h"

#include <utility>

#include "base/errors.h"
#include "base/visible_text.h"
#include "engine/cause.h"
#include "engine/result_recording.h"
#include "engine/sites_not_fetched.h"
#include "engine/widening.h"
#include "store/first_field.h"
#include "store/site_rules.h"
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

/// More than this of pages would hold up the window for longer than anybody should wait for a hint.
constexpr std::int64_t kTooLargeToLook = std::int64_t{48} << 20U;
/// The same for what else could be said of them.
constexpr std::size_t kTooLargeToLookTwice = std::size_t{2} << 20U;

// The newest row of the log for what stands in `site`; Null where the day has none. By day, address, result and moment,
// as the index of the log has them, so that neither a long log nor its pages are read.
std::string newestOfDay(std::string_view what, std::string_view day, std::string_view url, std::string_view status,
                        std::string_view idSite) {
  return joinSql("(select ", what, " from log where datevalue(dateStamp) = ", day, " and url = ", url,
                 " and status = ", status, " and idSite = ", idSite, " order by dateStamp desc, rowid desc limit 1)");
}

// A check that ends in the first moments of a day may have been logged on the day before.
std::string newestOf(std::string_view what, const std::string& lastChecked, std::string_view url,
                     std::string_view status, std::string_view idSite) {
  return joinSql("coalesce(", newestOfDay(what, "datevalue(" + lastChecked + ")", url, status, idSite), ",",
                 newestOfDay(what, "datevalue(datetime(" + lastChecked + ",'-1 minute'))", url, status, idSite), ")");
}

std::string inQuotes(const std::string& text) { return "'" + sqlQuote(text) + "'"; }

}  // namespace

std::optional<SiteReasons::Stand> SiteReasons::standOf(std::int16_t idSite) {
  const auto rows = db_.query("select url,active,status,lastChecked from sites where idSite = " + sqlQuote(idSite));
  std::optional<Stand> stand;
  if (!rows->eof() && rows->field("active").toBool() && !rows->field("status").isNull()) {
    stand = Stand{rows->field("url").toText(), rows->field("status").toBool(), rows->field("lastChecked").toText()};
  }
  rows->close();
  return stand;
}

// Why the fetch of the last check failed; nothing when it brought a page, or when that is not known.
std::optional<std::string> SiteReasons::failedFetch(std::int16_t idSite, const Stand& stand) {
  const std::string id = sqlQuote(idSite);
  const auto cause = firstField(
      db_, joinSql("select ", newestOf("case when errCode <> 0 then errDescription end", inQuotes(stand.lastChecked),
                                       inQuotes(stand.url), stand.up ? "1" : "0", id)));
  if (!cause || cause->isNull()) {
    return std::nullopt;
  }
  std::string text = cause->toText();
  // The log may have been switched off since, or the baseline been changed.
  const bool last = firstFlag(db_, joinSql("select ", stand.up ? "content_compare" : "content_runtime", " = ",
                                           inQuotes("11:" + text), " from sites where idSite = ", id));
  return last ? std::optional(std::move(text)) : std::nullopt;
}

// What the last check that brought a page had to tell beside its verdict.
std::string SiteReasons::remarkOf(std::int16_t idSite, const Stand& stand) {
  const auto remark = firstField(
      db_, joinSql("select ", newestOf("case when errCode = 0 then errDescription end", inQuotes(stand.lastChecked),
                                       inQuotes(stand.url), stand.up ? "1" : "0", sqlQuote(idSite))));
  return remark && !remark->isNull() ? remark->toText() : std::string();
}

// Of both pages, without reading them. None where they lie in the table of the sites itself.
std::int64_t SiteReasons::storedBytes(std::int16_t idSite) {
  const SqlValue id(std::int64_t{idSite});
  try {
    const auto rows = db_.conn().execute(
        "select coalesce(sum(storedBytes('pagePieces', 'content', piece)), 0) from siteRows, pagePieces where idSite = "
        "?1 and (piece between comparePage * 4 and comparePage * 4 + 3 or piece between runtimePage * 4 and "
        "runtimePage "
        "* 4 + 3)",
        {&id, 1});
    return rows->eof() ? 0 : rows->field(std::size_t{0}).toInt64();
  } catch (const DataAccessError&) {
    return 0;
  }
}

std::string SiteReasons::reasonOf(std::int16_t idSite) {
  const auto stand = standOf(idSite);
  if (!stand) {
    return {};
  }
  CheckResult result{.idSite = idSite, .url = stand->url, .passed = stand->up};
  const auto fetch = failedFetch(idSite, *stand);
  if (fetch) {
    result.errCode = -1;
    result.errDescription = *fetch;
  }
  const std::string remark = fetch ? std::string() : remarkOf(idSite, *stand);
  result.remark = remark;
  if (stand->up) {
    const std::string note = noteOf(result);
    return note.empty() ? note : "up: " + note;
  }
  if (fetch) {
    return causeOf(result, {});
  }
  if (storedBytes(idSite) > kTooLargeToLook) {
    return "the page differs from the baseline, and is too large to be compared here";
  }
  const auto [baseline, page] = pagesOf(idSite);
  result.page = page;
  if (page == kPageNotKept) {
    result.errDescription =
        "the page differs from the baseline, and was not kept: there is too little room on the disk";
  }
  const RuleSet rules = SiteRules(db_).rulesOf(idSite);
  const std::string cause = causeOf(result, baseline, rules);
  const bool isSmall = baseline.size() + page.size() <= kTooLargeToLookTwice;
  const std::string look = isSmall && !baseline.empty() && isPage(page) ? firstLook(baseline, rules, page) : "";
  return look.empty() ? cause : cause + "; it looks like " + look;
}

// The baseline, and that of the latest check.
std::pair<std::string, std::string> SiteReasons::pagesOf(std::int16_t idSite) {
  std::pair<std::string, std::string> pages;
  const auto rows = db_.query("select content_compare,content_runtime from sites where idSite = " + sqlQuote(idSite));
  if (!rows->eof()) {
    pages = {rows->field("content_compare").toText(), rows->field("content_runtime").toText()};
  }
  rows->close();
  return pages;
}

SiteReasons::ShortReason SiteReasons::shortReasonOf(std::int16_t idSite) {
  const auto stand = standOf(idSite);
  if (!stand) {
    return {};
  }
  if (const auto fetch = failedFetch(idSite, *stand)) {
    return {.error = visibleText(*fetch)};
  }
  if (stand->up || storedBytes(idSite) > static_cast<std::int64_t>(kTooLargeToLookTwice)) {
    return {};
  }
  const auto [baseline, page] = pagesOf(idSite);
  if (baseline.empty() || page == kPageNotKept) {
    return {};
  }
  return {.line = lineOfDifference(baseline, page, SiteRules(db_).rulesOf(idSite))};
}

namespace {

std::set<std::int64_t> sitesNotFetchedAmong(Database& database, const std::string& condition) {
  const std::string failed =
      "case when errCode <> 0 then "
      "(select case when status then content_compare else content_runtime end = '11:' || log.errDescription from sites "
      "as page where page.idSite = log.idSite) end";
  const std::string sql =
      joinSql("select idSite from sites where lastChecked is not null and ",
              newestOf(failed, "lastChecked", "sites.url", "sites.status", "sites.idSite"), condition);
  const auto rows = database.query(sql);
  std::set<std::int64_t> sites;
  for (; !rows->eof(); rows->moveNext()) {
    sites.insert(rows->field("idSite").toInt64());
  }
  rows->close();
  return sites;
}

}  // namespace

std::set<std::int64_t> SiteReasons::sitesNotFetched(std::int16_t idSite) {
  return sitesNotFetchedAmong(db_, idSite > 0 ? " and idSite = " + sqlQuote(idSite) : std::string());
}

std::set<std::int64_t> sitesNotFetchedBetween(Database& database, std::int64_t first, std::int64_t last) {
  return sitesNotFetchedAmong(database, joinSql(" and idSite between ", sqlQuote(first), " and ", sqlQuote(last)));
}

}  // namespace tarnwick
