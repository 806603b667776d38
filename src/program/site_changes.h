// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "program/m.h"

namespace tarnwick {

/// What is to be changed of several sites at once; what is empty stays.
struct SiteChanges {
  std::optional<bool> active;
  std::optional<std::string> interval;  ///< in minutes, 1 to 32767
  /// Options that are set, and, with an empty value, removed. REQUIRES: each can be set for a site.
  OptionValues options;
  bool resetsCounters = false;
  Tags addedTags;
  Tags removedTags;

  bool none() const {
    return !active && !interval && options.empty() && !resetsCounters && addedTags.empty() && removedTags.empty();
  }
};

/// What changes of a site.
struct PlannedChange {
  std::int16_t idSite = 0;
  /// "active", "interval", the names of options, "counters", "tags".
  std::vector<std::string> what;
};

/// What changes of one site; nothing when it stays as it is, or is gone. Raises DataAccessError.
std::optional<PlannedChange> planChange(m& data, std::int16_t idSite, const SiteChanges& changes);

/// Changes one site; nothing when it is gone. Raises as `carryOutChanges`.
void carryOutChange(m& data, std::int16_t idSite, const SiteChanges& changes);

/// The sites of which something changes, in the order of `ids`: the preview. Raises DataAccessError.
std::vector<PlannedChange> planChanges(m& data, const std::vector<std::int16_t>& ids, const SiteChanges& changes);

/// Changes them, all or none. Sites that are gone meanwhile are left out. Raises DataAccessError, and
/// std::runtime_error for an option's value that is none, and for more tags than a site may have.
void carryOutChanges(m& data, const std::vector<PlannedChange>& plan, const SiteChanges& changes);

}  // namespace tarnwick
