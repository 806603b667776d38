// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <QObject>
#include <QTimer>

#include "program/program.h"
#include "store/data_changes.h"
#include "ui/main_window/site_grid_model.h"

namespace tarnwick {

/// Keeps what the rows of the list say of the sites' alarms: unconfirmed, unsteady, slow, a certificate that ends
/// soon, paused, offline. Where no
/// option of the alarm is set they say nothing of it, and nothing is read.
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
  void readAll();

  Program& program_;
  SiteGridModel& sites_;
  QTimer soon_;
  QTimer often_;  // also while no run is on
  bool isStale_ = true;
  std::optional<DataChanges> changes_;
  std::chrono::minutes seen_{};
  // What was read last; none where no option of the alarm is set.
  std::optional<OptionsInForce> options_;
};

}  // namespace tarnwick
