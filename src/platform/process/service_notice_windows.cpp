// SPDX-License-Identifier: MIT
#include "platform/service_notice.h"

namespace tarnwick {

// The system's services are of another kind, and this program is none of them.
ServiceNotice::ServiceNotice(TimerMaker&) {}
ServiceNotice::~ServiceNotice() = default;

}  // namespace tarnwick
