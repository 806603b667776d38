// SPDX-License-Identifier: MIT
#include "engine/page_learning.h"

#include <algorithm>
#include <utility>

#include "base/visible_text.h"
#include "engine/first_difference.h"
#include "engine/page_fetch.h"
#include "engine/single_control.h"
#include "holes/judge.h"
#include "holes/learn.h"
#include "holes/page_text.h"

namespace tarnwick {
namespace {

constexpr int kFirstError = 400;  // RFC 9110, section 15.5
constexpr std::chrono::milliseconds kAtOnce{1};
/// A clock shows another second then.
constexpr std::chrono::milliseconds kBetweenFetches{1100};

bool touches(const Hole& one, const Hole& other) { return one.begin <= other.end() && other.begin <= one.end(); }

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

Learnt learntFrom(const std::vector<std::string>& copies, const std::string& baseline, LocalTime now) {
  std::vector<std::string> texts;
  texts.reserve(copies.size());
  for (const std::string& copy : copies) {
    texts.push_back(pageText(copy));
  }
  Lesson lesson = learn(texts, now);
  const std::string page = baseline.empty() ? texts.front() : pageText(baseline);
  PlacedHoles places = placeIn(page, lesson.holes);
  Learnt learnt{.holes = std::move(places.placed),
                .lost = std::move(places.lost),
                .warnings = std::move(lesson.warnings),
                .firstCopy = copies.front()};
  setAnchors(learnt.holes, page);
  learnt.watched = watchedShare(page, learnt.holes);
  for (const std::string& text : texts) {
    if (const Judgement judged = judge(page, learnt.holes, text); !judged.same) {
      learnt.explains = false;
      learnt.line = lineAt(page, judged.baselineAt).number;
      break;
    }
  }
  return learnt;
}

Holes united(const Holes& before, const Holes& learnt) {
  Holes all = learnt;
  for (const Hole& hole : before) {
    if (std::ranges::none_of(learnt, [&](const Hole& other) { return touches(hole, other); })) {
      all.push_back(hole);
    }
  }
  std::ranges::sort(all, {}, &Hole::begin);
  return all;
}

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
};

PageLearning::PageLearning(const Machine& machine) : machine_(machine) {}

PageLearning::~PageLearning() = default;

bool PageLearning::isUnderWay() const { return work_ != nullptr; }

void PageLearning::cancel() { work_.reset(); }

void PageLearning::start(std::int16_t idSite, const std::string& baseline, const Plan& plan, Handlers handlers) {
  work_ = std::make_unique<Work>(machine_, idSite, baseline, plan, std::move(handlers), [this] { goOn(); });
  fetch();
}

void PageLearning::fetch() {
  // While the control tells of its end it cannot be used again, nor be destroyed: the rest follows with the timer.
  work_->control.execute(machine_.fetch.requestOf(work_->idSite), [this] { wait(kAtOnce); });
}

void PageLearning::wait(std::chrono::milliseconds time) {
  work_->timer->setInterval(time);
  work_->timer->setEnabled(true);
}

// Who is told may begin another learning, or end this object's life.
void PageLearning::goOn() {
  work_->timer->setEnabled(false);
  if (std::exchange(work_->waitsForNext, false)) {
    fetch();
    return;
  }
  SingleControl& control = work_->control;
  if (const std::string fault = faultOf(control.result(), control.sInetContent); !fault.empty()) {
    const std::unique_ptr<Work> ended = std::move(work_);
    ended->handlers.failed(fault);
    return;
  }
  work_->copies.push_back(std::move(control.sInetContent));
  const auto done = static_cast<int>(work_->copies.size());
  if (done == work_->plan.fetches) {
    const std::unique_ptr<Work> ended = std::move(work_);
    ended->handlers.learnt(learntFrom(ended->copies, ended->baseline, machine_.clock.localNow()));
    return;
  }
  work_->waitsForNext = true;
  wait(std::max(kBetweenFetches, std::chrono::milliseconds(work_->plan.over) / (work_->plan.fetches - 1)));
  work_->handlers.progressed(done);
}

}  // namespace tarnwick
