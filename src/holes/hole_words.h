// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "holes/hole.h"

namespace tarnwick {

/// What may stand in a hole, for people: "a number of 1 to 6 digits", "a time".
std::string describe(const Hole& hole);

}  // namespace tarnwick
