// SPDX-License-Identifier: MIT
#include "simulation/plan.h"

#include <algorithm>
#include <utility>

#include "simulation/chance.h"

namespace tarnwick::simulation {
namespace {

using namespace std::chrono_literals;

/// How often each class strikes, on average.
constexpr std::array<Time, kTroubles> kEvery{4h, 24h, 120h, 8h, 6h, 12h, 48h, 60h, 60h, 72h, 48h, 96h, 48h};

/// A short run has as many troubles as a day of a long one.
constexpr Time kShortest = 48h;

}  // namespace

std::vector<Happening> Plan::happenings() const {
  std::vector<Happening> all;
  const Time end = length;
  const std::int64_t denser = std::max<std::int64_t>(1, kShortest / std::max<Time>(length, 1h));
  for (std::size_t i = 0; i < kTroubles; ++i) {
    Chance chance = Chance::of(seed, 1000 + i);
    const std::int64_t pause = 2 * kEvery.at(i).count() / denser;
    for (Time at(chance.between(1, pause)); at < end; at += Time(chance.between(1, pause))) {
      all.push_back({at, static_cast<Trouble>(i), chance.next()});
    }
  }
  std::ranges::stable_sort(all, {}, &Happening::at);
  return all;
}

std::string Plan::command() const {
  std::string line = "scripts/simulate.sh --seed " + std::to_string(seed) + " --minutes " +
                     std::to_string(std::chrono::ceil<std::chrono::minutes>(length).count()) + " --sites " +
                     std::to_string(sites);
  const auto list = [&line](const char* option, const auto& items, const auto& text) {
    std::string separator = std::string(" ") + option + " ";
    for (const auto& item : items) {
      line.append(std::exchange(separator, ",")).append(text(item));
    }
  };
  list("--without", without,
       [](Trouble trouble) { return std::string(kTroubleNames.at(static_cast<std::size_t>(trouble))); });
  list("--leave-out", leftOut, [](std::size_t number) { return std::to_string(number); });
  return line + (original ? " --original" : "") + (model ? " --model" : "");
}

}  // namespace tarnwick::simulation
