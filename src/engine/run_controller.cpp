#include "engine/run_controller.h"

#include <array>
#include <cstdio>
#include <utility>

#include "alerts/alert_dispatch.h"
#include "engine/due_sites.h"
#include "engine/result_recording.h"
#include "engine/test_pass.h"
#include "platform/prompts.h"

namespace tarnwick {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr milliseconds kCountdownInterval{1000};
constexpr milliseconds kBlinkInterval{500};

// The modes of a pass.
constexpr std::int16_t kDueSites = 0;
constexpr std::int16_t kAllActiveSites = 1;

}  // namespace

RunController::RunController(const Needs& needs, TimerMaker& timers, Guard guard)
    : needs_(needs),
      guard_(std::move(guard)),
      tmrCheckSites_(timers.makeTimer([this] {
        // A tick inside a pass says nothing about whether passes succeed, so it counts as a source of its own.
        guard_(busy_ ? "countdown" : "run", [this] { tmrCheckSites_Timer(); });
      })),
      timer2_(timers.makeTimer([this] { guard_("lamps", [this] { Timer2_Timer(); }); })) {}

void RunController::prepare() {
  tmrCheckSites_->setEnabled(false);
  tmrCheckSites_->setInterval(kCountdownInterval);
  resetClock();
  needs_.view.indicators(RunState::stop);
  timer2_->setInterval(kBlinkInterval);
  timer2_->setEnabled(true);
}

void RunController::startChecking() {
  if (running_) {
    return;
  }
  needs_.view.showStatus("Running.");
  tmrCheckSites_->setEnabled(true);
  resetClock();
  running_ = true;
  // What was left of the countdown at the last Stop says nothing about the sites that are tested now.
  secondsToNext_ = 0;
  runTestPass(kAllActiveSites);
}

void RunController::stopChecking() {
  needs_.view.indicators(RunState::pause);
  running_ = false;
  needs_.view.indicators(RunState::stop);
  tmrCheckSites_->setEnabled(false);
  needs_.view.showStatus("Stopped.");
}

void RunController::runTestPass(std::int16_t mode) {
  if (busy_) {
    return;
  }
  TestPass pass(*this, needs_, busy_);
  pass.test(mode);
}

bool RunController::testOnce(TextTable sites) {
  TestPass pass(*this, needs_, busy_);
  // The pass looks at this flag; it is lowered before the pass puts the lamps right.
  const struct Running {
    explicit Running(bool& flag) : flag_(flag) { flag_ = true; }
    ~Running() { flag_ = false; }
    bool& flag_;
  } whileTested(running_);
  pass.test(std::move(sites));
  return running_;
}

void RunController::recordResult(std::int16_t idSite, bool result) {
  needs_.results.setStatus(idSite, result);
  if (!result) {
    needs_.alerts.sendAlerts(idSite);
  }
  needs_.results.updateStatusCounter(idSite, result);
  needs_.view.updateGridRow(idSite, result);
}

void RunController::tmrCheckSites_Timer() {
  --secondsToNext_;
  if (secondsToNext_ < 0) {
    secondsToNext_ = needs_.dueSites.getMinWaitTime().mlc;
  }
  inTimerPass_ = false;
  if (secondsToNext_ > 0) {
    if (!busy_) {
      needs_.view.showStatus("Time Until Next Check: " + formatSeconds(secondsToNext_));
    }
  } else if (!busy_ && running_) {
    const struct TimerPass {
      explicit TimerPass(bool& flag) : flag_(flag) { flag_ = true; }
      ~TimerPass() { flag_ = false; }
      bool& flag_;
    } timerPass(inTimerPass_);
    runTestPass(kDueSites);
  }
}

void RunController::Timer2_Timer() {
  if (running_) {
    needs_.view.blinkLamps();
  }
  updateClock();
}

void RunController::init() {
  needs_.view.setCaption(kProductName);
  needs_.view.fillGrid();
  // An edit may have made a site due sooner than the countdown says.
  secondsToNext_ = 0;
}

void RunController::resetClock() {
  runStart_ = needs_.clock.steadyNow();
  updateClock();
}

void RunController::updateClock() {
  if (running_) {
    needs_.view.showClock(clockText(std::chrono::floor<seconds>(needs_.clock.steadyNow() - runStart_)));
  }
}

void RunController::UpdateLastChecked(std::int16_t idSite) {
  const auto time = needs_.results.getLastChecked(idSite);
  needs_.view.setLastChecked(idSite, time ? dateTimeText(*time) : "");
}

std::string RunController::formatSeconds(std::int32_t seconds) {
  const auto lastTwoDigits = [](std::int32_t number) {
    const std::string padded = "00" + std::to_string(number);
    return padded.substr(padded.size() - 2);
  };
  return lastTwoDigits(seconds / 3600) + ":" + lastTwoDigits(seconds % 3600 / 60) + ":" + lastTwoDigits(seconds % 60);
}

std::string RunController::clockText(seconds elapsed) {
  const long long total = elapsed.count();
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "Run Time: %03lld:%02lld:%02lld", total / 3600, total % 3600 / 60,
                total % 60);
  return text.data();
}

}  // namespace tarnwick
