// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/event_pump.h"
#include "platform/timer.h"
#include "platform/transfer_control.h"

namespace tarnwick {

/// Failures of one round of which it is not clear whose they are: the sites', or this machine's own network's.
/// At least three sites of two hosts or more make it worth asking.
class NetworkDoubt {
 public:
  /// Some server has answered as only it can.
  void answered() { anyAnswer_ = true; }
  /// No server has answered the row's request.
  void noAnswer(std::size_t row, const std::string& host) { silent_.add(row, host); }
  /// A page has come that is not the site's: perhaps that of whoever owns the way to the net.
  void foreignPage(std::size_t row, const std::string& host, const std::string& page) { pages_[page].add(row, host); }

  /// Whether the sites are silent in such numbers.
  bool isSilent() const { return silent_.areMany(); }
  /// The one page that all have come to; nothing when there is none.
  std::optional<std::string> onePage() const;

  /// The rows in doubt, which are none any more.
  std::vector<std::size_t> take();

 private:
  struct Rows {
    std::vector<std::size_t> rows;
    std::string firstHost;
    bool areOfSeveralHosts = false;

    void add(std::size_t row, const std::string& host);
    bool areMany() const;
  };

  Rows silent_;
  std::unordered_map<std::string, Rows> pages_;
  bool anyAnswer_ = false;
};

/// Whether this machine has a way to the net.
class OwnNetwork {
 public:
  OwnNetwork(TransferMaker& transfers, TimerMaker& timers, EventPump& pump)
      : transfers_(transfers), timers_(timers), pump_(pump) {}

  /// By the witnesses, if there are any: one that answers is enough. Otherwise by the way that the system knows. Takes
  /// events in for at most five seconds.
  bool isOnline(const std::vector<std::string>& witnesses);

  /// Whether `request` still comes to `page`, as it did when that was found to be a foreign one. Waits likewise.
  bool stillComesTo(const std::string& page, const Request& request);

 private:
  /// Starts the requests, and waits until `isEnough` says so of the result of one, or all have ended, or time is up.
  bool ask(const std::vector<Request>& requests, const std::function<bool(const TransferResult&)>& isEnough);

  TransferMaker& transfers_;
  TimerMaker& timers_;
  EventPump& pump_;
};

/// Whether the fault says that no server was there to answer.
bool isSilence(TransferFault fault);

}  // namespace tarnwick
