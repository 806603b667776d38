// SPDX-License-Identifier: MIT
#include "simulation/alert_watch.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace tarnwick::simulation {
namespace {

/// The alert program of the simulated lists, with the site's id as its argument.
constexpr const char* kAlertProgram = "alert";

constexpr const char* kNames[AlertWatch::ways]{"mail", "program"};

/// Of the sites that are watched and alert on that way.
std::string ofThoseAlertingBy(AlertWatch::Way way, const std::string& field) {
  return "select " + field + " from sites, control where active and " +
         (way == AlertWatch::mail ? "alertEmail and cemail" : "cprogram");
}
/// The interval of one, in minutes; no row for another site.
std::string alertingBy(AlertWatch::Way way, std::int16_t idSite) {
  return ofThoseAlertingBy(way, "tInterval") + " and idSite = " + std::to_string(idSite);
}

}  // namespace

std::int16_t AlertWatch::siteOfMail(const std::string& mail) {
  const std::string before = "the site ";
  const std::size_t at = mail.find(before);
  return at == std::string::npos ? std::int16_t{0}
                                 : static_cast<std::int16_t>(std::stoi(mail.substr(at + before.size())));
}

std::int16_t AlertWatch::siteOfProgram(const std::vector<std::string>& program) {
  const bool isAlert = program.size() == 2 && program.front() == kAlertProgram;
  return isAlert ? static_cast<std::int16_t>(std::stoi(program.back())) : std::int16_t{0};
}

void AlertWatch::left(Way way, std::int16_t idSite) {
  heard_.emplace(way, idSite);
  lostSince_.erase({way, idSite});
}

void AlertWatch::lost(Way way, std::int16_t idSite) {
  heard_.emplace(way, idSite);
  lostSince_.try_emplace({way, idSite}, world_.agenda.now());
}

void AlertWatch::shown(const CheckResult& result) {
  for (const Way way : {mail, program}) {
    const Site site{way, result.idSite};
    const bool heard = heard_.erase(site) > 0;
    if (result.passed) {
      lostSince_.erase(site);
    } else if (!heard && world_.agenda.now() > unsureUntil_) {
      try {
        if (alertedBy(way).contains(result.idSite)) {
          fail_("site " + std::to_string(result.idSite) + " has failed, and of its " + kNames[way] +
                " nothing was heard");
        }
      } catch (const std::exception&) {
        // It cannot be looked into just now.
      }
    }
  }
}

const std::set<std::int16_t>& AlertWatch::alertedBy(Way way) {
  Alerted& alerted = alerted_[way];
  if (world_.agenda.now() > alerted.asksAgain) {
    alerted.sites.clear();
    for (const std::string& id : askDatabase(world_, ofThoseAlertingBy(way, "idSite"))) {
      alerted.sites.insert(static_cast<std::int16_t>(std::stoi(id)));
    }
    alerted.asksAgain = world_.agenda.now() + std::chrono::hours(6);
  }
  return alerted.sites;
}

void AlertWatch::watch(Time excusedUntil) {
  const Time now = world_.agenda.now();
  for (auto lost = lostSince_.begin(); lost != lostSince_.end();) {
    const auto& [way, id] = lost->first;
    const std::vector<std::string> interval = askDatabase(world_, alertingBy(way, id));
    if (interval.empty()) {
      lost = lostSince_.erase(lost);
      continue;
    }
    const Time since = std::max({lost->second, excusedUntil, unsureUntil_, heals_[way]});
    if (since < now && now - since > std::chrono::minutes(std::stoll(interval.front())) + kLatest) {
      fail_("site " + std::to_string(id) + " is down, and no " + kNames[way] + " has left for " +
            std::to_string(std::chrono::floor<std::chrono::minutes>(now - since).count()) + " minutes");
      return;
    }
    ++lost;
  }
}

}  // namespace tarnwick::simulation
