// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "platform/transfer_control.h"
#include "simulation/agenda.h"
#include "simulation/chance.h"
#include "simulation/journal.h"

namespace tarnwick::simulation {

/// How a web site behaves for a while.
enum class SiteMood {
  steady,       ///< the same page every time
  changing,     ///< another page every time
  flapping,     ///< the usual page, or another one
  slow,         ///< the usual page, perhaps too late
  silent,       ///< no answer at all
  cut,          ///< the connection ends in mid page
  refused,      ///< nobody listens
  unknown,      ///< its name is not known
  redirecting,  ///< in a circle
  untrusted,    ///< its certificate has run out
  shortage,     ///< this machine has no handle left
};
inline constexpr std::uint64_t kSiteMoods = 11;

/// The network: sites by their addresses, each in a mood of its own, and a clock that decides when an answer comes.
class SimulatedWeb final : public TransferMaker {
 public:
  SimulatedWeb(Agenda& agenda, Journal& journal, Chance chance) : agenda_(agenda), journal_(journal), chance_(chance) {}

  std::unique_ptr<TransferControl> makeTransferControl() override;

  void setMood(const std::string& url, SiteMood mood);
  SiteMood moodOf(const std::string& url) { return sites_[url].mood; }
  /// Gives the site another page for good.
  void publish(const std::string& url) { ++sites_[url].edition; }
  /// Whether somebody has asked for more than the usual five requests at a time.
  bool mayBeMany = false;
  /// Whether the list has had more than five at a time in all the runs so far, so that no host is ever asked for more
  /// than two pages at a time.
  bool sparesHosts = false;
  /// Whether another program asks for pages beside the run.
  bool isShared = false;
  /// A request is on its way.
  std::function<void()> onBegin;
  /// What is asked for, and what comes back, just before the program hears of it.
  std::function<void(const Request&)> onRequest;
  std::function<void(const std::string& url, const TransferResult&)> onAnswer;
  /// More requests are on their way than there may be.
  std::function<void(const std::string& what)> onTooMany;
  std::uint64_t requests() const { return requests_; }

 private:
  struct Site {
    SiteMood mood = SiteMood::steady;
    std::uint64_t edition = 0;
  };
  struct Answer {
    Time after{0};
    TransferResult result{};
  };
  class Control;

  Answer answerTo(const Request& request);
  void begins(const std::string& url);
  void ends(const std::string& url) { inFlight_.extract(hostOf(url)); }
  static std::string hostOf(const std::string& url);
  static std::string pageOf(const std::string& url, std::uint64_t edition);

  Agenda& agenda_;
  Journal& journal_;
  Chance chance_;
  std::map<std::string, Site> sites_;
  std::multiset<std::string> inFlight_;  ///< the hosts that are asked
  std::uint64_t requests_ = 0;
};

}  // namespace tarnwick::simulation
