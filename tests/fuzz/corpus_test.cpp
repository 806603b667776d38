// Replays what the fuzzers start from, and what they have found, through their own entries; then the same with some
// bytes changed, as a fuzzer would, but the same ones every time.

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "fuzz/all_targets.h"

namespace tarnwick::testing {
namespace {

constexpr int kMostChanged = 400;
constexpr std::chrono::milliseconds kLongEnough{500};

class FuzzCorpus : public ::testing::TestWithParam<FuzzTarget> {
 protected:
  static std::vector<std::string> inputs() {
    std::vector<std::string> all;
    const std::filesystem::path folder = std::filesystem::path(TARNWICK_FUZZ_CORPUS) / GetParam().name;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      std::ifstream file(entry.path(), std::ios::binary);
      all.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return all;
  }
};

std::string changed(std::string input, std::mt19937& random) {
  for (unsigned times = 1 + random() % 4; times > 0; --times) {
    const std::size_t at = input.empty() ? 0 : random() % input.size();
    const char byte = static_cast<char>(random() % 256);
    switch (input.empty() ? 0 : random() % 4) {
      case 0:
        input.insert(at, 1, byte);
        break;
      case 1:
        input.erase(at, 1 + random() % 8);
        break;
      case 2:
        input[at] = byte;
        break;
      default:
        input += input.substr(at, 64);
    }
  }
  return input;
}

TEST_P(FuzzCorpus, EveryInputIsAnswered) {
  EXPECT_FALSE(inputs().empty());
  for (const std::string& input : inputs()) {
    EXPECT_NO_THROW(GetParam().entry(input)) << input;
  }
}

TEST_P(FuzzCorpus, EveryChangedInputIsAnswered) {
  const std::vector<std::string> known = inputs();
  std::mt19937 random(20261121);  // NOLINT: the same changes every time
  const auto end = std::chrono::steady_clock::now() + kLongEnough;
  for (int i = 0; i < kMostChanged && std::chrono::steady_clock::now() < end; ++i) {
    const std::string input = changed(known[random() % known.size()], random);
    ASSERT_NO_THROW(GetParam().entry(input)) << input;
  }
}

INSTANTIATE_TEST_SUITE_P(Every, FuzzCorpus, ::testing::ValuesIn(allFuzzTargets()),
                         [](const auto& target) { return std::string(target.param.name); });

}  // namespace
}  // namespace tarnwick::testing
