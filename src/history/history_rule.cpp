// SPDX-License-Identifier: MIT
#include "history/history_rule.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr std::chrono::hours kHour{1};
constexpr double kPerCent = 100;

void share(std::vector<HourShare>& shares, Stretch known, bool up) {
  while (known.from < known.until) {
    const Moment hour = hourOf(known.from);
    const Moment end = std::min<Moment>(hour + kHour, known.until);
    if (shares.empty() || shares.back().hour != hour) {
      shares.push_back({hour});
    }
    (up ? shares.back().up : shares.back().down) += end - known.from;
    known.from = end;
  }
}

}  // namespace

std::optional<double> TimeSum::uptime() const {
  return known().count() > 0
             ? std::optional(kPerCent * static_cast<double>(up.count()) / static_cast<double>(known().count()))
             : std::nullopt;
}

void TimeSum::add(const TimeSum& other) {
  checks += other.checks;
  up += other.up;
  down += other.down;
  tookInAll += other.tookInAll;
  slowest = std::max(slowest, other.slowest);
  latency.add(other.latency);
}

std::optional<Stretch> knownAfter(const LatestCheck& check, std::chrono::seconds interval, Moment now) {
  Moment until = now - check.at <= 2 * interval ? now : check.at + interval;
  until = check.until ? std::min(*check.until, until) : until;
  return until > check.at ? std::optional(Stretch{check.at, until}) : std::nullopt;
}

std::vector<HourShare> sharesAfter(const LatestCheck& check, std::chrono::seconds interval,
                                   std::span<const Stretch> planned, Moment now) {
  std::vector<HourShare> shares;
  const std::optional<Stretch> known = knownAfter(check, interval, now);
  if (!known) {
    return shares;
  }
  Moment from = known->from;
  for (const Stretch& part : planned) {
    share(shares, {from, std::min(part.from, known->until)}, check.up);
    from = std::max(from, part.until);
  }
  share(shares, {from, known->until}, check.up);
  return shares;
}

OutageChange outageAfter(const std::optional<LatestCheck>& before, std::chrono::seconds interval,
                         const TakenCheck& check) {
  const bool wasDown = before && !before->up;
  if (!check.up) {
    return wasDown ? OutageChange{OutageChange::Kind::goesOn} : OutageChange{OutageChange::Kind::begins, check.at};
  }
  if (!wasDown) {
    return {};
  }
  const std::optional<Stretch> known = knownAfter(*before, interval, check.at);
  return {OutageChange::Kind::ends, known ? known->until : before->at};
}

}  // namespace tarnwick
