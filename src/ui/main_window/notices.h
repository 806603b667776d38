// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <QObject>
#include <QString>
#include <QTimer>

#include "delivery/delivery.h"
#include "engine/run_view.h"
#include "program/program.h"
#include "store/alarm_values.h"
#include "store/data_changes.h"
#include "store/outbox.h"
#include "ui/main_window/notice_bar.h"
#include "ui/main_window/site_grid_view.h"

namespace tarnwick {

/// What the notices of the main window say, and do: that alerts were not delivered, and that sites are unwatched. They
/// come and go by themselves; nothing opens before somebody asks for it.
class Notices final : public QObject {
  Q_OBJECT

 public:
  /// `program` is asked for nothing before one of the calls below, and outlives the events of this object's window.
  Notices(Program& program, NoticeBar& bar, SiteGridView& grid, QObject* parent);

  void add(const LostMail& mail);
  /// Tells since when this machine is offline; nothing: it is not.
  void tellOffline(std::optional<LocalTime> since);
  /// Tells for how long all alerts are paused; nothing: they are not.
  void tellPaused(const std::optional<Pause>& pause);

  /// The run or the list is not what it was: the unwatched sites are counted again as soon as events are taken in.
  void look();
  /// Time goes by in a run: they are counted again within about a second, if anything was changed meanwhile.
  void lookNowAndThen();

 Q_SIGNALS:
  /// Somebody wants to see what is on its way.
  void outboxWanted();
  /// Somebody wants to see the channels.
  void channelsWanted();

 private:
  struct Lost {
    std::int16_t idSite;
    QString url;
    QString why;
  };

  void lookAround();
  void countUnwatched();
  void lookAtOutbox();
  bool anotherRunIsOn() const;
  void tellUnwatched(std::int64_t count, bool runIsOn);
  void helpUnwatched();
  void showFirstUnwatched();
  void resume();
  void tellOutbox();
  void tellLife();
  QString outboxSentence() const;
  void openOutbox();
  void listLost();

  Program& program_;
  NoticeBar& bar_;
  SiteGridView& grid_;
  std::deque<Lost> lost_;  // the last ones
  std::size_t lostInAll_ = 0;
  OutboxSummary summary_;
  std::optional<Delivery::LostTrial> lostTrial_;
  std::string fault_;
  QTimer soon_;
  bool isStale_ = true;
  std::chrono::minutes counted_{};
  std::optional<DataChanges> changes_;
};

}  // namespace tarnwick
