// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "store/channel_table.h"
#include "store/outbox.h"

namespace tarnwick {

/// What an alert tells, in one line: "does not answer: connection refused".
QString alertWords(const Alert& alert);

/// A moment to the second: "14:02:11" of today, else with the date.
QString stampWords(LocalTime time, LocalTime now);

/// A kind of channel as a list names it: "Web hook".
QString channelKindWords(const ChannelKind& kind);

}  // namespace tarnwick
