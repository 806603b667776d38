// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarnwick::testing {

/// Where two texts differ first, with the lines around it; empty when they are equal.
std::string firstDifference(const std::string& stored, const std::string& actual);

/// Fails the test when `actual` is not the text of the file `stored`: shows where it differs first, and writes it to
/// the file `aside` so that the two can be compared. It is also written to the file that the environment variable
/// TARNWICK_TRANSCRIPT_OUT names.
void expectAsStored(const std::string& actual, const std::string& stored, const std::string& aside);

}  // namespace tarnwick::testing
