// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>

#include "engine/run_view.h"
#include "simulation/alert_watch.h"
#include "simulation/answer_watch.h"
#include "simulation/world.h"

namespace tarnwick::simulation {

/// What was shown and done, and so must be found: it looks into the list as another program would and compares. The
/// first contradiction ends the run.
class Ledger {
 public:
  explicit Ledger(World& world) : world_(world) {}

  void shown(const CheckResult& result);
  void started(const std::vector<std::string>& program);
  /// The run shows that it is there.
  void sawSign() { lastSign_ = world_.agenda.now(); }
  AlertWatch& alerts() { return alertWatch_; }
  AnswerWatch& answers() { return answerWatch_; }
  /// Whether every result can be recorded as soon as the list is not locked.
  bool canBeRecorded() const { return !diskFails_ && !memoryFails_; }

  /// Something is about to change rows or counters, or has, that is not written down here: from here on only what
  /// comes later, from when the run is at rest and `settle` is called, is compared.
  void disturb() {
    known_ = false;
    recounts_ = false;
  }
  void settle();
  /// The program has ended: what could not be counted until then is not counted any more.
  void ended() { recounts_ = false; }
  /// While the disk fails an alert can go out before its failure is recorded, and a failure be counted later; without
  /// memory any result can be recorded that could not be shown.
  void setDiskFails(bool fails) { setFails(diskFails_, fails); }
  void setMemoryFails(bool fails) { setFails(memoryFails_, fails); }

  /// Compares log, counters and alerts with what was shown.
  void compare();
  /// The machine is up again after a cut or a kill: what was shown is there, and nothing is half done.
  void compareAfterDeath();

  /// Whether every active site that is due was checked in time, every alert has left in time, and the run shows what it
  /// does, or waits for.
  void watchLiveness();
  /// No promise about the time of checks holds until then.
  void excuse(Time time) { excusedUntil_ = std::max(excusedUntil_, world_.agenda.now() + time); }
  /// The same for one site, which cannot even be asked.
  void excuse(std::int16_t idSite, Time time) {
    lastSeen_[idSite] = std::max(lastSeen_[idSite], world_.agenda.now() + time);
  }

  bool hasFailed() const { return !failure_.empty(); }
  const std::string& failure() const { return failure_; }
  void fail(const std::string& what);
  std::uint64_t results() const { return results_; }
  std::uint64_t comparisons() const { return comparisons_; }

 private:
  struct Row {
    std::int16_t idSite = 0;
    std::string text;
  };
  struct Counts {
    std::int64_t success = 0;
    std::int64_t failure = 0;
  };

  std::vector<std::string> newLogRows() const;
  std::map<std::int16_t, Counts> counters() const;
  void begin();
  void setFails(bool& what, bool fails);
  void recount();
  void compareLog(bool afterDeath);
  void compareCounters(bool afterDeath);

  void watchChecks();
  void watchPages();

  World& world_;
  AlertWatch alertWatch_{world_, [this](const std::string& what) { fail(what); }};
  AnswerWatch answerWatch_{[this](const std::string& what) { fail(what); }};
  Time lastSign_{0};
  bool known_ = false;
  bool recounts_ = false;  ///< the disk has failed since, and nothing else has come between
  bool diskFails_ = false;
  bool memoryFails_ = false;
  Time settlesFrom_{0};
  std::uint64_t logAtBegin_ = 0;
  std::uint64_t logBefore_ = 0;  ///< the last row of the log that has been compared
  bool unshown_ = false;         ///< a row is there that was not shown yet
  std::deque<Row> expected_;
  std::map<std::int16_t, Counts> countersBefore_;
  std::map<std::int16_t, Counts> seen_;
  std::map<std::int16_t, std::int64_t> alerts_;
  std::map<std::int16_t, Time> lastSeen_;
  Time excusedUntil_{0};
  std::uint64_t results_ = 0;
  std::uint64_t comparisons_ = 0;
  std::string failure_;
};

}  // namespace tarnwick::simulation
