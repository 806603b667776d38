// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>

namespace tarnwick::testing {

/// Random numbers from a seed that is another one in every run, unless the environment gives it. Tell it where a case
/// fails: SCOPED_TRACE(dice.again()).
class FreshSeed {
 public:
  FreshSeed() : seed_(given()), engine_(seed_) {}

  /// What to set to see the same numbers again.
  std::string again() const { return std::string(kVariable) + "=" + std::to_string(seed_); }

  /// From 0 to `end` - 1. REQUIRES: `end` is not 0.
  std::size_t below(std::size_t end) { return engine_() % end; }
  std::int64_t between(std::int64_t least, std::int64_t most) {
    return least + static_cast<std::int64_t>(below(static_cast<std::size_t>(most - least) + 1));
  }
  bool oneIn(std::size_t times) { return below(times) == 0; }
  template <typename Items>
  const auto& oneOf(const Items& items) {
    return items[below(std::size(items))];
  }
  std::mt19937_64& engine() { return engine_; }

 private:
  static constexpr const char* kVariable = "TARNWICK_TEST_SEED";
  static std::uint64_t given() {
    const char* const seed = std::getenv(kVariable);
    return seed == nullptr ? std::random_device()() : std::strtoull(seed, nullptr, 10);
  }

  std::uint64_t seed_;
  std::mt19937_64 engine_;
};

}  // namespace tarnwick::testing
