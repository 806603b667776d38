// SPDX-License-Identifier: MIT
#include "engine/page_learning.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/visible_text.h"
#include "engine/learning_apart.h"
#include "engine/page_fetch.h"
#include "engine/single_control.h"
#include "engine/widening.h"

namespace tarnwick {
namespace {

constexpr int kFirstError = 400;  // RFC 9110, section 15.5
constexpr std::chrono::milliseconds kAtOnce{1};
/// A clock shows another second then.
constexpr std::chrono::milliseconds kBetweenFetches{1100};
constexpr std::chrono::milliseconds kBetweenLooks{20};

/// Why nothing can be learnt of what was fetched; empty for a page.
std::string faultOf(const TransferResult& result, std::string_view page) {
  if (result.fault != TransferFault::none) {
    return "The page could not be fetched. " + visibleText(result.cause);
  }
  if (result.status >= kFirstError) {
    return "The server answered with an error page (" + std::to_string(result.status) + ").";
  }
  return page.empty() ? "The page is empty." : std::string();
}

}  // namespace

/// A learning that is under way.
struct PageLearning::Work {
  Work(const Machine& machine, std::int16_t site, std::string page, const Plan& howOften, Handlers tells,
       std::function<void()> goOn)
      : idSite(site),
        baseline(std::move(page)),
        plan(howOften),
        handlers(std::move(tells)),
        control(machine.transfers),
        timer(machine.timers.makeTimer(std::move(goOn))) {}

  std::int16_t idSite;
  std::string baseline;
  Plan plan;
  Handlers handlers;
  SingleControl control;
  std::unique_ptr<Timer> timer;
  std::vector<std::string> copies;
  bool waitsForNext = false;
  std::unique_ptr<LearningApart> learning;
};

PageLearning::PageLearning(const Machine& machine) : machine_(machine) {}

PageLearning::~PageLearning() = default;

bool PageLearning::isUnderWay() const { return work_ != nullptr; }

void PageLearning::cancel() { work_.reset(); }

void PageLearning::start(std::int16_t idSite, const std::string& baseline, const Plan& plan, Handlers handlers) {
  work_ = std::make_unique<Work>(machine_, idSite, baseline, plan, std::move(handlers), [this] { goOn(); });
  fetch();
}

void PageLearning::compare(const std::string& baseline, const RuleSet& set, const std::string& page,
                           Handlers handlers) {
  work_ = std::make_unique<Work>(machine_, std::int16_t{0}, baseline, Plan{}, std::move(handlers), [this] { goOn(); });
  const LocalTime now = machine_.clock.localNow();
  learnApart(
      baseline.size() + page.size(), [&] { return widenedBy(baseline, set, page, now); },
      [=] { return roughlyWidenedBy(baseline, set, page); });
}

void PageLearning::fetch() {
  // While the control tells of its end it cannot be used again, nor be destroyed: the rest follows with the timer.
  work_->control.execute(machine_.fetch.requestOf(work_->idSite), [this] { wait(kAtOnce); });
}

void PageLearning::wait(std::chrono::milliseconds time) {
  work_->timer->setInterval(time);
  work_->timer->setEnabled(true);
}

void PageLearning::goOn() {
  work_->timer->setEnabled(false);
  if (work_->learning != nullptr) {
    look();
  } else if (std::exchange(work_->waitsForNext, false)) {
    fetch();
  } else {
    takeCopy();
  }
}

// Who is told may begin another learning, or end this object's life.
void PageLearning::takeCopy() {
  SingleControl& control = work_->control;
  if (const std::string fault = faultOf(control.result(), control.sInetContent); !fault.empty()) {
    end([&](const Handlers& handlers) { handlers.failed(fault); });
    return;
  }
  work_->copies.push_back(std::move(control.sInetContent));
  const auto done = static_cast<int>(work_->copies.size());
  if (done == work_->plan.fetches) {
    learn();
  } else {
    work_->waitsForNext = true;
    wait(std::max(kBetweenFetches, std::chrono::milliseconds(work_->plan.over) / (work_->plan.fetches - 1)));
  }
  work_->handlers.progressed(done);
}

void PageLearning::learn() {
  const Work& work = *work_;
  const LocalTime now = machine_.clock.localNow();
  std::size_t bytes = work.baseline.size();
  for (const std::string& copy : work.copies) {
    bytes += copy.size();
  }
  learnApart(
      bytes, [&work, now] { return learntFrom(work.copies, work.baseline, now); },
      [&work] { return roughlyLearntFrom(work.copies, work.baseline); });
}

void PageLearning::learnApart(std::size_t bytes, const std::function<Learnt()>& exact, std::function<Learnt()> rough) {
  work_->learning = std::make_unique<LearningApart>(bytes, exact, std::move(rough));
  wait(kAtOnce);
}

void PageLearning::look() {
  if (!work_->learning->take()) {
    wait(kBetweenLooks);
    return;
  }
  std::optional<Learnt> learnt = work_->learning->result();
  if (learnt && !work_->copies.empty()) {
    learnt->firstCopy = std::move(work_->copies.front());
  }
  end([&](const Handlers& handlers) {
    if (learnt) {
      handlers.learnt(std::move(*learnt));
    } else {
      handlers.failed("The pages are too large to learn from.");
    }
  });
}

void PageLearning::end(const std::function<void(const Handlers& handlers)>& tell) {
  const std::unique_ptr<Work> ended = std::move(work_);
  tell(ended->handlers);
}

}  // namespace tarnwick
