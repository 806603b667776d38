// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "exchange/json/json_text.h"
#include "exchange/list/site_list.h"

namespace tarnwick {

/// Channels as JSON: [{"name": "office", "kind": "mail", "on": true, "forAll": true, "settings": {...}}, ...], with a
/// member "secret" where it is known.
JsonValue channelsJson(const std::vector<ListedChannel>& channels);
/// Takes the channels that a JSON array holds into `channels`, each as it can be stored; what is wrong is added to the
/// faults of `values`.
void readChannelsOfJson(const JsonValue& array, std::vector<ListedChannel>& channels, ListValues& values);

}  // namespace tarnwick
