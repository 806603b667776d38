// SPDX-License-Identifier: MIT
#include "store/history_overview.h"

#include <algorithm>
#include <array>
#include <utility>

#include "store/history_rows.h"
#include "store/table_there.h"

namespace tarnwick {

using namespace std::chrono;

namespace {

constexpr const char* kDays =
    "select idSite, day, up, seconds - up - unknown from days where idSite = ?1 and day >= ?2 and day < ?3";

/// Puts known times into the cells of their sites.
class Cells {
 public:
  Cells(const Period& period, std::span<const SiteToShow> sites, Moment now) : edges_(edgesOf(period, now)) {
    for (const SiteToShow& site : sites) {
      overviews_.push_back({site.idSite, {}});
    }
  }

  Moment begin() const { return edges_.front(); }
  std::vector<SiteOverview> take() { return std::move(overviews_); }

  /// Of one that is not wanted nothing.
  void add(std::int64_t idSite, Moment began, seconds up, seconds down) {
    const auto own = std::ranges::lower_bound(overviews_, idSite, {}, &SiteOverview::idSite);
    const auto behind = std::upper_bound(edges_.begin(), edges_.end() - 1, began);
    if (own == overviews_.end() || own->idSite != idSite || behind == edges_.begin()) {
      return;
    }
    own->cells.resize(edges_.size() - 1);
    const auto cell = static_cast<std::size_t>(behind - edges_.begin()) - 1;
    // More can be known only where the clock was set back.
    const seconds length = edges_[cell + 1] - edges_[cell];
    KnownTime& known = own->cells[cell];
    known.up = static_cast<std::int32_t>(std::min(seconds(known.up) + up, length).count());
    known.down = static_cast<std::int32_t>(std::min(seconds(known.down) + down, length - seconds(known.up)).count());
  }

  void addRows(Recordset& rows) {
    for (; !rows.eof(); rows.moveNext()) {
      add(rows.field(std::size_t{0}).toInt64(), history_rows::momentIn(rows.field(std::size_t{1})),
          seconds(rows.field(std::size_t{2}).toInt64()), seconds(rows.field(std::size_t{3}).toInt64()));
    }
  }

 private:
  std::vector<Moment> edges_;
  std::vector<SiteOverview> overviews_;
};

}  // namespace

std::optional<double> SiteOverview::uptime() const {
  TimeSum sum;
  for (const KnownTime& cell : cells) {
    sum.up += seconds(cell.up);
    sum.down += seconds(cell.down);
  }
  return sum.uptime();
}

std::vector<SiteOverview> overviewsOf(SiteHistory& history, const Period& period, std::span<const SiteToShow> sites,
                                      Moment now) {
  Cells cells(period, sites, now);
  if (sites.empty() || !hasTable(history.database(), "latestChecks")) {
    return cells.take();
  }
  SqlConnection& database = history.database().conn();
  const auto addHours = [&](std::int64_t first, std::int64_t last, Moment from) {
    const std::array<SqlValue, 4> key{SqlValue(first), SqlValue(last), history_rows::of(from), history_rows::of(now)};
    cells.addRows(*database.execute(
        "with recursive slot (hour) as (select min(hour) from hours where hour >= ?3 union all select (select "
        "min(hour) "
        "from hours where hour > slot.hour) from slot where slot.hour < ?4) select h.idSite, h.hour, h.up, 3600 - h.up "
        "- "
        "h.unknown from slot cross join hours h on h.hour = slot.hour and h.idSite >= ?1 and h.idSite <= ?2 where "
        "slot.hour < ?4",
        key));
  };
  const Moment today = dayOf(now);
  for (const SiteToShow& site : sites) {
    const auto latest = history.latestCheck(site.idSite);
    if (!latest) {
      continue;
    }
    for (const HourShare& share : sharesAfter(*latest, site.interval, {}, now)) {
      cells.add(site.idSite, share.hour, share.up, share.down);
    }
    if (period.days > 0) {
      const std::array<SqlValue, 3> key{SqlValue(site.idSite), history_rows::of(cells.begin()),
                                        history_rows::of(today)};
      cells.addRows(*database.execute(kDays, key));
      // Its last day has no sum before a check comes after it.
      if (latest->at < today) {
        addHours(site.idSite, site.idSite, dayOf(latest->at));
      }
    }
  }
  addHours(sites.front().idSite, sites.back().idSite, period.days > 0 ? today : cells.begin());
  return cells.take();
}

}  // namespace tarnwick
