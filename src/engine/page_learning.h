// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "holes/page_rule.h"
#include "platform/clock.h"
#include "platform/timer.h"
#include "platform/transfer_control.h"

namespace tarnwick {

class PageFetch;

/// What several copies of a site's page say about what varies in it.
struct Learnt {
  /// The places that vary, in the baseline as `pageText` gives it; of a site without one, in the first copy.
  Holes holes;
  /// What varies in the copies at a place that the baseline has not.
  Holes lost;
  /// What nobody can know from the copies, in words for people.
  std::vector<std::string> warnings;
  /// How much of the page stays compared byte for byte, from 0 to 1.
  double watched = 1;
  /// Whether the baseline with these holes is the same as each copy. If not, the page has changed since, in `line` of
  /// the baseline: what varies is then best learnt again from a new baseline.
  bool explains = true;
  std::size_t line = 0;
  /// The first copy, as it was fetched: what becomes the baseline of a site that has none.
  std::string firstCopy;
};

/// What is learnt from at least two copies of a page as they were fetched, for a site with this baseline, which may be
/// empty.
Learnt learntFrom(const std::vector<std::string>& copies, const std::string& baseline, LocalTime now);

/// The holes that a site had, but for those that touch one of the learnt ones, with these.
Holes united(const Holes& before, const Holes& learnt);

/// Fetches a site's page several times, and learns from the copies. Nothing is stored.
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
    /// So many copies are there.
    std::function<void(int done)> progressed;
    std::function<void(Learnt learnt)> learnt;
    /// A fetch has failed, for this cause: a sentence. Nothing is learnt.
    std::function<void(const std::string& why)> failed;
  };

  explicit PageLearning(const Machine& machine);
  ~PageLearning();
  PageLearning(const PageLearning&) = delete;
  PageLearning& operator=(const PageLearning&) = delete;

  /// Begins; one of `learnt` and `failed` follows through the event loop, unless it is cancelled by `cancel` or the end
  /// of this object's life. A learning that is under way is cancelled first.
  void start(std::int16_t idSite, const std::string& baseline, const Plan& plan, Handlers handlers);
  void cancel();
  bool isUnderWay() const;

 private:
  struct Work;
  void fetch();
  void wait(std::chrono::milliseconds time);
  void goOn();

  Machine machine_;
  std::unique_ptr<Work> work_;
};

}  // namespace tarnwick
