// SPDX-License-Identifier: MIT
#include "ui/main_window/alarm_marks.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>
#include <QElapsedTimer>

#include "engine/alarm_view.h"

namespace tarnwick {
namespace {

constexpr int kNowAndThen = 1000;  // milliseconds
constexpr int kOften = 15000;
constexpr int kAfterFault = 30000;
constexpr int kSlice = 8;
constexpr int kRowsAtOnce = 256;

}  // namespace

AlarmMarks::AlarmMarks(Program& program, SiteGridModel& sites, QObject* parent)
    : QObject(parent), program_(program), sites_(sites) {
  soon_.setSingleShot(true);
  connect(&soon_, &QTimer::timeout, this, &AlarmMarks::readAll);
  often_.setInterval(kOften);
  connect(&often_, &QTimer::timeout, this, &AlarmMarks::lookNowAndThen);
}

void AlarmMarks::look() {
  isStale_ = true;
  soon_.start(0);
  often_.start();
}

void AlarmMarks::lookNowAndThen() {
  if (!soon_.isActive()) {
    soon_.start(kNowAndThen);
  }
}

void AlarmMarks::readAll() {
  try {
    const LocalTime now = program_.services().clock.localNow();
    if (isToRead(now)) {
      begin(now);
    }
    tellRows();
  } catch (const std::exception&) {
    // That the list cannot be read is told elsewhere. What was read last stays until it can be read again.
    round_.reset();
    isStale_ = true;
    soon_.start(kAfterFault);
  }
}

bool AlarmMarks::isToRead(LocalTime now) {
  if (!changes_) {
    changes_.emplace(program_.data().database());
  }
  if (round_ && !isStale_) {
    return false;  // what changes meanwhile is looked at after it
  }
  const auto minute = std::chrono::floor<std::chrono::minutes>(now.time_since_epoch());
  const bool isChanged = changes_->byAnyone();
  const bool isNewMinute = std::exchange(seen_, minute) != minute && options_;
  return std::exchange(isStale_, false) || isChanged || isNewMinute;
}

void AlarmMarks::begin(LocalTime now) {
  m& data = program_.data();
  round_.reset();
  OptionsInForce options = data.optionsInForce();
  auto acknowledged = data.acknowledgements();
  if (!isAlarmSet(options) && acknowledged.empty()) {
    tellNone();
    return;
  }
  options_ = std::move(options);
  AlarmPolicy common = alarmPolicyOf(*options_, kAllSites);
  Q_EMIT pauseRead(isPaused(common.pause, now) ? std::optional(common.pause) : std::nullopt);
  round_.emplace(Round{now, std::move(common), std::move(acknowledged)});
}

void AlarmMarks::tellNone() {
  if (!std::exchange(options_, std::nullopt)) {
    return;
  }
  for (int row = 0; row < sites_.rowCount(); ++row) {
    sites_.setAlarm(row, {});
  }
  Q_EMIT pauseRead(std::nullopt);
}

void AlarmMarks::tellRows() {
  if (!round_) {
    return;
  }
  QElapsedTimer time;
  time.start();
  while (round_->nextRow < sites_.rowCount()) {
    if (time.elapsed() >= kSlice) {
      soon_.start(0);
      return;
    }
    tellRowsBefore(std::min(round_->nextRow + kRowsAtOnce, sites_.rowCount()));
  }
  round_.reset();
}

void AlarmMarks::tellRowsBefore(int end) {
  m& data = program_.data();
  std::vector<std::pair<int, std::int16_t>> rows;
  for (int& row = round_->nextRow; row < end; ++row) {
    if (const auto id = sites_.siteOfRow(row); id && !round_->newer.contains(*id)) {
      rows.emplace_back(row, *id);
    }
  }
  if (rows.empty()) {
    return;
  }
  // The rows are in the order of the ids, but where others have numbered them.
  const auto [first, last] = std::ranges::minmax(rows, {}, &std::pair<int, std::int16_t>::second);
  const auto standings = data.standings(first.second, last.second);
  const auto certificates = data.certificates(*options_, first.second, last.second);
  for (const auto& [row, id] : rows) {
    const auto known = standings.find(id);
    sites_.setAlarm(row, alarmViewOf(known == standings.end() ? SiteStanding() : known->second,
                                     options_->hasOwn(id) ? alarmPolicyOf(*options_, id) : round_->common, round_->now,
                                     round_->acknowledged.contains(id), certificates, id));
  }
}

void AlarmMarks::update(std::int16_t idSite) {
  if (!options_) {
    return;
  }
  try {
    const auto certificate = program_.data().certificateOf(idSite, *options_);
    const AlarmView view = alarmViewOf(
        program_.data().standingOf(idSite), alarmPolicyOf(*options_, idSite), program_.services().clock.localNow(),
        program_.data().acknowledgementOf(idSite).has_value(), certificate ? &*certificate : nullptr);
    sites_.setAlarm(sites_.rowOfSite(idSite), view);
    if (round_) {
      round_->newer.insert(idSite);
    }
  } catch (const std::exception&) {
    look();
  }
}

}  // namespace tarnwick
