// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/clock.h"
#include "store/history_rows.h"
#include "store/site_history.h"

namespace tarnwick {

using namespace std::chrono;
using history_rows::of;

namespace {

/// How many rows are read between two looks at the events: some milliseconds' worth.
constexpr std::int64_t kRowsAtOnce = 10000;

/// The stamps of a log, which are local time, as moments. They rise but where the clock was set back, as at the end of
/// daylight saving, where the same hour comes twice.
class Stamps {
 public:
  std::optional<Moment> momentOf(const std::string& stamp) {
    const auto local = parseStamp(stamp);
    if (!local) {
      return std::nullopt;
    }
    if (const auto hour = floor<hours>(*local); hour != hour_) {
      hour_ = hour;
      distance_ = local->time_since_epoch() - momentAt(*local).time_since_epoch();
      comesTwice_ = localTimeAt(Moment(local->time_since_epoch()) - distance_ + hours{1}) == *local;
    }
    Moment moment = Moment(local->time_since_epoch()) - distance_;
    if (comesTwice_ && last_ > moment) {
      moment += hours{1};
    }
    last_ = moment;
    return moment;
  }

 private:
  std::optional<local_time<hours>> hour_;
  seconds distance_{0};
  bool comesTwice_ = false;
  Moment last_{};
};

/// What a log comes to, check by check.
class Replay {
 public:
  using Key = std::pair<Moment, std::int64_t>;

  struct Site {
    std::string url;
    seconds interval{};
    std::optional<LatestCheck> latest{};
  };

  void addSite(std::int64_t id, Site site) { sites_.emplace(id, std::move(site)); }

  void take(std::int64_t id, const std::string& url, const TakenCheck& check) {
    const auto found = sites_.find(id);
    if (found == sites_.end() || found->second.url != url) {
      return;
    }
    Site& site = found->second;
    if (site.latest && check.at < site.latest->at) {
      return;  // that time has been counted
    }
    if (site.latest) {
      for (const HourShare& share : sharesAfter(*site.latest, site.interval, {}, check.at)) {
        TimeSum& hour = hours_[{share.hour, id}];
        hour.up += share.up;
        hour.down += share.down;
      }
    }
    ++hours_[{hourOf(check.at), id}].checks;
    takeOutage(id, outageAfter(site.latest, site.interval, check), check.cause);
    site.latest = LatestCheck{check.at, check.up};
  }

  const std::map<Key, TimeSum>& sumsOfHours() const { return hours_; }
  const std::vector<Outage>& outages() const { return outages_; }
  const std::map<std::int64_t, Site>& sites() const { return sites_; }

  /// The days, or months, before the latest check of slot site.
  std::map<std::pair<std::int64_t, Moment>, TimeSum> sums(Moment (*beginningOf)(Moment)) const {
    std::map<std::pair<std::int64_t, Moment>, TimeSum> sums;
    Moment hour{};
    Moment beginning = beginningOf(hour);
    for (const auto& [key, sum] : hours_) {
      if (key.first != hour) {
        hour = key.first;
        beginning = beginningOf(hour);
      }
      if (beginning < beginningOf(sites_.at(key.second).latest->at)) {
        sums[{key.second, beginning}].add(sum);
      }
    }
    return sums;
  }

 private:
  void takeOutage(std::int64_t id, const OutageChange& change, const std::string& cause) {
    if (change.kind == OutageChange::Kind::begins) {
      open_[id] = outages_.size();
      outages_.push_back({id, change.at, std::nullopt, 1, cause});
    } else if (change.kind == OutageChange::Kind::goesOn) {
      ++outages_[open_[id]].checks;
    } else if (change.kind == OutageChange::Kind::ends) {
      outages_[open_[id]].ended = change.at;
    }
  }

