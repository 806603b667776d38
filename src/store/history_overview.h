// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "history/calendar.h"
#include "store/history_view.h"

namespace tarnwick {

/// What is known of a cell of a stripe, in seconds; the rest of its time is not known. Short, since there may be
/// thirty thousand stripes.
struct KnownTime {
  std::int32_t up = 0;
  std::int32_t down = 0;

  bool operator==(const KnownTime&) const = default;
};

/// How a site has been over a period, without its answer times.
struct SiteOverview {
  std::int64_t idSite = 0;
  /// One for each cell of the period; none where nothing is known of the site.
  std::vector<KnownTime> cells{};

  /// Up in per cent of the known time; nothing where none is known.
  std::optional<double> uptime() const;
};

/// The overviews of some sites, in rising order of their ids, up to `now`: a piece of a long list, which takes about
/// 10 microseconds for each cell. Raises DataAccessError.
std::vector<SiteOverview> overviewsOf(SiteHistory& history, const Period& period, std::span<const SiteToShow> sites,
                                      Moment now);

}  // namespace tarnwick
