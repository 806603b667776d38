// SPDX-License-Identifier: MIT
#pragma once

#include "base/text_in_parts.h"
#include "report/month_figures.h"

namespace tarnwick {

/// The page of a month: its figures, a stripe of its days for each of the hundred worst sites and a line for the
/// others, the slowest sites, the certificates that end soonest, and the outages with their causes, of which the latest
/// 500. Raises DataAccessError.
TextInParts monthPage(SiteHistory& history, const MonthReport& report);

}  // namespace tarnwick
