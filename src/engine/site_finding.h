// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "engine/alarm_view.h"
#include "finding/site_query.h"
#include "store/site_tags.h"

namespace tarnwick {

/// What is known of a site where it is to be found.
struct SiteSeen {
  std::int64_t idSite = 0;
  std::string_view url{};
  bool active = true;
  std::optional<bool> status{};  ///< nothing when it was never judged
  bool isChecked = false;
  bool hasPage = true;  ///< the last check brought one
  bool acknowledged = false;
  AlarmView alarm{};
  Unwatched unwatched = Unwatched::no;
};

/// The site as a query finds it. It looks at the address and at `tags`, which outlive it.
FoundSite foundSiteOf(const SiteSeen& seen, const Tags& tags);

}  // namespace tarnwick
