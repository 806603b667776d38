// SPDX-License-Identifier: MIT
// Gives each target the inputs that the fuzzers start from and what they have found, then some that are made of these
// as a fuzzer makes them, but the same ones every time.

#include <chrono>
#include <exception>

#include "fuzz/mutator.h"
#include "fuzz/replay.h"

namespace tarnwick::testing {
namespace {

constexpr int kMostChanged = 2000;
constexpr std::chrono::milliseconds kLongestRun{500};
constexpr std::uint32_t kSeed = 20;

/// True when nothing was wrong.
::testing::AssertionResult answers(const FuzzTarget& target, const std::string& input) {
  try {
    target.entry(input);
    return ::testing::AssertionSuccess();
  } catch (const std::exception& finding) {
    return ::testing::AssertionFailure() << finding.what() << ". The input, a file for tests/fuzz/corpus/"
                                         << target.name << ": " << ::testing::PrintToString(input);
  }
}

TEST_P(FuzzReplay, KeptInputsAreAnswered) {
  const std::vector<std::string> inputs = keptInputs(GetParam());
  EXPECT_FALSE(inputs.empty());
  for (const std::string& input : inputs) {
    EXPECT_TRUE(answers(GetParam(), input));
  }
}

TEST_P(FuzzReplay, ChangedInputsAreAnswered) {
  const std::vector<std::string> inputs = keptInputs(GetParam());
  ASSERT_FALSE(inputs.empty());
  Mutator mutator(inputs, kSeed);
  const auto end = std::chrono::steady_clock::now() + kLongestRun;
  for (int i = 0; i < kMostChanged && std::chrono::steady_clock::now() < end; ++i) {
    ASSERT_TRUE(answers(GetParam(), mutator.next()));
  }
}

}  // namespace
}  // namespace tarnwick::testing
