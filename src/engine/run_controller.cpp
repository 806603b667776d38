// SPDX-License-Identifier: MIT
#include "engine/run_controller.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "alerts/alert_dispatch.h"
#include "base/errors.h"
#include "base/raised_flag.h"
#include "delivery/delivery.h"
#include "engine/channel_alerts.h"
#include "engine/proof_of_life.h"
#include "engine/result_recording.h"
#include "engine/test_pass.h"
#include "platform/prompts.h"
#include "store/room_reserve.h"
#include "store/site_options.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr milliseconds kCountdownInterval{1000};
constexpr milliseconds kBlinkInterval{500};

// The modes of a pass.
constexpr std::int16_t kDueSites = 0;
constexpr std::int16_t kAllActiveSites = 1;

/// How far the clocks are apart after a sleep at least, and how long the network takes to be back after one.
constexpr seconds kNap{30};
constexpr seconds kAfterNap{30};

std::string offlineText(LocalTime since) {
  return "This machine is offline since " + dateTimeText(since).substr(11, 5) + ". Nothing is counted as down.";
}

std::chrono::minutes minuteOf(const Clock& clock) {
  return std::chrono::floor<std::chrono::minutes>(clock.localNow().time_since_epoch());
}

}  // namespace

RunController::RunController(const Needs& needs, TimerMaker& timers, Guard guard)
    : needs_(needs),
      guard_(std::move(guard)),
      tmrCheckSites_(timers.makeTimer([this] { guardedTick(); })),
      timer2_(timers.makeTimer([this] {
        guard_("lamps", [this] { Timer2_Timer(); });
        guard_("counters", [this] { uncounted_.tick(); });
      })),
      sites_(needs.dueSites),
      uncounted_(needs.results, needs.dueSites, needs.view),
      alarms_(needs.standings, needs.alerts, needs.clock),
      history_(needs.history, alarms_, needs.clock),
      network_({needs.transfers, needs.timers, needs.pump, needs.clock}),
      life_(std::make_unique<ProofOfLife>(needs_)) {}

RunController::~RunController() { uncounted_.end(); }

void RunController::prepare() {
  tmrCheckSites_->setEnabled(false);
  tmrCheckSites_->setInterval(kCountdownInterval);
  wallClockWasSet();
  resetClock();
  needs_.view.indicators(RunState::stop);
  timer2_->setInterval(kBlinkInterval);
  timer2_->setEnabled(true);
}

void RunController::startChecking() {
  if (running_) {
    startWanted_ = testsOnce_;
    return;
  }
  needs_.view.showStatus("Running.");
  tmrCheckSites_->setEnabled(true);
  resetClock();
  running_ = true;
  // What was left of the countdown at the last Stop says nothing about the sites that are tested now.
  secondsToNext_ = 0;
  backOff_.succeeded();
  standstill_.reset();
  forgetOffline();
  if (busy_) {
    // The pass that Stop had not ended yet goes on, and is that of this run. What it does not take is taken next.
    needs_.view.indicators(RunState::start);
    somethingWasLeft_ = true;
    return;
  }
  somethingWasLeft_ = false;
  runTestPass(kAllActiveSites);
}

void RunController::stopChecking() {
  needs_.alerts.giveUpMail();
  needs_.view.indicators(RunState::pause);
  running_ = false;
  startWanted_ = false;
  needs_.view.indicators(RunState::stop);
  tmrCheckSites_->setEnabled(false);
  forgetOffline();
  history_.endKnowledge();
  life_->rest();
  needs_.view.showStatus("Stopped.");
}

void RunController::runTestPass(std::int16_t mode) {
  if (busy_) {
    return;
  }
  const bool takesWhatWasLeft = std::exchange(somethingWasLeft_, false);
  standstill_.reset();
  try {
    TestPass pass(*this, needs_, busy_, {sites_, uncounted_, alarms_, history_});
    readOptions();
    needs_.reserve.keepReserve();
    TextTable sites =
        sites_.choose(mode, mode == kDueSites && (takesWhatWasLeft || newSitesAtOnce_), [this] { needs_.pump.pump(); });
    if (mode == kDueSites) {
      sites = sites_.withoutUnrecorded(sites, needs_.clock.steadyNow());
    }
    const bool someAreDue = sites.lastRow() > 0;
    sites = withoutResting(std::move(sites));
    foundNothing_ = sites.lastRow() == 0;
    allRest_ = someAreDue && foundNothing_;
    pass.test(std::move(sites));
    backOff_.succeeded();
  } catch (const OverflowError&) {
    backOff_.succeeded();  // the checks themselves have been recorded
    throw;
  } catch (...) {
    backOff_.failed();
    somethingWasLeft_ = true;
    throw;
  }
}

void RunController::readOptions() { obey(needs_.options.optionsInForce()); }

void RunController::obey(OptionsInForce options) {
  if (obeyed_ && obeyed_->areThoseOf(options)) {
    return;
  }
  obeyed_ = options;
  newSitesAtOnce_ = options.newSitesAtOnce();
  provesLife_ = ProofOfLife::isWanted(options);
  if (!provesLife_) {
    life_->rest();
  }
  network_.obey(options);
  history_.setOptions(options);
  alarms_.setOptions(std::move(options));
}

