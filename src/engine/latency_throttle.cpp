// SPDX-License-Identifier: MIT
#include "engine/latency_throttle.h"

#include <algorithm>
#include <vector>

namespace tarnwick {
namespace {

/// As many answers as tell the usual one from a quick or a slow site that came by chance.
constexpr std::size_t kAnswersKept = 50;
constexpr double kTolerated = 1.2;
/// Below this, in milliseconds, what differs is the machine's own doing.
constexpr double kNoise = 3;
/// The least median is forgotten slowly: the sites behind it may be others.
constexpr double kForgetting = 1.01;
constexpr double kOwnShareOfCore = 0.5;

}  // namespace

LatencyThrottle::LatencyThrottle(std::size_t fewest, std::size_t most)
    : fewest_(std::min(fewest, most)), most_(most), limit_(fewest_) {}

void LatencyThrottle::answered(Time latency, Time now, Time processorTime) {
  if (roundBegan_ < Time(0)) {
    roundBegan_ = now - latency;
    processorTimeThen_ = processorTime;
  }
  latencies_.push_back(latency);
  if (latencies_.size() > kAnswersKept) {
    latencies_.pop_front();
  }
  if (++answersOfRound_ >= limit_) {
    endRound(now, processorTime);
  }
}

void LatencyThrottle::endRound(Time now, Time processorTime) {
  const double median = medianLatency();
  least_ = least_ > 0 ? std::min(median, least_ * kForgetting) : median;
  const double share = static_cast<double>((processorTime - processorTimeThen_).count()) /
                       static_cast<double>(std::max<Time::rep>((now - roundBegan_).count(), 1));
  if (!halvedInRound_ && median <= std::max(least_ * kTolerated, least_ + kNoise) && share < kOwnShareOfCore) {
    limit_ = std::min(limit_ + 1, most_);
  }
  answersOfRound_ = 0;
  halvedInRound_ = false;
  roundBegan_ = now;
  processorTimeThen_ = processorTime;
}

double LatencyThrottle::medianLatency() const {
  std::vector<Time> sorted(latencies_.begin(), latencies_.end());
  const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
  std::ranges::nth_element(sorted, middle);
  return static_cast<double>(middle->count());
}

void LatencyThrottle::overloaded() {
  if (halvedInRound_) {
    return;
  }
  limit_ = std::max(limit_ / 2, fewest_);
  answersOfRound_ = 0;
  halvedInRound_ = true;
}

}  // namespace tarnwick
