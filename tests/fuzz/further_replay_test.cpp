// SPDX-License-Identifier: MIT
#include <set>

#include "fuzz/all_targets.h"
#include "fuzz/replay.h"

namespace tarnwick::testing {
namespace {

INSTANTIATE_TEST_SUITE_P(Further, FuzzReplay, ::testing::ValuesIn(furtherFuzzTargets()),
                         [](const auto& target) { return std::string(target.param.name); });

// The fuzzers are built for the folders.
TEST(FuzzCorpus, HasAFolderForEachTargetAndNoOther) {
  std::set<std::string> folders;
  for (const auto& entry : std::filesystem::directory_iterator(TARNWICK_FUZZ_CORPUS)) {
    folders.insert(entry.path().filename().string());
  }
  std::set<std::string> names;
  for (const FuzzTarget& target : allFuzzTargets()) {
    names.emplace(target.name);
  }
  EXPECT_EQ(folders, names);
}

}  // namespace
}  // namespace tarnwick::testing
