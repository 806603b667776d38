// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "cli/terminal/console.h"
#include "program/m.h"

namespace tarnwick {

/// "1 alert is waiting: RCPT TO: 550 5.1.1 User unknown"; empty when none has been tried in vain.
std::string delayText(const OutboxSummary& summary);
/// "2 alerts were given up: ..."; empty when none was.
std::string lossText(const OutboxSummary& summary);

/// "The daily test alert has not arrived through office: ..."; empty when nothing is known against it.
std::string trialText(m& data);
/// "The heartbeat is not taken: ..."
std::string heartbeatText(const std::string& fault);

/// Handles events for as long as `goesOn`, one try's time at most, and not when the program is being closed.
void awaitDelivery(const Services& services, const std::function<bool()>& goesOn);

/// What `begin` is answered with, which it does through what it is given; `otherwise` when that takes too long.
template <typename Answer>
Answer awaited(const Services& services, Answer otherwise,
               const std::function<void(std::function<void(Answer)> answered)>& begin) {
  const auto answer = std::make_shared<std::optional<Answer>>();  // one that comes too late finds its place still
  begin([answer](Answer told) { *answer = std::move(told); });
  awaitDelivery(services, [&answer] { return !*answer; });
  return answer->value_or(std::move(otherwise));
}

/// Keeps the password or token of a channel; returns why that failed, or nothing.
std::string storeSecret(m& data, const Services& services, std::int64_t idChannel, const std::string& secret);

/// Says that the channel has no password or token yet, and how it gets one.
void hintAtSecret(Console& console, const Channel& channel);

/// Has alerts that were never tried leave, and says on standard error what waits or was given up.
void deliverAndTell(Console& console, m& data, const Services& services);

}  // namespace tarnwick
