// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/clock.h"
#include "platform/event_pump.h"
#include "platform/timer.h"
#include "platform/transfer_control.h"
#include "store/site_options.h"

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

/// Whether this machine has a way to the net, as far as the option `ownNetwork` has that looked after.
class OwnNetwork {
 public:
  /// What it asks of the machine.
  struct Machine {
    TransferMaker& transfers;
    TimerMaker& timers;
    EventPump& pump;
    const Clock& clock;
  };
  explicit OwnNetwork(const Machine& machine) : machine_(machine) {}

  void obey(const OptionsInForce& options);
  bool isLookedAfter() const { return isLookedAfter_; }

  /// Asks the witnesses, if there are any: one that answers is enough. Otherwise by the way that the system knows.
  /// Takes events in for at most five seconds.
  bool isOnline();

  /// It was found to be offline: all have come to one `page` instead of their own, as `request` does, or to none.
  void setOffline(std::string page, Request request);
  void forgetOffline() { offline_.reset(); }
  std::optional<LocalTime> offlineSince() const { return offline_ ? std::optional(offline_->since) : std::nullopt; }

  /// Whether it is still offline: looked into every few seconds, or at once after `lookAtOnce`, and then taken to be so
  /// until the answer is there. Takes events in. REQUIRES: `offlineSince()`.
  bool staysOffline();
  void lookAtOnce();

 private:
  struct Offline {
    LocalTime since;
    std::optional<std::chrono::milliseconds> askedAt;
    std::string page;
    Request request;
  };

  bool isStillOffline(const Offline& found);
  /// Starts the requests, and waits until `isEnough` says so of the result of one, or all have ended, or time is up.
  bool ask(const std::vector<Request>& requests, const std::function<bool(const TransferResult&)>& isEnough);

  Machine machine_;
  bool isLookedAfter_ = false;
  std::vector<std::string> witnesses_;
  std::optional<Offline> offline_;
  bool asks_ = false;
};

/// Whether the fault says that no server was there to answer.
bool isSilence(TransferFault fault);

}  // namespace tarnwick
