// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <QObject>
#include <QTimer>

#include "program/program.h"
#include "store/data_changes.h"
#include "ui/main_window/site_grid_model.h"

namespace tarnwick {

/// Keeps what the rows of the list say of the sites' alarms: unconfirmed, unsteady, slow, a certificate that ends
/// soon, paused, offline. Where no option of the alarm is set they say nothing of it, and nothing is read. The rows of
/// a long list are told some at a time, between the events.
class AlarmMarks final : public QObject {
  Q_OBJECT

 public:
  /// `program` is asked for nothing before one of the calls below; both outlive this object.
  AlarmMarks(Program& program, SiteGridModel& sites, QObject* parent);

  /// The list is not what it was: all is read again as soon as events are taken in.
  void look();
  /// Time goes by: the same within about a second, if anything was changed meanwhile, or a minute has begun.
  void lookNowAndThen();
  /// The site has just been judged.
  void update(std::int16_t idSite);

 Q_SIGNALS:
  /// Whether the alerts of all sites are paused, and how long, has been read.
  void pauseRead(const std::optional<tarnwick::Pause>& pause);

 private:
  /// What holds for all rows, and how far they have been told.
  struct Round {
    LocalTime now;
    AlarmPolicy common;
    std::map<std::int64_t, Acknowledgement> acknowledged;
    /// Those that were judged since, and are told already.
    std::set<std::int16_t> newer{};
    int nextRow = 0;
  };

  void readAll();
  /// Whether anything may have changed since the last time.
  bool isToRead(LocalTime now);
  void begin(LocalTime now);
  void tellNone();
  void tellRows();
  /// Those from the next one on and before `end`.
  void tellRowsBefore(int end);

  Program& program_;
  SiteGridModel& sites_;
  QTimer soon_;
  QTimer often_;  // also while no run is on
  bool isStale_ = true;
  std::optional<DataChanges> changes_;
  std::chrono::minutes seen_{};
  // What was read last; none where no option of the alarm is set.
  std::optional<OptionsInForce> options_;
  std::optional<Round> round_;
};

}  // namespace tarnwick
