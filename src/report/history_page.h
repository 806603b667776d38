// SPDX-License-Identifier: MIT
#pragma once

#include "base/text_in_parts.h"
#include "store/site_history.h"

namespace tarnwick {

/// The page with the history of all sites, the worst first: those that are down, then those that were up the least in
/// 30 days. The first hundred with stripes, answer times and outages, the others with a line of percentages each.
/// Raises DataAccessError.
TextInParts historyPage(SiteHistory& history, Moment now);

}  // namespace tarnwick
