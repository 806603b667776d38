// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "alerts/alert_facts.h"
#include "platform/clock.h"
#include "store/site_standing.h"

namespace tarnwick {

/// What is known of the outage that an alert is about.
struct OutageFacts {
  std::optional<LocalTime> since{};
  int checks = 0;  ///< how many have failed
  std::string firstError{};
  LocalTime now{};
  std::string certificate{};  ///< what is to be said of it in an alert that is about that
};

/// How an alert is told.
struct EventTexts {
  std::string_view word;  ///< what `~event~` stands for
  std::string_view subject;
  std::string_view file;  ///< of the mail's text, in the program folder
  std::string_view text;  ///< what it is without that file
};

const EventTexts& textsOf(AlertKind kind);
/// Of the mail that tells that this machine is online again.
const EventTexts& textsOfReturn();

AlertEvent eventOf(std::string_view word, const OutageFacts& outage);
/// One that is slow, or whose certificate is told of, is up: nothing is told of the outage that it had before.
AlertEvent eventOf(AlertKind kind, const OutageFacts& outage);

/// A span as people write it, of its two largest units: "45 s", "1 h 12 min", "3 d 4 h". None is "0 s".
std::string spanText(std::chrono::seconds span);

}  // namespace tarnwick