  std::map<std::int64_t, Site> sites_;
  std::map<Key, TimeSum> hours_;
  std::vector<Outage> outages_;
  std::map<std::int64_t, std::size_t> open_;
};

void addSites(Database& database, Replay& replay) {
  const auto rows = database.conn().execute("select idSite, url, tInterval from sites", std::span<const SqlValue>());
  for (; !rows->eof(); rows->moveNext()) {
    const std::int64_t interval = std::max<std::int64_t>(1, rows->field(std::size_t{2}).toInt64());
    replay.addSite(rows->field(std::size_t{0}).toInt64(), {rows->field(std::size_t{1}).toText(), minutes(interval)});
  }
}

/// Takes the rows behind the number `last` and returns the last of them; nothing where there are no more.
std::optional<std::int64_t> takeRows(Database& database, std::int64_t last, Moment now, Stamps& stamps,
                                     Replay& replay) {
  const std::array<SqlValue, 2> key{SqlValue(last), SqlValue(kRowsAtOnce)};
  const auto rows = database.conn().execute(
      "select rowid, idSite, url, status, dateStamp, errDescription from log where rowid > ?1 order by rowid limit ?2",
      key);
  if (rows->eof()) {
    return std::nullopt;
  }
  for (; !rows->eof(); rows->moveNext()) {
    last = rows->field(std::size_t{0}).toInt64();
    const SqlValue status = rows->field(std::size_t{3});
    const auto moment = stamps.momentOf(rows->field(std::size_t{4}).toText());
    if (status.isNull() || !moment || *moment > now) {
      continue;
    }
    TakenCheck check{*moment, status.toBool()};
    if (!check.up) {
      const std::string cause = rows->field(std::size_t{5}).toText();
      check.cause = cause.empty() ? kPageDiffers : cause;
    }
    replay.take(rows->field(std::size_t{1}).toInt64(), rows->field(std::size_t{2}).toText(), check);
  }
  return last;
}

}  // namespace

bool SiteHistory::takeLog(Moment now, const std::function<bool()>& between) {
  if (hasTakenLog()) {
    return true;
  }
  Replay replay;
  addSites(db_, replay);
  Stamps stamps;
  for (std::optional<std::int64_t> last = -1; last; last = takeRows(db_, *last, now, stamps, replay)) {
    if (!between()) {
      return false;
    }
  }
  Transaction whole(db_);
  if (hasTakenLog()) {
    return true;  // by another program
  }
  const auto run = [&](const char* sql, std::span<const SqlValue> values) { db_.conn().execute(sql, values)->close(); };
  for (const auto& [key, sum] : replay.sumsOfHours()) {
    run(history_rows::kStoreHour, history_rows::hourRow(key.second, key.first, sum));
  }
  for (const auto& [key, sum] : replay.sums(&dayOf)) {
    run(history_rows::kStoreDay, history_rows::rowOfLength(key.first, {key.second, dayFrom(key.second, 1)}, sum));
  }
  for (const auto& [key, sum] : replay.sums(&monthOf)) {
    run(history_rows::kStoreMonth, history_rows::rowOfLength(key.first, {key.second, monthAfter(key.second)}, sum));
  }
  for (const Outage& outage : replay.outages()) {
    run("insert or replace into outages (idSite, began, ended, checks, cause) values (?1, ?2, ?3, ?4, ?5)",
        std::array<SqlValue, 5>{SqlValue(outage.idSite), of(outage.began),
                                outage.ended ? of(*outage.ended) : SqlValue(), SqlValue(outage.checks),
                                SqlValue(outage.cause)});
  }
  const auto storeLatest = [&](std::int64_t id, const LatestCheck& latest) {
    run("insert or replace into latestChecks (idSite, at, up) values (?1, ?2, ?3)",
        std::array<SqlValue, 3>{SqlValue(id), of(latest.at), SqlValue(std::int64_t{latest.up ? 1 : 0})});
  };
  for (const auto& [id, site] : replay.sites()) {
    if (site.latest) {
      storeLatest(id, *site.latest);
    }
  }
  storeLatest(0, {now, true});
  whole.commit();
  return true;
}

}  // namespace tarnwick
