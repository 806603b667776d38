// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "exchange/list/site_facts.h"
#include "exchange/list/site_list.h"
#include "program/m.h"

namespace tarnwick {

/// A stored site as a file tells of it: with the method and the interval that take effect where none is stored.
SiteDraft listedForm(SiteDraft stored);

/// The stored sites by rising id, one at a time, each with what the columns ask for. REQUIRES: a Snapshot around all of
/// it.
class ListedSiteReader {
 public:
  ListedSiteReader(m& data, const ListColumns& columns) : data_(data), columns_(columns), facts_(data) {}
  /// Nothing when there are no more. Raises DataAccessError.
  std::optional<ListedSite> next();

 private:
  m& data_;
  const ListColumns columns_;
  SiteFactsReader facts_;
  std::vector<SiteFacts> read_{};
  std::size_t taken_ = 0;
};

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
