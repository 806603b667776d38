// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "engine/back_off.h"
#include "engine/due_sites.h"
#include "engine/history_recording.h"
#include "engine/inet_pool.h"
#include "engine/own_network.h"
#include "engine/run_view.h"
#include "engine/site_alarms.h"
#include "engine/sites_to_test.h"
#include "engine/uncounted_failures.h"
#include "platform/clock.h"
#include "platform/event_pump.h"
#include "platform/timer.h"
#include "platform/transfer_control.h"
#include "store/text_table.h"

namespace tarnwick {

class AlertDispatch;
class Delivery;
class ProofOfLife;
class KeptPages;
class PageFetch;
class ResultRecording;
class RoomReserve;
class SiteOptions;

/// The program's main loop: the run's state, the countdown to the next due site, and the test pass that fetches every
/// selected site through the pool, judges each result, records it and raises the alerts of a failure.
///
/// All on one thread. A pass pumps events while it waits, so timers, transfers and clicks run inside it: `busy` keeps a
/// second pass out, and `running` is read again after every pump. Nothing here traps an error: what a procedure raises
/// reaches the caller of the handler, with the pass ended in order.
class RunController {
 public:
  /// What the controller needs of the rest of the program.
  struct Needs {
    DueSites& dueSites;
    PageFetch& pages;
    ResultRecording& results;
    AlertDispatch& alerts;
    Delivery& delivery;
    InetPool& pool;
    RunView& view;
    const Clock& clock;
    EventPump& pump;
    SiteOptions& options;
    KeptPages& keptPages;
    RoomReserve& reserve;
    SiteStandings& standings;
    SiteHistory& history;
    TransferMaker& transfers;
    TimerMaker& timers;
  };

  /// Wraps a timer's handler, for instance to show its failure in a box: called with the handler's name and itself.
  using Guard = std::function<void(const std::string& handler, const std::function<void()>& action)>;

  /// The timers are made disabled; `prepare` sets them up. `guard` is where the errors of their handlers end.
  RunController(const Needs& needs, TimerMaker& timers, Guard guard);
  ~RunController();
  RunController(const RunController&) = delete;
  RunController& operator=(const RunController&) = delete;

  /// Starts a run: tests every active site at once and returns when that pass ends. Nothing when a run is on.
  void startChecking();
  /// Stops the run; a pass in progress ends at its next look at `running`, and its transfers are cut.
  void stopChecking();
  /// One test pass over the sites of `mode` (see `DueSites::getArraySitesActiveTrue`); nothing when one is in progress.
  void runTestPass(std::int16_t mode);
  /// Tests the sites of a site table once, without a run: no countdown follows. Stop ends it as it ends a run's pass;
  /// false then. A run that is started meanwhile begins when that is done. REQUIRES: no run is on and no pass in
  /// progress.
  bool testOnce(TextTable sites);
  /// These sites are due at once in the run that is on, whatever the time of their last check. One that is not active
  /// is left out.
  void checkSoon(const std::vector<std::int16_t>& ids);
  /// These options hold from now on, as at the beginning of each pass those that are stored.
  void obey(OptionsInForce options);
  /// Gets the history ready for the pass that is on.
  void beginHistory();
  /// `sites` without those that are not to be checked now, since that is how their quiet time is to be spent.
  TextTable withoutResting(TextTable sites);
  /// Vocabulary: no front end calls it.
  /// Stores one judged result, raises the alerts of a failure and repaints the site's row.
  void recordResult(std::int16_t idSite, bool result);
  /// The end of that: counts a result and repaints the site's row. Raises OverflowError, with the row repainted, when
  /// the counter is full.
  void countResult(std::int16_t idSite, bool result);

  /// Shows caption and site list afresh and has the countdown asked again. A pass in progress is left alone.
  void init();
  /// Sets the run clock's start to now and shows it.
  void resetClock();
  /// Names the site whose record somebody is still typing, or nothing when that has ended: no pass takes it meanwhile.
  /// One that a pass has left out for it is due at once afterwards; a new one else follows the option `newSites`.
  void beingTyped(std::optional<std::int16_t> idSite);
  /// The active sites that nobody watches as things stand: while no run is on all of them, else those that this run
  /// does not take, since they were never checked and have come after its Start, and those that are overdue. Raises
  /// DataAccessError.
  SomeSites unwatched();
  /// The active sites that a run has not checked for two intervals, though it should have. None while no run is on.
  /// Raises DataAccessError.
  SomeSites overdue();

