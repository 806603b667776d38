// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/json/json_text.h"
#include "exchange/list/site_list.h"

namespace tarnwick {

/// What a JSON object tells of a site; nothing when something is wrong with it, which is added to `faults`.
std::optional<ListedSite> siteOfJson(JsonValue& object, const ListForm& form, std::size_t line, ListFaults& faults);
/// Takes the options that a JSON object holds into `options`; what is wrong is added to the faults of `values`.
void readOptionsOfJson(const JsonValue& object, const Fields& fields, OptionValues& options, ListValues& values);

}  // namespace tarnwick
