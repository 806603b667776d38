// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/timer.h"
#include "report/daily_report.h"
#include "report/parted_work.h"
#include "store/settings_and_log.h"

namespace tarnwick {

/// Counts the minutes in which a run is on, and writes the report at the first of them and then at every 59th, when
/// the setting `creports` asks for reports. Time without a run does not count, and a new run goes on counting.
class ReportTimer {
 public:
  struct Needs {
    SettingsAndLog& settings;
    DailyReport& report;
    const Clock& clock;
    /// Whether a run is on.
    std::function<bool()> running;
    /// Shows a text on the status line at once.
    std::function<void(const std::string& text)> showStatus;
  };

  /// Wraps the timer's handler, for instance to show its failure in a box: called with a name and the handler.
  using Guard = std::function<void(const std::string& handler, const std::function<void()>& action)>;

  /// The timer is made disabled; `prepare` sets it up. `guard` is where the errors of its handler end.
  ReportTimer(Needs needs, TimerMaker& timers, Guard guard);

  /// Sets the timer as at program start: a tick every 60000 ms, and on.
  void prepare();

  /// One tick. Raises what the reading of the setting and `DailyReport::createReport` raise; the next report is then
  /// due 59 running minutes later all the same. Where there is much to tell of the history, that follows between the
  /// events.
  void tmrReport_Timer();
  Timer& tmrReport() { return *tmrReport_; }

 private:
  /// Whether the next tick writes a report.
  bool reportDue() const;

  Needs needs_;
  Guard guard_;
  std::unique_ptr<Timer> tmrReport_;
  PartedWork rest_;
  std::int16_t reportTick_ = 60;
  std::int16_t reportEvery_ = 60;
};

}  // namespace tarnwick
