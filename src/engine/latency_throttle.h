// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <deque>

namespace tarnwick {

/// Finds out how many requests in flight pay. One more after each round, which is as many answers as may be in flight,
/// while the answers take no longer than when there were fewer and the process leaves half a core to others; half as
/// many, once a round, where requests time out or the machine lacks what they need.
class LatencyThrottle {
 public:
  using Time = std::chrono::milliseconds;

  /// Begins with `fewest`, or with `most` where that is less.
  LatencyThrottle(std::size_t fewest, std::size_t most);

  /// How many may be in flight.
  std::size_t limit() const { return limit_; }

  /// An answer has come after `latency`. `now` and `processorTime` are what two clocks show that only go forward.
  void answered(Time latency, Time now, Time processorTime);
  /// A request has failed in a way that fewer of them might not.
  void overloaded();

 private:
  void endRound(Time now, Time processorTime);
  double medianLatency() const;

  std::size_t fewest_;
  std::size_t most_;
  std::size_t limit_;
  std::size_t answersOfRound_ = 0;
  bool halvedInRound_ = false;
  std::deque<Time> latencies_;
  double least_ = 0;  // 0 while there is none
  Time roundBegan_{-1};
  Time processorTimeThen_{0};
};

}  // namespace tarnwick
