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

/// The interval of a site, in minutes, that is watched and alerts on that way; no row for another one.
std::string alertingBy(AlertWatch::Way way, std::int16_t idSite) {
  return "select tInterval from sites, control where idSite = " + std::to_string(idSite) + " and active and " +
         (way == AlertWatch::mail ? "alertEmail and cemail" : "cprogram");
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
    } else if (!heard && world_.agenda.now() > std::max(unsureUntil_, silentUntil_[site])) {
      try {
        if (!askDatabase(world_, alertingBy(way, result.idSite)).empty()) {
          fail_("site " + std::to_string(result.idSite) + " has failed, and of its " + kNames[way] +
                " nothing was heard");
        }
        silentUntil_[site] = world_.agenda.now() + std::chrono::hours(6);
      } catch (const std::exception&) {
        // It cannot be looked into just now.
      }
    }
  }
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
