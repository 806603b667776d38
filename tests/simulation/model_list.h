// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "model/model.h"
#include "simulation/world.h"

namespace tarnwick::simulation {

/// The list as the model has it, read as another program would.
model::Sites sitesOf(World& world);
model::Settings settingsOf(World& world);
/// The rows behind that number.
std::vector<model::LogRow> logOf(World& world, std::uint64_t from);

/// A site in one line, pages and all.
std::string lineOf(const model::Site& site);
std::string lineOf(const model::LogRow& row);

}  // namespace tarnwick::simulation
