// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "engine/run_view.h"
#include "simulation/world.h"

namespace tarnwick::simulation {

/// How much later than its interval a site may be checked, and an alert leave: the rest of the minute in which the site
/// falls due, the requests that run into their time-out before it, and a mail server that takes its time for each
/// failure. A run shows something all the while.
inline constexpr Time kLatest = std::chrono::minutes(15);

/// What becomes of alerts. Of each mail and started program it is heard that it has left, or that it was lost; and one
/// that was lost leaves with the next failure of its site, within its interval and `kLatest` once its way has healed.
class AlertWatch {
 public:
  AlertWatch(World& world, std::function<void(const std::string&)> fail) : world_(world), fail_(std::move(fail)) {}

  enum Way { mail, program, ways };

  void left(Way way, std::int16_t idSite);
  void lost(Way way, std::int16_t idSite);
  /// A result was shown; by then its alerts have left or were lost.
  void shown(const CheckResult& result);
  /// Alerts that leave on this way from now on are lost, or are not lost any more.
  void broken(Way way) { heals_[way] = Time::max(); }
  void healed(Way way) { heals_[way] = world_.agenda.now(); }
  /// Somebody changes which alerts there are to be: for a while it is not known whom a failure should have alerted.
  void mayChange() {
    unsureUntil_ = world_.agenda.now() + std::chrono::minutes(10);
    std::ranges::fill(alerted_, Alerted());
  }
  /// The program has ended, and with it the alerts that were under way.
  void begin() { heard_.clear(); }

  /// Whether every alert that was lost has left since. Nothing is promised before `excusedUntil`.
  void watch(Time excusedUntil);

  /// The site that a mail, or an alert program, is about; 0 for another one.
  static std::int16_t siteOfMail(const std::string& mail);
  static std::int16_t siteOfProgram(const std::vector<std::string>& program);

 private:
  using Site = std::pair<Way, std::int16_t>;

  /// Whom a failure is to alert that way, and how long that is believed.
  struct Alerted {
    std::set<std::int16_t> sites;
    Time asksAgain{-1};
  };
  const std::set<std::int16_t>& alertedBy(Way way);

  World& world_;
  std::function<void(const std::string&)> fail_;
  std::set<Site> heard_;            ///< of the failure that is shown next
  std::map<Site, Time> lostSince_;  ///< and not left since
  Alerted alerted_[ways]{};
  Time heals_[ways]{};
  Time unsureUntil_{0};
};

}  // namespace tarnwick::simulation
