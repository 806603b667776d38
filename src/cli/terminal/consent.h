// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/terminal/console.h"

namespace tarnwick {

/// Asks before something is lost. True when `yes` was given on the command line or is typed; false, and said so, when
/// it is not. Raises std::runtime_error when it was not given and nobody is there to be asked.
bool consents(Console& console, bool yes, const std::string& question);

}  // namespace tarnwick
