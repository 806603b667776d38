// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick {

/// A site of the list that something is to be done with, as the list shows it.
struct ChosenSite {
  std::int16_t idSite = 0;
  std::string url{};
  bool active = true;
  bool down = false;
  bool known = false;    ///< its wrong page is acknowledged
  bool paused = false;   ///< nothing is told of it now
  bool counted = false;  ///< one of its counters is above 0
};

using ChosenSites = std::vector<ChosenSite>;

inline std::vector<std::int16_t> idsOf(const ChosenSites& sites) {
  std::vector<std::int16_t> ids;
  ids.reserve(sites.size());
  for (const ChosenSite& site : sites) {
    ids.push_back(site.idSite);
  }
  return ids;
}

/// Those of them for which `fits` is true.
template <typename Fits>
ChosenSites thoseOf(const ChosenSites& sites, Fits fits) {
  ChosenSites some;
  for (const ChosenSite& site : sites) {
    if (fits(site)) {
      some.push_back(site);
    }
  }
  return some;
}

}  // namespace tarnwick