void RunController::beginHistory() {
  history_.beginPass([this] {
    needs_.pump.pump();
    return running_ && !needs_.pump.closing();
  });
}

TextTable RunController::withoutResting(TextTable sites) {
  if (!alarms_.watchesTime()) {
    return sites;
  }
  return rowsWhere(sites, [&](std::size_t row) {
    std::int64_t id = 0;
    const std::string& text = sites.at(site_column::idSite, row);
    std::from_chars(text.data(), text.data() + text.size(), id);
    return !std::in_range<std::int16_t>(id) || !alarms_.restsNow(static_cast<std::int16_t>(id));
  });
}

// Once a minute is as often as a time that people set can end.
void RunController::tellWhatTimeHasBrought() {
  if (busy_ || !running_ || !alarms_.watchesTime() || minuteOf(needs_.clock) == alarmsSeen_) {
    return;
  }
  alarmsSeen_ = minuteOf(needs_.clock);
  readOptions();
  TestPass pass(*this, needs_, busy_, {sites_, uncounted_, alarms_, history_});
  pass.tellWhatTimeHasBrought();
}

// Also while a pass is on, which may take long. A run that cannot record anything is as good as dead.
void RunController::proveLife() {
  if (provesLife_ && running_ && !backOff_.isFailing() && !network_.offlineSince()) {
    life_->tick(*obeyed_);
  }
}

const std::string& RunController::heartbeatFault() const { return life_->heartbeatFault(); }

bool RunController::testOnce(TextTable sites) {
  startWanted_ = false;
  const bool whole = [&] {
    TestPass pass(*this, needs_, busy_, {sites_, uncounted_, alarms_, history_});
    // The pass looks at this flag; it is lowered before the pass puts the lamps right.
    const RaisedFlag whileTested(running_);
    const RaisedFlag withoutRun(testsOnce_);
    pass.test(std::move(sites));
    return running_;
  }();
  if (std::exchange(startWanted_, false)) {
    startChecking();
  }
  return whole;
}

void RunController::checkSoon(const std::vector<std::int16_t>& ids) {
  for (const std::int16_t id : ids) {
    sites_.owe(id);
  }
  secondsToNext_ = 0;
  standstill_.reset();
}

void RunController::recordResult(std::int16_t idSite, bool result) {
  needs_.results.setStatus(idSite, result);
  if (!result) {
    needs_.alerts.sendAlerts(idSite);
  }
  countResult(idSite, result);
}

void RunController::countResult(std::int16_t idSite, bool result) {
  try {
    needs_.results.updateStatusCounter(idSite, result);
  } catch (const OverflowError&) {
    needs_.view.updateGridRow(idSite, result);
    throw;
  }
  needs_.view.updateGridRow(idSite, result);
}

void RunController::guardedTick() {
  // A countdown that goes well says nothing about whether passes do, so it counts as a source of its own.
  bool due = false;
  guard_("countdown", [&] {
    try {
      due = countDown();
    } catch (const OverflowError&) {
      due = true;  // the fault of one site; the others are tested all the same
      throw;
    } catch (const DataAccessError&) {
      somethingWasLeft_ = true;  // the file may be another one afterwards
      throw;
    }
  });
  if (due) {
    guard_("run", [this] { timerPass(); });
  }
  guard_("alarms", [this] { tellWhatTimeHasBrought(); });
  guard_("life", [this] { proveLife(); });
}

void RunController::tmrCheckSites_Timer() {
  if (countDown()) {
    timerPass();
  }
}

bool RunController::countDown() {
  inTimerPass_ = false;
  if (network_.offlineSince() && !busy_ && staysOffline()) {
    return false;
  }
  if (standsStill()) {
    needs_.view.showStatus(standstill_->why);
    return false;
  }
  --secondsToNext_;
  if (secondsToNext_ > 0 && newSitesAtOnce_ && needs_.dueSites.changedByOthers()) {
    secondsToNext_ = -1;  // there may be a site that nobody has counted
  }
  if (std::exchange(clockWasSet_, false) || wallClockWasSet() || secondsToNext_ < 0) {
    // Due at once, should this fail.
    secondsToNext_ = 0;
    secondsToNext_ = needs_.dueSites.getMinWaitTime().mlc;
    readOptions();
  }
  if (sites_.owesAny()) {
    secondsToNext_ = 0;
  }
  if (secondsToNext_ > 0) {
    if (!busy_) {
      needs_.view.showStatus("Time Until Next Check: " + formatSeconds(secondsToNext_));
    }
    return false;
  }
  if (busy_ || !running_) {
    return false;
  }
  return backOff_.tick();
}

// What is due is a matter of the wall clock: set back or forward, by a person, by daylight saving or after the machine
// has slept, it makes the seconds counted so far mean nothing.
bool RunController::wallClockWasSet() {
  constexpr seconds kTolerance{2};
  const seconds offset =
      needs_.clock.localNow().time_since_epoch() - std::chrono::floor<seconds>(needs_.clock.steadyNow());
  const seconds before = std::exchange(clockOffset_, offset);
  if (offset - before > kNap) {
    wokeAt_ = needs_.clock.steadyNow();
  }
  return std::chrono::abs(offset - before) > kTolerance;
}

