// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>
#include <QString>

#include "alerts/alert_dispatch.h"
#include "engine/alarm_view.h"
#include "engine/next_alert.h"
#include "program/program.h"
#include "store/channels.h"
#include "store/outbox.h"

namespace tarnwick {

/// What there is to say of a site's alarm.
struct AlarmFacts {
  LocalTime now{};
  AlarmView view{};
  NextAlert next{};
  std::optional<LocalTime> toldAt{};  ///< by whatever way
  std::vector<OutboxRow> alerts{};    ///< the latest of each channel
  std::vector<Channel> known{};       ///< all channels that there are
  std::vector<Channel> channels{};    ///< those that tell of it
  AlertWays ways{};                   ///< beside them
};

/// Raises DataAccessError.
AlarmFacts alarmFactsOf(m& data, std::int16_t idSite, LocalTime now);

/// How the site stands, as far as its alarm knows; empty where it knows nothing.
QString alarmStateWords(const AlarmFacts& facts);
/// What was told, and by what; empty where nobody kept that.
QString toldWords(const AlarmFacts& facts);
/// When somebody is told next; empty where nobody can be.
QString nextWords(const AlarmFacts& facts);
QString waysWords(const AlarmFacts& facts);

}  // namespace tarnwick
