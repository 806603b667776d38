// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include "fuzz/entries/fuzz_target.h"

namespace tarnwick::testing {

inline void PrintTo(const FuzzTarget& target, std::ostream* out) { *out << target.name; }

/// The inputs that are kept for a target, in the order of their names.
inline std::vector<std::string> keptInputs(const FuzzTarget& target) {
  const std::filesystem::path folder = std::filesystem::path(TARNWICK_FUZZ_CORPUS) / target.name;
  std::vector<std::filesystem::path> paths{std::filesystem::directory_iterator(folder), {}};
  std::sort(paths.begin(), paths.end());
  std::vector<std::string> inputs;
  for (const auto& path : paths) {
    std::ifstream file(path, std::ios::binary);
    inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return inputs;
}

/// Cases of one target: see replay_cases.cpp.
class FuzzReplay : public ::testing::TestWithParam<FuzzTarget> {};

}  // namespace tarnwick::testing