bool RunController::hasJustWoken() {
  clockWasSet_ = wallClockWasSet() || clockWasSet_;
  return wokeAt_ && needs_.clock.steadyNow() - *wokeAt_ < kAfterNap;
}

void RunController::goOffline(std::string page, Request request) {
  network_.setOffline(std::move(page), std::move(request));
  history_.endKnowledge();
  const LocalTime since = *network_.offlineSince();
  needs_.view.showOffline(since);
  needs_.alerts.sendOfflineNotice(since);
}

bool RunController::staysOffline() {
  const LocalTime since = *network_.offlineSince();
  needs_.view.showStatus(offlineText(since));
  readOptions();
  if (network_.staysOffline()) {
    return true;
  }
  if (network_.offlineSince()) {
    forgetOffline();
    const TestPass noPassMeanwhile(*this, needs_, busy_, {sites_, uncounted_, alarms_, history_});
    Transaction whole(needs_.standings.database());
    ChannelAlerts(needs_, *obeyed_).keepOnline(since);
    whole.commit();
    needs_.delivery.deliver();
    needs_.alerts.sendOnlineNotice(since, needs_.clock.localNow());
  }
  return false;
}

void RunController::forgetOffline() {
  if (network_.offlineSince()) {
    network_.forgetOffline();
    needs_.standings.clearUnknown();
    needs_.view.showOffline(std::nullopt);
  }
}

void RunController::timerPass() {
  if (busy_ || !running_) {
    return;  // stopped, or begun, since the tick counted
  }
  if (backOff_.isFailing()) {
    proveThatAPassIsOfUse();
  }
  const RaisedFlag inPass(inTimerPass_);
  runTestPass(kDueSites);
  if (foundNothing_ && running_) {
    needs_.dueSites.changedByAnyone();
    std::string why = sites_.whatWaits();
    if (why.empty() && allRest_) {
      why = "Waiting: the sites that are due are in their quiet hours.";
    }
    if (!why.empty()) {
      standstill_ = {minuteOf(needs_.clock), std::move(why)};
    }
  }
}

// The pages of a pass that cannot be recorded would be fetched for nothing, every second again. On a full disk they are
// not: what is down is told all the same, each site at its own interval.
void RunController::proveThatAPassIsOfUse() {
  try {
    needs_.results.proveRecording();
    sites_.canBeRecorded();
  } catch (const DataAccessError& error) {
    if (!error.forWantOfRoom()) {
      throw;
    }
    const TextTable due = sites_.choose(kDueSites, somethingWasLeft_ || newSitesAtOnce_, [] {});
    if (sites_.withoutUnrecorded(due, needs_.clock.steadyNow()).lastRow() == 0) {
      throw;
    }
  }
}

bool RunController::standsStill() {
  if (standstill_ && (standstill_->since != minuteOf(needs_.clock) || needs_.dueSites.changedByAnyone())) {
    standstill_.reset();
  }
  return standstill_.has_value();
}

void RunController::beingTyped(std::optional<std::int16_t> idSite) {
  sites_.beingTyped(idSite);
  secondsToNext_ = 0;
  standstill_.reset();
}

SomeSites RunController::unwatched() {
  if (!running_) {
    return needs_.dueSites.activeSites();
  }
  SomeSites some = overdue();
  if (somethingWasLeft_ || needs_.options.optionsInForce().newSitesAtOnce()) {
    return some;
  }
  const SomeSites left = sites_.leftOut(busy_);
  some.first = some.count == 0 || (left.count > 0 && left.first < some.first) ? left.first : some.first;
  some.count += left.count;
  return some;
}

SomeSites RunController::overdue() {
  if (!running_ || busy_ || network_.offlineSince()) {
    return {};
  }
  return needs_.dueSites.overdue(needs_.clock.localNow() -
                                 std::chrono::floor<seconds>(needs_.clock.steadyNow() - runStart_));
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
  standstill_.reset();
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
  // Of a number below zero the last two characters are those of its digits, but for one of a single digit.
  const auto lastTwoDigits = [](std::int32_t number, char* to) {
    const std::int32_t digits = std::abs(number % 100);
    to[0] = number < 0 && number > -10 ? '-' : static_cast<char>('0' + digits / 10);
    to[1] = static_cast<char>('0' + digits % 10);
  };
  std::string text = "00:00:00";
  lastTwoDigits(seconds / 3600, text.data());
  lastTwoDigits(seconds % 3600 / 60, text.data() + 3);
  lastTwoDigits(seconds % 60, text.data() + 6);
  return text;
}

std::string RunController::clockText(seconds elapsed) {
  const long long total = elapsed.count();
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "Run Time: %03lld:%02lld:%02lld", total / 3600, total % 3600 / 60,
                total % 60);
  return text.data();
}

}  // namespace tarnwick
