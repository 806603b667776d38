// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ostream>

namespace tarnwick::simulation {

/// Cuts the power at every sync point, and after the last one, of each kind of work that writes: of a pass, of bringing
/// an older list up to date, of edits, of an import, a compaction and a restoration; each several times, with another
/// part of what was not synced left. Tells what was contradicted and how often the power was cut; false when anything
/// was.
bool cutPowerEverywhere(std::uint64_t seed, std::ostream& told);

}  // namespace tarnwick::simulation
