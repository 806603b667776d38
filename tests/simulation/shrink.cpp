// SPDX-License-Identifier: MIT
#include "simulation/shrink.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <vector>

#include "simulation/simulation.h"

namespace tarnwick::simulation {
namespace {

/// What fails otherwise is another failure: the numbers in it may differ.
std::string kindOf(std::string failure) {
  std::erase_if(failure, [](char c) { return c >= '0' && c <= '9'; });
  return failure;
}

class Shrinker {
 public:
  explicit Shrinker(const Plan& failing) : best_(failing), wanted_(kindOf(Simulation(failing).run().failure)) {}

  Plan shrunk() {
    for (std::size_t i = 0; i < kTroubles; ++i) {
      Plan less = best_;
      less.without.insert(static_cast<Trouble>(i));
      keepIfFails(less);
    }
    for (std::size_t piece = remaining().size(); piece >= 1 && hasTime(); piece /= 2) {
      dropPieces(piece);
    }
    return best_;
  }
  std::size_t left() const { return remaining().size(); }

 private:
  std::vector<std::size_t> remaining() const {
    std::vector<std::size_t> numbers;
    const std::vector<Happening> all = best_.happenings();
    for (std::size_t i = 0; i < all.size(); ++i) {
      if (best_.takes(i, all[i])) {
        numbers.push_back(i);
      }
    }
    return numbers;
  }
  void dropPieces(std::size_t piece) {
    const std::vector<std::size_t> numbers = remaining();
    for (std::size_t from = 0; from < numbers.size() && hasTime(); from += piece) {
      Plan less = best_;
      const auto to = std::min(from + piece, numbers.size());
      less.leftOut.insert(numbers.begin() + static_cast<std::ptrdiff_t>(from),
                          numbers.begin() + static_cast<std::ptrdiff_t>(to));
      keepIfFails(less);
    }
  }
  void keepIfFails(const Plan& less) {
    if (hasTime() && kindOf(Simulation(less).run().failure) == wanted_) {
      best_ = less;
    }
  }
  bool hasTime() const { return std::clock() - begun_ < kMostSeconds * CLOCKS_PER_SEC; }

  static constexpr std::clock_t kMostSeconds = 300;
  std::clock_t begun_ = std::clock();
  Plan best_;
  std::string wanted_;
};

}  // namespace

Plan shrink(const Plan& failing, std::ostream& told) {
  Shrinker shrinker(failing);
  const Plan shortest = shrinker.shrunk();
  told << "left of " << failing.happenings().size() << " troubles: " << shrinker.left() << '\n';
  return shortest;
}

}  // namespace tarnwick::simulation
