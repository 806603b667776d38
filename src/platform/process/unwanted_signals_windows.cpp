// SPDX-License-Identifier: MIT
#include "platform/process/unwanted_signals.h"

namespace tarnwick {

// The system has no such signals.
void ignoreUnwantedSignals() {}

}  // namespace tarnwick
