// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "transcript/day.h"
#include "transcript/golden.h"
#include "transcript/table_rows.h"

namespace tarnwick::testing {
namespace {

TEST(Day, HappensAsItDid) {
  World world;
  settingsAndSites(world);
  firstPasses(world);
  editsInMidPass(world);
  faultsAndStops(world);
  upkeep(world);
  nightAndClosing(world);
  nextProgram(world);

  world.scene("What is left");
  recordFiles(world.folder, world.transcript);
  recordTables(world.folder, world.transcript);
  expectAsStored(world.transcript.text(), TARNWICK_GOLDEN, TARNWICK_ASIDE);
}

}  // namespace
}  // namespace tarnwick::testing
