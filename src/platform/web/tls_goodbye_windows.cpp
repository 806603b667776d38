// SPDX-License-Identifier: MIT
#include "platform/web/tls_goodbye.h"

namespace tarnwick {

// Windows itself takes the end without one for a failure.
bool watchGoodbye(void*, bool&) { return false; }

}  // namespace tarnwick
