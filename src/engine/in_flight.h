// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "engine/latency_throttle.h"
#include "store/site_options.h"

namespace tarnwick {

/// How many requests a pass may have in flight, and how it treats one host.
struct InFlightPolicy {
  /// The slots of the pass.
  std::int16_t slots = 5;
  /// Whether the pass finds out by itself how many of them pay.
  bool automatic = false;
  /// The most requests in flight to one host; 0 for any number.
  std::int64_t perHost = 0;
  /// The least time between two starts at one host.
  std::chrono::milliseconds spacing{0};
  /// Whether the sites that were too slow last time wait in a lane of their own.
  bool slowLane = false;
};

/// What the options `parallel`, `perHost` and `spacing` say; without them five requests, and nothing else.
InFlightPolicy inFlightPolicy(const OptionsInForce& options);

/// Decides which row of a pass is sent next, and when. The rows, numbered from 1, keep their order but where a host or
/// the lane of the slow ones has to wait. Knows no clock: every call is told the time, of one that only goes forward.
class InFlight {
 public:
  using Time = std::chrono::milliseconds;

  /// How a request has ended.
  enum class End {
    answered,
    timedOut,
    shortage,  ///< this machine lacked what it needed
  };

  struct Row {
    std::string host{};  ///< empty for a row that is sent to nobody: it never waits
    bool slow = false;   ///< took too long last time
  };

  InFlight(const InFlightPolicy& policy, const std::vector<Row>& rows);

  /// The row to be sent next; 0 while each that is left has to wait.
  std::size_t upcoming(Time now);
  /// It is taken: sent, or done with on the spot when its host is empty. REQUIRES: it is the upcoming one.
  void take(std::size_t row, Time now);
  /// A row that was sent has ended. `processorTime` is what the process has used so far.
  void ended(std::size_t row, Time now, Time processorTime, End end);
  /// A row that has ended is to be sent once more. False where that would be no better: nothing else is in flight, or
  /// no more than usual.
  bool putBack(std::size_t row);

  /// A row that has ended is to be sent once more, not before `from`.
  void repeat(std::size_t row, Time from);

  /// How many rows are still to be taken.
  std::size_t left() const { return rest_.size() + slow_.size(); }

 private:
  struct Host {
    std::int64_t inFlight = 0;
    Time nextStart{Time::min()};
  };

  std::size_t firstReady(const std::deque<std::size_t>& rows, Time now);
  bool isReady(std::size_t row, Time now);
  bool hostIsReady(std::size_t row, Time now);
  bool isSentToNobody(std::size_t row) const { return hostOf_[row - 1] == 0; }
  Host& hostOf(std::size_t row) { return hosts_[hostOf_[row - 1]]; }
  bool isSlow(std::size_t row) const { return slowRows_[row - 1]; }

  InFlightPolicy policy_;
  // By number, since the rows of hosts that wait are looked through again and again; 0 is nobody.
  std::vector<std::size_t> hostOf_;
  std::vector<Host> hosts_;
  std::vector<bool> slowRows_;
  std::deque<std::size_t> rest_;
  std::deque<std::size_t> slow_;
  std::unordered_map<std::size_t, Time> sentAt_;
  // When the rows that are repeated may be sent.
  std::unordered_map<std::size_t, Time> repeatedFrom_;
  std::size_t slowInFlight_ = 0;
  std::optional<LatencyThrottle> throttle_;
  // While all that are left wait for their hosts: when the first may go on.
  Time nothingBefore_{Time::min()};
};

}  // namespace tarnwick
