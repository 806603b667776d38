// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "engine/learnt.h"
#include "platform/clock.h"
#include "platform/timer.h"
#include "platform/transfer_control.h"

namespace tarnwick {

class PageFetch;

/// Fetches a site's page several times, and learns from the copies; or learns from what it has of it. Nothing is
/// stored.
class PageLearning {
 public:
  struct Plan {
    int fetches = 5;  ///< from 2 to 50
    /// The time from the first fetch to the last; none for one a second.
    std::chrono::seconds over{0};
  };
  struct Machine {
    PageFetch& fetch;
    TransferMaker& transfers;
    TimerMaker& timers;
    const Clock& clock;
  };
  struct Handlers {
    /// So many copies are there; with the last of them it is looked what varies.
    std::function<void(int done)> progressed{};
    std::function<void(Learnt learnt)> learnt;
    /// A fetch has failed, or the pages are too large, for this cause: a sentence. Nothing is learnt.
    std::function<void(const std::string& why)> failed;
  };

  explicit PageLearning(const Machine& machine);
  ~PageLearning();
  PageLearning(const PageLearning&) = delete;
  PageLearning& operator=(const PageLearning&) = delete;

  /// Begins; one of `learnt` and `failed` follows through the event loop, unless it is cancelled by `cancel` or the end
  /// of this object's life. A learning that is under way is cancelled first.
  void start(std::int16_t idSite, const std::string& baseline, const Plan& plan, Handlers handlers);
  /// The same without fetching: what of the difference between a baseline and a page looks like something that always
  /// changes (see `widenedBy`). One of `learnt` and `failed` follows.
  void compare(const std::string& baseline, const RuleSet& set, const std::string& page, Handlers handlers);
  void cancel();
  bool isUnderWay() const;

 private:
  struct Work;
  void fetch();
  void wait(std::chrono::milliseconds time);
  void goOn();
  void takeCopy();
  void learn();
  void learnApart(std::size_t bytes, const std::function<Learnt()>& exact, std::function<Learnt()> rough);
  void look();
  void end(const std::function<void(const Handlers& handlers)>& tell);

  Machine machine_;
  std::unique_ptr<Work> work_;
};

}  // namespace tarnwick
