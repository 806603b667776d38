// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "model/model.h"
#include "platform/sql_connection.h"

namespace tarnwick::simulation {

/// The list as the model has it, read through the program's own connection: that costs a fraction of opening it as
/// another program would, which the ledger does.
model::Sites sitesOf(SqlConnection& list);
model::Settings settingsOf(SqlConnection& list);
/// The rows behind that number.
std::vector<model::LogRow> logOf(SqlConnection& list, std::uint64_t from);
std::uint64_t lastLogRow(SqlConnection& list);

/// A site in one line, pages and all.
std::string lineOf(const model::Site& site);
std::string lineOf(const model::LogRow& row);

}  // namespace tarnwick::simulation
