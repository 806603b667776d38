// SPDX-License-Identifier: MIT
#pragma once

#include "base/text_in_parts.h"
#include "store/site_history.h"

namespace tarnwick {

/// The page for everybody: which of the active sites are up now, and 30 days of each, the first hundred with a stripe,
/// without causes and without what an address may hold that is not for everybody; at most a thousand, those that are
/// down first, then those that were up the least. A site whose latest check says nothing any more is unknown. Raises
/// DataAccessError.
TextInParts statusPage(SiteHistory& history, Moment now);

}  // namespace tarnwick
