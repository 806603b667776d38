// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "cli/verbs/tool.h"

namespace tarnwick {

/// Whether a run is on in the folder, as far as its lock tells: one that was killed may have left it.
bool seemsToRun(Tool& tool);

/// Complains when a run that is on would not take on some of the sites that have just been added or changed: the active
/// ones that were never checked, unless the option `newSites` lets it. Where nobody reads along, on no terminal, it
/// does so only while a run seems to be on.
void hintAtUnwatched(Tool& tool, const std::vector<std::int16_t>& changed);

}  // namespace tarnwick
