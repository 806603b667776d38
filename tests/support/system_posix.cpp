// SPDX-License-Identifier: MIT
#include <ctime>

#include "support/system.h"

namespace tarnwick::testing {

double processorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

}  // namespace tarnwick::testing
