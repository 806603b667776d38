// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "store/site_draft.h"

namespace tarnwick {

class m;

/// Reads a site. A text of the letters "NULL" is told from a Null, which is empty. Raises DataAccessError, and
/// std::runtime_error when there is no such site.
SiteDraft readSite(m& data, std::int16_t idSite);

/// Reads a site's POST variables. A text of the letters "NULL" is told from a Null, which is empty.
std::vector<PostVar> readPostVars(m& data, std::int16_t idSite);

/// Stores a site and its POST variables in place of what is stored: all of it, or nothing. An interval that is empty
/// becomes 10 minutes, that of a new site. Raises DataAccessError, OverflowError when the interval does not fit 16
/// bits, and std::runtime_error when the site is gone.
void storeSite(m& data, std::int16_t idSite, const SiteDraft& site, const std::vector<PostVar>& vars);

/// Raises std::runtime_error when a site is not in the list (any more).
void requireSite(m& data, std::int16_t idSite);

}  // namespace tarnwick
