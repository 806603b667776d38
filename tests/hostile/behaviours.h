// SPDX-License-Identifier: MIT
#pragma once

#include "support/hostile_behaviour.h"

namespace tarnwick::testing {

/// What a well-behaved site answers; the neighbours of the bad ones, and the goal of redirects.
inline constexpr const char* kSteadyPage = "a steady page\n";

HostileBehaviours silentBehaviours();
HostileBehaviours lengthBehaviours();
HostileBehaviours codingBehaviours();
HostileBehaviours statusBehaviours();
HostileBehaviours headerBehaviours();
HostileBehaviours redirectBehaviours();
HostileBehaviours challengeBehaviours();
HostileBehaviours secureBehaviours();
HostileBehaviours brokenBehaviours();
HostileBehaviours largeBehaviours();
HostileBehaviours ftpBehaviours();
/// Those that only serve the others: a steady page, a page on another host and the like.
HostileBehaviours helpfulBehaviours();

/// All of the above.
HostileBehaviours allBehaviours();

}  // namespace tarnwick::testing
