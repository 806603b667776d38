// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>

#include "simulation/plan.h"

namespace tarnwick::simulation {

/// A plan that fails as `failing` does, with as little happening as could be found: whole classes of troubles are left
/// out first, then single ones, halves before quarters. What is found is told to `told`.
Plan shrink(const Plan& failing, std::ostream& told);

}  // namespace tarnwick::simulation
