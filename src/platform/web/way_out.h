// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Whether this machine knows where to send what is for the Internet: a default route, over IPv4 or IPv6. Sends
/// nothing.
bool knowsWayOut();

}  // namespace tarnwick
