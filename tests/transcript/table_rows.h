// SPDX-License-Identifier: MIT
#pragma once

#include "support/program_folder.h"
#include "transcript/transcript.h"

namespace tarnwick::testing {

/// Writes down every row of the program's tables, column by column, as another program reads them. Tables and columns
/// beside these do not count.
void recordTables(const ProgramFolder& folder, Transcript& transcript);

/// Writes down which files lie in the folder and below it.
void recordFiles(const ProgramFolder& folder, Transcript& transcript);

}  // namespace tarnwick::testing
