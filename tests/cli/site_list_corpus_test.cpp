// Replays what the fuzzers of the list's formats start from, and what they have found.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "fuzz/site_list_entries.h"

namespace tarnwick::testing {
namespace {

class SiteListCorpus : public ::testing::TestWithParam<FuzzTarget> {};

TEST_P(SiteListCorpus, EveryInputIsAnswered) {
  const std::filesystem::path folder = std::filesystem::path(TARNWICK_FUZZ_CORPUS) / GetParam().name;
  int inputs = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string input{std::istreambuf_iterator<char>(file), {}};
    EXPECT_NO_THROW(GetParam().entry(input)) << entry.path();
    ++inputs;
  }
  EXPECT_GT(inputs, 0) << folder << " is empty";
}

INSTANTIATE_TEST_SUITE_P(Formats, SiteListCorpus, ::testing::ValuesIn(kSiteListFuzzTargets),
                         [](const auto& target) { return std::string(target.param.name); });

}  // namespace
}  // namespace tarnwick::testing
