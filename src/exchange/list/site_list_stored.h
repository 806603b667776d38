// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "exchange/list/site_facts.h"
#include "exchange/list/site_list.h"
#include "program/m.h"

namespace tarnwick {

/// A stored site as a file tells of it: with the method and the interval that take effect where none is stored.
SiteDraft listedForm(SiteDraft stored);

/// Hands over the stored sites by rising id. Baselines are read one at a time, and only when they are columns: with a
/// `Snapshot` all of it is of one state of the database. Raises DataAccessError.
void readListedSites(m& data, ListColumns columns, const std::function<void(const ListedSite& site)>& take);

/// Whether an option is set, for a site or for all.
bool hasOptions(m& data);
/// Whether any site has rules.
bool hasRules(m& data);
/// Whether any site has tags, and whether any has earlier or further baselines.
bool hasTags(m& data);
bool hasKeptBaselines(m& data);

/// The stored id; raises OverflowError, which names it, when it does not fit 16 bits.
std::int16_t idOf(const SiteFacts& facts);

}  // namespace tarnwick
