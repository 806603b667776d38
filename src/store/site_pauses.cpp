// SPDX-License-Identifier: MIT
#include "store/site_pauses.h"

namespace tarnwick {
namespace {

std::optional<Pause> pauseIn(const OptionValues& values) {
  const auto found = values.find(option_name::pause);
  return found == values.end() ? std::nullopt : readPause(found->second);
}

bool endsSooner(const Pause& one, const Pause& other) {
  return !one.isOn || (one.until && (!other.until || *one.until < *other.until));
}

}  // namespace

void SitePauses::pause(const std::vector<std::int16_t>& sites, const Pause& pause) {
  Transaction whole(db_);
  for (const std::int16_t site : sites) {
    options_.setOption(site, option_name::pause, pauseText(pause));
  }
  whole.commit();
}

void SitePauses::pauseAll(const Pause& pause, LocalTime now) {
  Transaction whole(db_);
  for (const auto& [site, value] : options_.ownValues(option_name::pause)) {
    const auto own = readPause(value);
    if (!own || !isPaused(*own, now) || endsSooner(*own, pause)) {
      options_.removeOption(site, option_name::pause);
    }
  }
  options_.setOption(kAllSites, option_name::pause, pauseText(pause));
  whole.commit();
}

void SitePauses::resume(const std::vector<std::int16_t>& sites, LocalTime now) {
  Transaction whole(db_);
  const auto ofAll = pauseIn(options_.options(kAllSites));
  const bool allArePaused = ofAll && isPaused(*ofAll, now);
  for (const std::int16_t site : sites) {
    if (allArePaused) {
      options_.setOption(site, option_name::pause, pauseText(Pause{}));
    } else {
      options_.removeOption(site, option_name::pause);
    }
  }
  whole.commit();
}

void SitePauses::resumeAll() {
  Transaction whole(db_);
  for (const auto& [site, value] : options_.ownValues(option_name::pause)) {
    options_.removeOption(site, option_name::pause);
  }
  options_.removeOption(kAllSites, option_name::pause);
  whole.commit();
}

}  // namespace tarnwick
