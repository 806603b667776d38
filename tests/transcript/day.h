// SPDX-License-Identifier: MIT
#pragma once

#include "transcript/world.h"

namespace tarnwick::testing {

/// The scenes of the day, in their order. Each goes on where the one before it has ended.
void settingsAndSites(World& world);
void firstPasses(World& world);
void editsInMidPass(World& world);
void faultsAndStops(World& world);
void upkeep(World& world);
void nightAndClosing(World& world);
void nextProgram(World& world);

}  // namespace tarnwick::testing
