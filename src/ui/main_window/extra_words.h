// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "platform/clock.h"

namespace tarnwick {

/// How long ago that was: "just now", "2 min ago", "3 h ago", "12 days ago".
QString agoWords(LocalTime then, LocalTime now);

/// What is said of a moment that lies behind.
enum class Past {
  isDue,  ///< it is due now
  told,   ///< how long ago it was
};
/// How long it is until then: "in 2 min", "in 3 h", "in 12 days".
QString inWords(LocalTime then, LocalTime now, Past past = Past::isDue);

/// A moment that lies behind, to follow "since": "04:24" of today, else "2026-11-20".
QString sinceWords(LocalTime then, LocalTime now);

}  // namespace tarnwick
