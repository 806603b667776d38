// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/verbs/tool.h"
#include "engine/alarm_view.h"

namespace tarnwick {

class JsonValue;
struct SiteFacts;

/// What the list says of a site's alarm, and whether somebody watches it.
struct SiteWatch {
  AlarmView alarm;
  Unwatched unwatched = Unwatched::no;
  /// What is known of its certificate, where it is looked at.
  std::optional<SiteCertificate> certificate{};
};

/// The same for all sites, read at once.
class SiteWatches {
 public:
  explicit SiteWatches(Tool& tool);

  SiteWatch of(const SiteFacts& facts) const;

 private:
  LocalTime now_;
  bool runIsOn_;
  OptionsInForce options_;
  std::map<std::int64_t, SiteStanding> standings_;
  std::map<std::int64_t, Acknowledgement> known_;
  std::map<std::int64_t, SiteCertificate> certificates_;
};

/// Adds what there is to be said to the JSON of a site: the members "alarm", "certificate" and "unwatched".
void addTo(JsonValue& json, const SiteWatch& watch);
/// The lines of it in the text about a site: labels and values.
std::vector<std::pair<std::string, std::string>> linesOf(const Console& console, const SiteWatch& watch);

/// Counts the sites that nobody watches by the reason, and complains of them where somebody reads along, or a run is
/// on that should watch them.
class UnwatchedCount {
 public:
  void add(std::int64_t idSite, Unwatched why);
  void complain(Tool& tool) const;

 private:
  struct Some {
    std::size_t count = 0;
    std::int64_t first = 0;
  };
  std::map<Unwatched, Some> sites_;
};

}  // namespace tarnwick