  /// Whether this machine has a way to the net.
  OwnNetwork& network() { return network_; }
  /// Why the latest heartbeat was not taken; empty while it was, or none is wanted.
  const std::string& heartbeatFault() const;
  /// For the pass that is on: this machine is offline; see `OwnNetwork::setOffline`.
  void goOffline(std::string page, Request request);
  /// Whether the machine may have slept, or been told another time, in the last moments.
  bool hasJustWoken();
  /// Vocabulary: no front end calls it.
  /// Shows the time of a site's last check in the grid.
  void UpdateLastChecked(std::int16_t idSite);

  /// The ticks of the countdown (1000 ms, during a run) and of the lamps (500 ms, always).
  void tmrCheckSites_Timer();
  void Timer2_Timer();

  /// Sets intervals, clock and lamps as at program start: `tmrCheckSites` 1000 ms and off, `Timer2` 500 ms and on.
  void prepare();
  Timer& tmrCheckSites() { return *tmrCheckSites_; }
  Timer& Timer2() { return *timer2_; }

  const Guard& guard() const { return guard_; }
  bool running() const { return running_; }
  bool busy() const { return busy_; }
  /// Vocabulary: no front end calls them.
  bool inTimerPass() const { return inTimerPass_; }
  std::int32_t secondsToNext() const { return secondsToNext_; }

  /// Hours, minutes and seconds of two digits each, joined with ":"; the hours keep their last two digits only.
  static std::string formatSeconds(std::int32_t seconds);
  /// "Run Time: " and the hours of three digits, minutes and seconds of two.
  static std::string clockText(std::chrono::seconds elapsed);

 private:
  void guardedTick();
  void readOptions();
  void tellWhatTimeHasBrought();
  void proveLife();
  bool staysOffline();
  void forgetOffline();
  /// Counts one second down; true when a pass is to begin.
  bool countDown();
  void timerPass();
  void proveThatAPassIsOfUse();
  bool standsStill();
  bool wallClockWasSet();
  void updateClock();

  Needs needs_;
  Guard guard_;
  std::unique_ptr<Timer> tmrCheckSites_;
  std::unique_ptr<Timer> timer2_;
  bool running_ = false;
  // Sites are tested without a run, and whether one has been asked for meanwhile.
  bool testsOnce_ = false;
  bool startWanted_ = false;
  bool busy_ = false;
  bool inTimerPass_ = false;
  bool foundNothing_ = false;  // the last pass
  std::int32_t secondsToNext_ = 0;
  // The option `newSites`, as it was when the sites were asked last. Between that and the next time the countdown asks
  // the database nothing, unless the option wants it.
  bool newSitesAtOnce_ = false;
  std::chrono::milliseconds runStart_{0};
  // The wall clock less the one that only goes forward.
  std::chrono::seconds clockOffset_{0};
  // The options that all parts of the run go by.
  std::optional<OptionsInForce> obeyed_;
  SitesToTest sites_;
  UncountedFailures uncounted_;
  SiteAlarms alarms_;
  HistoryRecording history_;
  // When it was asked last what time has brought.
  std::chrono::minutes alarmsSeen_{};
  OwnNetwork network_;
  std::unique_ptr<ProofOfLife> life_;
  bool provesLife_ = false;
  std::optional<std::chrono::milliseconds> wokeAt_;
  bool clockWasSet_ = false;
  // Sites were due in the last pass, and each of them rests.
  bool allRest_ = false;
  // How long the run waits after passes that failed, so that a fault here does not have every due site fetched each
  // second.
  BackOff backOff_;
  // A fault has ended a pass, perhaps that of Start: sites may be left that were never checked. Those are never due,
  // and would not be watched before the next Start.
  bool somethingWasLeft_ = false;
  // Set when the countdown has ended and yet nothing is due, since there are sites that were never checked. What is due
  // changes with the minute or by an edit, so nothing is asked before.
  struct Standstill {
    std::chrono::minutes since{};
    std::string why;
  };
  std::optional<Standstill> standstill_;
};

}  // namespace tarnwick
