#pragma once

#include "cli/list/site_list.h"
#include "cli/terminal/json_text.h"

namespace tarnwick {

/// What a JSON object tells of a site; nothing when something is wrong with it, which is added to `faults`.
std::optional<ListedSite> siteOfJson(JsonValue& object, std::size_t line, ListFaults& faults);

}  // namespace tarnwick
