// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tarnwick::simulation {

/// Numbers that are the same for the same seed on every machine and with every library (SplitMix64).
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : state_(seed) {}

  std::uint64_t next() {
    state_ += 0x9e3779b97f4a7c15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30U)) * 0xbf58476d1ce4e5b9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94d049bb133111ebU;
    return mixed ^ (mixed >> 31U);
  }
  /// From 0 to `end` - 1. REQUIRES: `end` is not 0.
  std::uint64_t below(std::uint64_t end) { return next() % end; }
  /// From `least` to `most`.
  std::int64_t between(std::int64_t least, std::int64_t most) {
    return least + static_cast<std::int64_t>(below(static_cast<std::uint64_t>(most - least) + 1));
  }
  /// True once in so many times.
  bool oneIn(std::uint64_t times) { return below(times) == 0; }
  template <typename Item, std::size_t count>
  const Item& oneOf(const Item (&items)[count]) {
    return items[below(count)];
  }
  /// Numbers of its own for a part of the world: what another part draws changes nothing for this one.
  static Chance of(std::uint64_t seed, std::uint64_t part) {
    Chance mixed(seed ^ (part * 0xd1342543de82ef95U));
    return Chance(mixed.next());
  }

 private:
  std::uint64_t state_;
};

}  // namespace tarnwick::simulation
