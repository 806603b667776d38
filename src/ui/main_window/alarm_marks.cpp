// SPDX-License-Identifier: MIT
#include "ui/main_window/alarm_marks.h"

#include <exception>
#include <utility>

#include "engine/alarm_view.h"

namespace tarnwick {
namespace {

constexpr int kNowAndThen = 1000;  // milliseconds
constexpr int kOften = 15000;
constexpr int kAfterFault = 30000;

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
    if (!changes_) {
      changes_.emplace(program_.data().database());
    }
    const LocalTime now = program_.services().clock.localNow();
    const auto minute = std::chrono::floor<std::chrono::minutes>(now.time_since_epoch());
    const bool isChanged = changes_->byAnyone();
    const bool isNewMinute = std::exchange(seen_, minute) != minute && options_;
    if (!std::exchange(isStale_, false) && !isChanged && !isNewMinute) {
      return;
    }
    OptionsInForce options = program_.data().optionsInForce();
    const auto acknowledged = program_.data().acknowledgements();
    if (!isAlarmSet(options) && acknowledged.empty()) {
      if (std::exchange(options_, std::nullopt)) {
        for (int row = 0; row < sites_.rowCount(); ++row) {
          sites_.setAlarm(row, {});
        }
        Q_EMIT pauseRead(std::nullopt);
      }
      return;
    }
    options_ = std::move(options);
    const AlarmPolicy common = alarmPolicyOf(*options_, kAllSites);
    Q_EMIT pauseRead(isPaused(common.pause, now) ? std::optional(common.pause) : std::nullopt);
    const auto standings = program_.data().standings();
    const auto certificates = program_.data().certificates(*options_);
    for (int row = 0; row < sites_.rowCount(); ++row) {
      const auto id = sites_.siteOfRow(row);
      if (!id) {
        continue;
      }
      const auto known = standings.find(*id);
      const bool hasOwn = options_->hasOwn(*id);
      sites_.setAlarm(row, alarmViewOf(known == standings.end() ? SiteStanding() : known->second,
                                       hasOwn ? alarmPolicyOf(*options_, *id) : common, now, acknowledged.contains(*id),
                                       certificates, *id));
    }
  } catch (const std::exception&) {
    // That the list cannot be read is told elsewhere. What was read last stays until it can be read again.
    isStale_ = true;
    soon_.start(kAfterFault);
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
  } catch (const std::exception&) {
    look();
  }
}

}  // namespace tarnwick
